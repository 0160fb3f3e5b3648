#include "AutoStart.h"

#include <UICommonModule/CAtomicFile.h>
#include <UICommonModule/CErrorCode.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStringList>

using UICommonMdl::CAtomicFile;
using UICommonMdl::CErrorCode;

namespace LocalConfigClient
{

namespace
{

const QString g_strHeader = QStringLiteral("[Desktop Entry]");

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
    return QStringLiteral("\"%1\"").arg(strQuoted.replace(QLatin1Char('\\'), QLatin1String("\\\\")));
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
        if (listLines[nEnd].section(QLatin1Char('='), 0, 0).trimmed() == strKey)
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
        return !QFile::exists(strPath) || QFile::remove(strPath) ? CErrorCode::Success : CErrorCode::NoPermission;
    }

    QByteArray content;
    const int nRead = CAtomicFile::Read(strPath, content);
    if (nRead != CErrorCode::Success && nRead != CErrorCode::FileMissing)
    {
        return nRead;
    }
    if (!config.mkpath(QStringLiteral("autostart")))
    {
        return CErrorCode::NoPermission;
    }
    QStringList listLines = QString::fromUtf8(content).split(QLatin1Char('\n'));
    SetKey(listLines, QStringLiteral("Type"), QStringLiteral("Application"));
    SetKey(listLines, QStringLiteral("Name"), strApplication);
    SetKey(listLines, QStringLiteral("Exec"), QuoteForExec(strExecutable));
    listLines.removeAll(QStringLiteral("Hidden=true"));
    while (!listLines.isEmpty() && listLines.last().isEmpty())
    {
        listLines.removeLast();
    }
    return CAtomicFile::Write(strPath, listLines.join(QLatin1Char('\n')).toUtf8() + '\n');
}

} // namespace LocalConfigClient
