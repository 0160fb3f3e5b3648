#include "CLocalIniFile.h"

#include "CAtomicFile.h"
#include "CErrorCode.h"

#include <KvGui/KvDir.h>
#include <KvGui/KvMessageNotify.h>

#include <QDir>

#include <algorithm>
#include <cstring>
#include <optional>

namespace UICommonMdl
{

namespace
{

QString GetPath(const QString& strFileName)
{
    return QDir(KVGUI::KvDir::GetCurrentPath()).filePath(strFileName);
}

/// Whether a group or key may stand in the file as it is. Anything else could be read as another line or name.
bool IsName(const QString& strName)
{
    return !strName.isEmpty() && std::all_of(strName.begin(), strName.end(), [](QChar ch) {
        const ushort nCode = ch.unicode();
        return (nCode >= 'a' && nCode <= 'z') || (nCode >= 'A' && nCode <= 'Z') || (nCode >= '0' && nCode <= '9') ||
               nCode == '_' || nCode == '-' || nCode == '.';
    });
}

/// The value in the form that QSettings reads back, in ASCII.
QByteArray Escape(const QString& strValue)
{
    QByteArray result;
    bool bQuote = strValue.isEmpty() || strValue.front() == QLatin1Char(' ') || strValue.back() == QLatin1Char(' ') ||
                  strValue.startsWith(QLatin1Char('@'));
    bool bAfterHex = false; // a digit behind \x41 would belong to it
    for (const QChar ch : strValue)
    {
        const ushort nCode = ch.unicode();
        const bool bHexDigit =
            (nCode >= '0' && nCode <= '9') || (nCode >= 'a' && nCode <= 'f') || (nCode >= 'A' && nCode <= 'F');
        if (nCode == '"' || nCode == '\\')
        {
            result += '\\';
            result += char(nCode);
            bAfterHex = false;
        }
        else if (nCode < 0x20 || nCode > 0x7e || (bAfterHex && bHexDigit))
        {
            result += "\\x" + QByteArray::number(nCode, 16);
            bAfterHex = true;
        }
        else
        {
            bQuote = bQuote || nCode == ';' || nCode == ',' || nCode == '=' || nCode == '#';
            result += char(nCode);
            bAfterHex = false;
        }
    }
    if (!strValue.isEmpty() && strValue.front() == QLatin1Char('@'))
    {
        result.prepend('@'); // QSettings takes a single one for a type of its own
    }
    return bQuote ? '"' + result + '"' : result;
}

/// Where an unquoted comment begins in a value; the value's size without one.
int FindComment(const QByteArray& value)
{
    bool bQuoted = false;
    for (int n = 0; n < value.size(); ++n)
    {
        switch (value[n])
        {
        case '\\':
            ++n;
            break;
        case '"':
            bQuoted = !bQuoted;
            break;
        case ';':
            if (!bQuoted)
            {
                return n;
            }
            break;
        default:
            break;
        }
    }
    return value.size();
}

/// The number behind a backslash, of digits to a base; \a nPlace moves behind it.
QChar ReadCode(const QByteArray& value, int& nPlace, int nBase)
{
    ushort nCode = 0;
    bool bDigit = true;
    while (nPlace < value.size())
    {
        const int nDigit = value.mid(nPlace, 1).toInt(&bDigit, nBase);
        if (!bDigit)
        {
            break;
        }
        nCode = ushort(nCode * nBase + nDigit);
        ++nPlace;
    }
    return nCode;
}

/// The character that an escape stands for; \a nPlace, behind the backslash, moves behind it.
QChar ReadEscape(const QByteArray& value, int& nPlace)
{
    constexpr char szNames[] = "abfnrtv";
    constexpr char szMeanings[] = "\a\b\f\n\r\t\v";
    const char ch = value[nPlace];
    if (ch >= '0' && ch <= '7')
    {
        return ReadCode(value, nPlace, 8);
    }
    ++nPlace;
    if (ch == 'x')
    {
        return ReadCode(value, nPlace, 16);
    }
    const char* pszName = ch ? std::strchr(szNames, ch) : nullptr;
    return QLatin1Char(pszName ? szMeanings[pszName - szNames] : ch);
}

/// What Escape, QSettings or a person has written behind the key.
QString Unescape(const QByteArray& written)
{
    const QByteArray value = written.left(FindComment(written)).trimmed();
    QString strValue;
    int nPlace = 0;
    while (nPlace < value.size())
    {
        int nPlain = nPlace;
        while (nPlain < value.size() && value[nPlain] != '\\' && value[nPlain] != '"')
        {
            ++nPlain;
        }
        strValue += QString::fromUtf8(value.mid(nPlace, nPlain - nPlace));
        nPlace = nPlain + 1;
        if (nPlain < value.size() && value[nPlain] == '\\' && nPlace < value.size())
        {
            strValue += ReadEscape(value, nPlace);
        }
    }
    return strValue.startsWith(QLatin1String("@@")) ? strValue.mid(1) : strValue;
}

/// Lines with their ends, so that every byte can be put back.
QList<QByteArray> SplitLines(const QByteArray& content)
{
    QList<QByteArray> listLines;
    int nStart = 0;
    while (nStart < content.size())
    {
        const int nEnd = content.indexOf('\n', nStart);
        const int nNext = nEnd < 0 ? content.size() : nEnd + 1;
        listLines += content.mid(nStart, nNext - nStart);
        nStart = nNext;
    }
    return listLines;
}

QByteArray GetEnd(const QByteArray& line)
{
    return line.endsWith("\r\n") ? "\r\n" : line.endsWith('\n') ? "\n" : "";
}

bool IsGroup(const QByteArray& line)
{
    return line.trimmed().startsWith('[');
}

bool IsKey(const QByteArray& line, const QByteArray& key)
{
    const QByteArray trimmed = line.trimmed();
    const int nEqual = trimmed.indexOf('=');
    return nEqual > 0 && !trimmed.startsWith(';') && !trimmed.startsWith('#') && trimmed.left(nEqual).trimmed() == key;
}

bool IsBlank(const QByteArray& line)
{
    return line.trimmed().isEmpty();
}

/// The text of an ini file, of which one key is changed and every other byte stays.
class CIniText
{
public:
    explicit CIniText(const QByteArray& content)
        : m_byteOrderMark(content.startsWith("\xef\xbb\xbf") ? content.left(3) : QByteArray())
        , m_lineEnd(content.contains("\r\n") ? "\r\n" : "\n")
        , m_listLines(SplitLines(content.mid(m_byteOrderMark.size())))
    {}

