#include "AutoStart.h"

#include <UICommonModule/CAtomicFile.h>
#include <UICommonModule/CErrorCode.h>
#include <UICommonModule/CGrowingFile.h>

#include <QDir>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>

using UICommonMdl::CAtomicFile;
using UICommonMdl::CErrorCode;
using UICommonMdl::CGrowingFile;

namespace LocalConfigClient
{

namespace
{

const QString g_strHeader = QStringLiteral("[Desktop Entry]");

QString EscapeString(QString strText)
{
    return strText.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('\n'), QLatin1String("\\n"))
        .replace(QLatin1Char('\r'), QLatin1String("\\r"));
}

/// A path as the one argument of an Exec line: quoted, then escaped as every string of a desktop entry.
QString QuoteForExec(const QString& strPath)
{
    QString strQuoted;
    for (const QChar ch : strPath)
    {
        if (QStringLiteral("\"`$\\").contains(ch))
        {
            strQuoted += QLatin1Char('\\');
        }
        strQuoted += ch;
        if (ch == QLatin1Char('%'))
        {
            strQuoted += ch;
        }
    }
    return QStringLiteral("\"%1\"").arg(EscapeString(strQuoted));
}

QString GetKey(const QString& strLine)
{
    return strLine.section(QLatin1Char('='), 0, 0).trimmed();
}

bool IsGroup(const QString& strLine)
{
    return strLine.trimmed().startsWith(QLatin1Char('['));
}

/// The first line behind the header of the entry's own group, which is put in front when it is missing.
int GetEntryBegin(QStringList& listLines)
{
    const auto header = std::find_if(listLines.cbegin(), listLines.cend(),
                                     [](const QString& strLine) { return strLine.trimmed() == g_strHeader; });
    if (header == listLines.cend())
    {
        listLines.prepend(g_strHeader);
        return 1;
    }
    return int(header - listLines.cbegin()) + 1;
}

int GetEntryEnd(const QStringList& listLines, int nBegin)
{
    return int(std::find_if(listLines.cbegin() + nBegin, listLines.cend(), &IsGroup) - listLines.cbegin());
}

void SetKey(QStringList& listLines, const QString& strKey, const QString& strValue)
{
    const QString strLine = strKey + QLatin1Char('=') + strValue;
    const int nBegin = GetEntryBegin(listLines);
    int nEnd = GetEntryEnd(listLines, nBegin);
    for (int n = nBegin; n < nEnd; ++n)
    {
        if (GetKey(listLines[n]) == strKey)
        {
            listLines[n] = strLine;
            return;
        }
    }
    while (nEnd > nBegin && listLines[nEnd - 1].trimmed().isEmpty())
    {
        --nEnd;
    }
    listLines.insert(nEnd, strLine);
}

void RemoveKey(QStringList& listLines, const QString& strKey)
{
    const int nBegin = GetEntryBegin(listLines);
    for (int n = GetEntryEnd(listLines, nBegin) - 1; n >= nBegin; --n)
    {
        if (GetKey(listLines[n]) == strKey)
        {
            listLines.removeAt(n);
        }
    }
}

} // namespace

int AutoStart::Apply(bool bEnable, const QString& strApplication, const QString& strExecutable)
{
    const QDir config(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    const QString strPath = config.filePath(QStringLiteral("autostart/%1.desktop").arg(strApplication));
    if (!bEnable)
    {
        return CAtomicFile::Remove(strPath);
    }

    QByteArray content;
    const int nRead = CAtomicFile::Read(strPath, content);
    if (nRead != CErrorCode::Success && nRead != CErrorCode::FileMissing)
    {
        return nRead;
    }
    const int nFolder = CGrowingFile::MakeFolder(config.filePath(QStringLiteral("autostart")));
    if (nFolder != CErrorCode::Success)
    {
        return nFolder;
    }
    QStringList listLines = QString::fromUtf8(content).remove(QLatin1Char('\r')).split(QLatin1Char('\n'));
    SetKey(listLines, QStringLiteral("Type"), QStringLiteral("Application"));
    SetKey(listLines, QStringLiteral("Name"), EscapeString(strApplication));
    SetKey(listLines, QStringLiteral("Exec"), QuoteForExec(strExecutable));
    // By these a desktop's settings switch an entry off; the Basic page knows them, too.
    RemoveKey(listLines, QStringLiteral("Hidden"));
    RemoveKey(listLines, QStringLiteral("X-GNOME-Autostart-enabled"));
    while (!listLines.isEmpty() && listLines.last().isEmpty())
    {
        listLines.removeLast();
    }
    return CAtomicFile::Write(strPath, listLines.join(QLatin1Char('\n')).toUtf8() + '\n');
}

} // namespace LocalConfigClient
