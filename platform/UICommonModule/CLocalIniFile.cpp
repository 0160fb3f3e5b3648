#include "CLocalIniFile.h"

#include "CAtomicFile.h"
#include "CErrorCode.h"

#include <KvGui/KvDir.h>

#include <QDir>
#include <QSettings>

#include <algorithm>

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
    QByteArray content;
    const int nRead = CAtomicFile::Read(strPath, content);
    if (nRead != CErrorCode::Success && nRead != CErrorCode::FileMissing)
    {
        return false;
    }

    const QByteArray byteOrderMark = content.startsWith("\xef\xbb\xbf") ? content.left(3) : QByteArray();
    QList<QByteArray> listLines = SplitLines(content.mid(byteOrderMark.size()));
    const QByteArray lineEnd = content.contains("\r\n") ? "\r\n" : "\n";
    const QByteArray header = '[' + strGroup.toUtf8() + ']';
    const QByteArray key = strKey.toUtf8();
    const QByteArray newLine = key + '=' + Escape(text.toString()) + lineEnd;

    int nInsert = -1; // behind the last line of the group that says something
    bool bInGroup = false;
    bool bDone = false;
    // The last of several equal keys is the one that counts for readers.
    for (int n = 0; n < listLines.size(); ++n)
    {
        if (IsGroup(listLines[n]))
        {
            bInGroup = listLines[n].trimmed() == header;
        }
        if (bInGroup && !IsBlank(listLines[n]))
        {
            nInsert = n + 1;
        }
        if (bInGroup && IsKey(listLines[n], key))
        {
            listLines[n] = newLine;
            bDone = true;
        }
    }
    if (!bDone)
    {
        if (!listLines.isEmpty() && !listLines.last().endsWith('\n'))
        {
            listLines.last() += lineEnd;
        }
        if (nInsert < 0)
        {
            if (!listLines.isEmpty() && !IsBlank(listLines.last()))
            {
                listLines += lineEnd;
            }
            listLines += header + lineEnd;
            nInsert = listLines.size();
        }
        listLines.insert(nInsert, newLine);
    }

    const QByteArray changed = byteOrderMark + listLines.join();
    return changed == content || CAtomicFile::Write(strPath, changed) == CErrorCode::Success;
}

QString CLocalIniFile::ReadValue(const QString& strGroup, const QString& strKey, const QString& strDefault,
                                 const QString& strFileName)
{
    QSettings settings(GetPath(strFileName), QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    return settings.value(strGroup + QLatin1Char('/') + strKey, strDefault).toString();
}

} // namespace UICommonMdl
