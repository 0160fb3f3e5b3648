#include "AutoStartEntry.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

namespace LocalConfig
{

namespace
{

constexpr qint64 g_nMaxEntrySize = 64 * Q_INT64_C(1024); // bytes; a real entry has a few hundred

// Undoes the escapes that every string of a desktop entry may have.
QString UnescapeString(const QString& strValue)
{
    QString strResult;
    for (int i = 0; i < strValue.size(); ++i)
    {
        if (strValue[i] != QLatin1Char('\\') || i + 1 == strValue.size())
        {
            strResult += strValue[i];
            continue;
        }
        const QChar ch = strValue[++i];
        switch (ch.unicode())
        {
        case 's':
            strResult += QLatin1Char(' ');
            break;
        case 'n':
            strResult += QLatin1Char('\n');
            break;
        case 't':
            strResult += QLatin1Char('\t');
            break;
        case 'r':
            strResult += QLatin1Char('\r');
            break;
        default:
            strResult += ch;
        }
    }
    return strResult;
}

// The arguments of an Exec line. Field codes such as %U stand for nothing here, %% for a per cent sign.
QStringList SplitExec(const QString& strExec)
{
    QStringList listArguments;
    QString strArgument;
    bool bQuoted = false;
    bool bAny = false;
    const auto finish = [&]() {
        if (bAny)
        {
            listArguments += strArgument;
        }
        strArgument.clear();
        bAny = false;
    };
    for (int i = 0; i < strExec.size(); ++i)
    {
        const QChar ch = strExec[i];
        const bool bHasNext = i + 1 < strExec.size();
        if (ch == QLatin1Char('"'))
        {
            bQuoted = !bQuoted;
            bAny = true;
        }
        else if (ch == QLatin1Char('\\') && bQuoted && bHasNext)
        {
            strArgument += strExec[++i];
        }
        else if (ch == QLatin1Char('%') && bHasNext)
        {
            if (strExec[++i] == QLatin1Char('%'))
            {
                strArgument += QLatin1Char('%');
                bAny = true;
            }
        }
        else if (ch == QLatin1Char(' ') && !bQuoted)
        {
            finish();
        }
        else
        {
            strArgument += ch;
            bAny = true;
        }
    }
    finish();
    return listArguments;
}

// An entry that is hidden counts as deleted; the other key is the one that a desktop's own settings write.
bool IsSwitchedOff(const QString& strKey, const QString& strValue)
{
    return (strKey == QLatin1String("Hidden") && strValue == QLatin1String("true")) ||
           (strKey == QLatin1String("X-GNOME-Autostart-enabled") && strValue == QLatin1String("false"));
}

} // namespace

QString ReadAutoStartCommand(const QString& strApplication)
{
    const QString strPath =
        QStringLiteral("%1/autostart/%2.desktop")
            .arg(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation), strApplication);
    QFile file(strPath);
    if (!QFileInfo(strPath).isFile() || !file.open(QIODevice::ReadOnly))
    {
        return {};
    }

    QString strExec;
    bool bInEntry = false;
    const QStringList listLines = QString::fromUtf8(file.read(g_nMaxEntrySize)).split(QLatin1Char('\n'));
    for (const QString& strRawLine : listLines)
    {
        const QString strLine = strRawLine.trimmed();
        if (strLine.startsWith(QLatin1Char('[')))
        {
            bInEntry = strLine == QLatin1String("[Desktop Entry]");
        }
        const int nEqual = strLine.indexOf(QLatin1Char('='));
        if (!bInEntry || nEqual < 0 || strLine.startsWith(QLatin1Char('#')))
        {
            continue;
        }
        const QString strKey = strLine.left(nEqual).trimmed();
        const QString strValue = strLine.mid(nEqual + 1).trimmed();
        if (strKey == QLatin1String("Exec"))
        {
            strExec = UnescapeString(strValue);
        }
        else if (IsSwitchedOff(strKey, strValue))
        {
            return {};
        }
    }

    QStringList listQuoted;
    const QStringList listArguments = SplitExec(strExec);
    for (const QString& strArgument : listArguments)
    {
        listQuoted += QStringLiteral("\"%1\"").arg(strArgument);
    }
    return listQuoted.join(QLatin1Char(' '));
}

} // namespace LocalConfig