    void SetKey(const QByteArray& group, const QByteArray& key, const QByteArray& value)
    {
        const QByteArray header = '[' + group + ']';
        const QByteArray line = key + '=' + value;
        if (ReplaceKey(header, key, line))
        {
            return;
        }
        EndLastLine();
        const int nEnd = FindEnd(header);
        m_listLines.insert(nEnd < 0 ? AddGroup(header) : nEnd, line + m_lineEnd);
    }

    /// What stands behind the key; none without it.
    std::optional<QByteArray> GetValue(const QByteArray& group, const QByteArray& key) const
    {
        std::optional<QByteArray> value;
        VisitGroup('[' + group + ']', [&](int n) {
            if (IsKey(m_listLines[n], key))
            {
                value = m_listLines[n].mid(m_listLines[n].indexOf('=') + 1);
            }
        });
        return value;
    }

    QByteArray Join() const { return m_byteOrderMark + m_listLines.join(); }

private:
    /// Calls visit(line) for each line of a group, which may stand in several pieces; their headers count as theirs.
    template <class Visitor>
    void VisitGroup(const QByteArray& header, Visitor visit) const
    {
        bool bInGroup = false;
        for (int n = 0; n < m_listLines.size(); ++n)
        {
            if (IsGroup(m_listLines[n]))
            {
                bInGroup = m_listLines[n].trimmed() == header;
            }
            if (bInGroup)
            {
                visit(n);
            }
        }
    }

