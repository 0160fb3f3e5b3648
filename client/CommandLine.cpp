#include "CommandLine.h"

#include <QCommandLineParser>
#include <QHostAddress>
#include <QUrl>

#include <limits>

namespace LocalConfigClient
{

namespace
{

constexpr int g_nSectionCount = 9;
constexpr int g_nWallSection = 6;
constexpr int g_nWallRight = 26;

struct SAction
{
    const char* pszName;
    CommandLine::Action eAction;
    bool bFile;
    const char* pszHelp;
};

constexpr SAction g_arrActions[] = {
    {"screenshot", CommandLine::Screenshot, true,
     QT_TRANSLATE_NOOP("CommandLine", "Render the settings dialog to a PNG file.")},
    {"dump", CommandLine::Dump, false, QT_TRANSLATE_NOOP("CommandLine", "Print all settings as JSON.")},
    {"import", CommandLine::Import, true, QT_TRANSLATE_NOOP("CommandLine", "Replace all settings by those of a file.")},
    {"export", CommandLine::Export, true, QT_TRANSLATE_NOOP("CommandLine", "Write all settings to a file.")},
    {"help", CommandLine::ShowHelp, false, QT_TRANSLATE_NOOP("CommandLine", "Show this help.")},
    {"version", CommandLine::ShowVersion, false, QT_TRANSLATE_NOOP("CommandLine", "Show the version.")},
};

QCommandLineOption Option(const char* pszName, const QString& strHelp, const char* pszValue = nullptr)
{
    return pszValue ? QCommandLineOption(QString::fromLatin1(pszName), strHelp, QString::fromLatin1(pszValue))
                    : QCommandLineOption(QString::fromLatin1(pszName), strHelp);
}

void AddOptions(QCommandLineParser& parser)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const SAction& action : g_arrActions)
    {
        parser.addOption(Option(action.pszName, CommandLine::tr(action.pszHelp), action.bFile ? "FILE" : nullptr));
    }
    parser.addOption(Option("section", CommandLine::tr("Section that the dialog shows at first, 0 to 8."), "N"));
    parser.addOption(Option("skin", CommandLine::tr("DustyBlue or White."), "SKIN"));
    parser.addOption(Option("language", CommandLine::tr("en or zh_CN."), "LANGUAGE"));
    parser.addOption(Option("without-right", CommandLine::tr("Right that the user lacks; may be repeated."), "N"));
    parser.addOption(Option("platform", CommandLine::tr("Platform server whose connection is watched."), "HOST:PORT"));
    parser.addOption(Option("data-dir", CommandLine::tr("Folder of the client's files."), "DIR"));
}

bool ParseNumber(const QString& strText, int nMin, int nMax, int& nNumber)
{
    bool bOk = false;
    nNumber = strText.toInt(&bOk);
    return bOk && nNumber >= nMin && nNumber <= nMax;
}

/// "host:port", "1.2.3.4:port" or "[::1]:port".
bool ParseServer(const QString& strText, QString& strHost, quint16& nPort)
{
    const int nColon = strText.lastIndexOf(QLatin1Char(':'));
    int nNumber = 0;
    if (nColon <= 0 || !ParseNumber(strText.mid(nColon + 1), 1, 65535, nNumber))
    {
        return false;
    }
    nPort = static_cast<quint16>(nNumber);
    strHost = strText.left(nColon);
    if (strHost.startsWith(QLatin1Char('[')) && strHost.endsWith(QLatin1Char(']')))
    {
        strHost = strHost.mid(1, strHost.size() - 2);
        return QHostAddress(strHost).protocol() == QAbstractSocket::IPv6Protocol;
    }
    QUrl url;
    url.setHost(strHost, QUrl::StrictMode);
    return !url.host().isEmpty() && !strHost.contains(QLatin1Char(':')); // an IPv6 address needs its brackets
}

} // namespace

