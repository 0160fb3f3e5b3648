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

/// The switches by which a desktop's settings turn an entry off.
bool IsOffSwitch(const QString& strLine)
{
    const QString strKey = GetKey(strLine);
    return strKey == QLatin1String("Hidden") || strKey == QLatin1String("X-GNOME-Autostart-enabled");
}

void SetKey(QStringList& listLines, const QString& strKey, const QString& strValue)
{
    const QString strLine = strKey + QLatin1Char('=') + strValue;
    int nHeader = listLines.indexOf(g_strHeader);
    if (nHeader < 0)
    {
        listLines.prepend(g_strHeader);
        nHeader = 0;
    }
    int nEnd = nHeader + 1;
    for (; nEnd < listLines.size() && !listLines[nEnd].startsWith(QLatin1Char('[')); ++nEnd)
    {
        if (GetKey(listLines[nEnd]) == strKey)
        {
            listLines[nEnd] = strLine;
            return;
        }
    }
    while (nEnd > nHeader + 1 && listLines[nEnd - 1].trimmed().isEmpty())
    {
        --nEnd;
    }
    listLines.insert(nEnd, strLine);
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
    listLines.erase(std::remove_if(listLines.begin(), listLines.end(), &IsOffSwitch), listLines.end());
    while (!listLines.isEmpty() && listLines.last().isEmpty())
    {
        listLines.removeLast();
    }
    return CAtomicFile::Write(strPath, listLines.join(QLatin1Char('\n')).toUtf8() + '\n');
}

} // namespace LocalConfigClient