    /// The last of several equal keys is the one that counts for readers, so all of them are replaced.
    bool ReplaceKey(const QByteArray& header, const QByteArray& key, const QByteArray& line)
    {
        bool bReplaced = false;
        VisitGroup(header, [&](int n) {
            if (IsKey(m_listLines[n], key))
            {
                m_listLines[n] = line + GetEnd(m_listLines[n]);
                bReplaced = true;
            }
        });
        return bReplaced;
    }

    /// Behind the last line of a group that says something; -1 without the group.
    int FindEnd(const QByteArray& header) const
    {
        int nEnd = -1;
        VisitGroup(header, [&](int n) { nEnd = IsBlank(m_listLines[n]) ? nEnd : n + 1; });
        return nEnd;
    }

    void EndLastLine()
    {
        if (!m_listLines.isEmpty() && !m_listLines.last().endsWith('\n'))
        {
            m_listLines.last() += m_lineEnd;
        }
    }

    /// Returns where the group's first line will stand.
    int AddGroup(const QByteArray& header)
    {
        if (!m_listLines.isEmpty() && !IsBlank(m_listLines.last()))
        {
            m_listLines += m_lineEnd;
        }
        m_listLines += header + m_lineEnd;
        return m_listLines.size();
    }

    QByteArray m_byteOrderMark;
    QByteArray m_lineEnd;
    QList<QByteArray> m_listLines;
};

int SetKey(const QString& strPath, const QString& strGroup, const QString& strKey, const QString& strValue)
{
    QByteArray content;
    const int nRead = CAtomicFile::Read(strPath, content);
    if (nRead != CErrorCode::Success && nRead != CErrorCode::FileMissing)
    {
        return nRead;
    }
    CIniText ini(content);
    ini.SetKey(strGroup.toUtf8(), strKey.toUtf8(), Escape(strValue));
    const QByteArray changed = ini.Join();
    const int nWritten = changed == content ? int(CErrorCode::Success) : CAtomicFile::Write(strPath, changed);
    return nWritten == CErrorCode::NotYetSafe ? int(CErrorCode::Success) : nWritten;
}

/// Several pages may write in one save; what fails for all of them is told once, after the save.
void NotifyLater(const QString& strText)
{
    static QStringList listWaiting;
    if (listWaiting.contains(strText))
    {
        return;
    }
    listWaiting += strText;
    auto* pNotify = KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance();
    QMetaObject::invokeMethod(
        pNotify,
        [pNotify, strText] {
            listWaiting.removeAll(strText);
            pNotify->AddTextNotification(strText);
        },
        Qt::QueuedConnection);
}

} // namespace

bool CLocalIniFile::WriteValue(const QString& strGroup, const QString& strKey, const QVariant& value,
                               const QString& strFileName)
{
    QVariant text(value);
    if (!IsName(strGroup) || !IsName(strKey) || !text.convert(QMetaType::QString))
    {
        return false;
    }
    const QString strPath = GetPath(strFileName);
    const int nResult = SetKey(strPath, strGroup, strKey, text.toString());
    if (nResult != CErrorCode::Success)
    {
        NotifyLater(CErrorCode::GetErroCodeInfor(tr("Cannot write '%1'").arg(QDir::toNativeSeparators(strPath)),
                                                 nResult, true, false));
    }
    return nResult == CErrorCode::Success;
}

QString CLocalIniFile::ReadValue(const QString& strGroup, const QString& strKey, const QString& strDefault,
                                 const QString& strFileName)
{
    // Line by line, as it is written: to QSettings, a quotation mark that some other line leaves open hides all the
    // rest.
    QByteArray content;
    CAtomicFile::Read(GetPath(strFileName), content);
    const std::optional<QByteArray> value = CIniText(content).GetValue(strGroup.toUtf8(), strKey.toUtf8());
    return value ? Unescape(*value) : strDefault;
}

} // namespace UICommonMdl