bool CommandLine::Parse(const QStringList& listArguments, CommandLine& result, QString& strError)
{
    result = CommandLine();
    QCommandLineParser parser;
    AddOptions(parser);
    const auto fail = [&strError](const QString& strText) {
        strError = strText.simplified();
        return false;
    };
    if (!parser.parse(QStringList{QStringLiteral("local-config-client")} + listArguments))
    {
        return fail(parser.errorText());
    }
    if (!parser.positionalArguments().isEmpty())
    {
        return fail(tr("Unexpected argument '%1'.").arg(parser.positionalArguments().first()));
    }
    for (const QString& strName : parser.optionNames())
    {
        if (strName != QLatin1String("without-right") && parser.optionNames().count(strName) > 1)
        {
            return fail(tr("Option --%1 is given more than once.").arg(strName));
        }
        if (!parser.values(strName).isEmpty() && parser.value(strName).isEmpty())
        {
            return fail(tr("Option --%1 needs a value.").arg(strName));
        }
    }
    const auto bad = [&](const char* pszName, const char* pszExpected) {
        return fail(
            tr("Option --%1 takes %2, not '%3'.")
                .arg(QString::fromLatin1(pszName), tr(pszExpected), parser.value(QString::fromLatin1(pszName))));
    };

    QString strAction;
    for (const SAction& action : g_arrActions)
    {
        const QString strName = QString::fromLatin1(action.pszName);
        if (!parser.isSet(strName))
        {
            continue;
        }
        if (!strAction.isEmpty())
        {
            return fail(tr("Options --%1 and --%2 exclude each other.").arg(strAction, strName));
        }
        strAction = strName;
        result.eAction = action.eAction;
        result.strFile = action.bFile ? parser.value(strName) : QString();
    }

    for (const QString& strRight : parser.values(QStringLiteral("without-right")))
    {
        int nRight = 0;
        if (!ParseNumber(strRight, 1, std::numeric_limits<int>::max(), nRight))
        {
            return bad("without-right", QT_TRANSLATE_NOOP("CommandLine", "a positive number"));
        }
        result.setMissingRights.insert(nRight);
    }
    if (parser.isSet(QStringLiteral("section")))
    {
        if (!ParseNumber(parser.value(QStringLiteral("section")), 0, g_nSectionCount - 1, result.nSection))
        {
            return bad("section", QT_TRANSLATE_NOOP("CommandLine", "a number from 0 to 8"));
        }
        if (result.nSection == g_nWallSection && result.setMissingRights.contains(g_nWallRight))
        {
            return fail(tr("Without right 26 there is no section 6."));
        }
        if (result.eAction != Screenshot && result.eAction != OpenWindow)
        {
            return fail(tr("Option --section belongs to the dialog."));
        }
    }
    result.strSkin = parser.value(QStringLiteral("skin"));
    if (!QStringList{QString(), QStringLiteral("DustyBlue"), QStringLiteral("White")}.contains(result.strSkin))
    {
        return bad("skin", QT_TRANSLATE_NOOP("CommandLine", "DustyBlue or White"));
    }
    result.strLanguage = parser.value(QStringLiteral("language"));
    if (!QStringList{QString(), QStringLiteral("en"), QStringLiteral("zh_CN")}.contains(result.strLanguage))
    {
        return bad("language", QT_TRANSLATE_NOOP("CommandLine", "en or zh_CN"));
    }
    if (parser.isSet(QStringLiteral("platform")) &&
        !ParseServer(parser.value(QStringLiteral("platform")), result.strHost, result.nPort))
    {
        return bad("platform", QT_TRANSLATE_NOOP("CommandLine", "HOST:PORT"));
    }
    result.strDataFolder = parser.value(QStringLiteral("data-dir"));
    return true;
}

QString CommandLine::GetHelp()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Surveillance workstation client. Without an action it opens its window and "
                                        "the settings dialog."));
    AddOptions(parser);
    return parser.helpText();
}

} // namespace LocalConfigClient
