#include "CommandLine.h"

#include <QCommandLineParser>
#include <QHostAddress>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <limits>

namespace LocalConfigClient
{

namespace
{

// As the navigation list of the dialog names them in English.
constexpr const char* g_arrSections[] = {"Basic", "Video",      "Record Playback", "Snapshot",     "Recording",
                                         "Alarm", "Video Wall", "Security",        "Shortcut Keys"};
constexpr int g_nSectionCount = int(std::size(g_arrSections));
constexpr int g_nWallSection = 6;
constexpr int g_nWallRight = 26;
constexpr char g_szWithoutRight[] = "without-right";
constexpr char g_szGet[] = "get";
constexpr char g_szSet[] = "set";
constexpr char g_szFile[] = "FILE";

struct SAction
{
    const char* pszName;
    CommandLine::Action eAction;
    const char* pszValue; // null for none
    const char* pszHelp;
    const char* pszShort = nullptr;
};

constexpr SAction g_arrActions[] = {
    {"screenshot", CommandLine::Screenshot, g_szFile,
     QT_TRANSLATE_NOOP("CommandLine", "Render the settings dialog to a PNG file.")},
    {"dump", CommandLine::Dump, nullptr, QT_TRANSLATE_NOOP("CommandLine", "Print all settings as JSON.")},
    {"import", CommandLine::Import, g_szFile,
     QT_TRANSLATE_NOOP("CommandLine", "Replace all settings by those of a file.")},
    {"export", CommandLine::Export, g_szFile, QT_TRANSLATE_NOOP("CommandLine", "Write all settings to a file.")},
    {g_szGet, CommandLine::Get, "NAME", QT_TRANSLATE_NOOP("CommandLine", "Print one setting.")},
    {g_szSet, CommandLine::Set, "NAME=VALUE", QT_TRANSLATE_NOOP("CommandLine", "Change one setting; may be repeated.")},
    {"schema", CommandLine::ShowSchema, nullptr,
     QT_TRANSLATE_NOOP("CommandLine", "Print a JSON schema of the settings.")},
    {"help", CommandLine::ShowHelp, nullptr, QT_TRANSLATE_NOOP("CommandLine", "Show this help."), "h"},
    {"version", CommandLine::ShowVersion, nullptr, QT_TRANSLATE_NOOP("CommandLine", "Show the version."), "v"},
};

QStringList GetSectionNames()
{
    QStringList listNames;
    for (const char* pszName : g_arrSections)
    {
        listNames += QString::fromLatin1(pszName);
    }
    return listNames;
}

/// By name; -1 for none.
int FindSection(const QString& strName)
{
    const auto it = std::find_if(std::begin(g_arrSections), std::end(g_arrSections), [&strName](const char* pszName) {
        return strName.compare(QLatin1String(pszName), Qt::CaseInsensitive) == 0;
    });
    return it == std::end(g_arrSections) ? -1 : int(it - std::begin(g_arrSections));
}

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
        QStringList listNames = {QString::fromLatin1(action.pszName)};
        if (action.pszShort)
        {
            listNames.prepend(QString::fromLatin1(action.pszShort));
        }
        parser.addOption({listNames, CommandLine::tr(action.pszHelp), QString::fromLatin1(action.pszValue)});
    }
    parser.addOption(
        Option("section",
               CommandLine::tr("Section that the dialog shows at first, 0 to 8 or its name: %1 (default: 0).")
                   .arg(GetSectionNames().join(QStringLiteral(", "))),
               "SECTION"));
    parser.addOption(
        Option("skin", CommandLine::tr("DustyBlue or White (default: as in Localcfg.ini, else DustyBlue)."), "SKIN"));
    parser.addOption(
        Option("language", CommandLine::tr("en, zh_CN, es or ar (default: as in Localcfg.ini, else en)."), "LANGUAGE"));
    parser.addOption(Option(g_szWithoutRight, CommandLine::tr("Right that the user lacks; may be repeated."), "N"));
    parser.addOption(Option("platform", CommandLine::tr("Platform server whose connection is watched (default: none)."),
                            "HOST:PORT"));
    const QString strFolder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    parser.addOption(
        Option("data-dir", CommandLine::tr("Folder of the client's files (default: %1).").arg(strFolder), "DIR"));
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

/// Takes the options from the parser one by one; the first that is wrong ends it.
class Options
{
public:
    Options(const QCommandLineParser& parser, CommandLine& result)
        : m_parser(parser)
        , m_result(result)
    {}

    bool Take()
    {
        return CheckForm() && TakeAction() && TakeSettings() && TakeMissingRights() && TakeSection() &&
               TakeChoice("skin", {"DustyBlue", "White"}, CommandLine::tr("DustyBlue or White"), m_result.strSkin) &&
               TakeChoice("language", {"en", "zh_CN", "es", "ar"}, CommandLine::tr("en, zh_CN, es or ar"),
                          m_result.strLanguage) &&
               TakeServer() && TakeDataFolder();
    }

    const QString& GetError() const { return m_strError; }

private:
    bool IsSet(const char* pszName) const { return m_parser.isSet(QString::fromLatin1(pszName)); }
    QString GetValue(const char* pszName) const { return m_parser.value(QString::fromLatin1(pszName)); }

    bool Fail(const QString& strError)
    {
        m_strError = strError;
        return false;
    }

    bool FailValue(const char* pszName, const QString& strExpected)
    {
        return Fail(CommandLine::tr("Option --%1 takes %2, not '%3'.")
                        .arg(QString::fromLatin1(pszName), strExpected, GetValue(pszName)));
    }

    /// No argument but options, each of them once and no value empty.
    bool CheckForm()
    {
        if (!m_parser.positionalArguments().isEmpty())
        {
            return Fail(CommandLine::tr("Unexpected argument '%1'.").arg(m_parser.positionalArguments().first()));
        }
        const QStringList listNames = m_parser.optionNames();
        for (const QString& strName : listNames)
        {
            const bool bMayRepeat = strName == QLatin1String(g_szWithoutRight) || strName == QLatin1String(g_szSet);
            if (!bMayRepeat && listNames.count(strName) > 1)
            {
                return Fail(CommandLine::tr("Option --%1 is given more than once.").arg(strName));
            }
            if (!m_parser.values(strName).isEmpty() && m_parser.value(strName).isEmpty())
            {
                return Fail(CommandLine::tr("Option --%1 needs a value.").arg(strName));
            }
        }
        return true;
    }

    bool TakeAction()
    {
        const SAction* pTaken = nullptr;
        for (const SAction& action : g_arrActions)
        {
            if (!IsSet(action.pszName))
            {
                continue;
            }
            if (pTaken)
            {
                return Fail(CommandLine::tr("Options --%1 and --%2 exclude each other.")
                                .arg(QString::fromLatin1(pTaken->pszName), QString::fromLatin1(action.pszName)));
            }
            pTaken = &action;
            m_result.eAction = action.eAction;
            m_result.strFile = action.pszValue == g_szFile ? GetValue(action.pszName) : QString();
        }
        return true;
    }

    bool TakeSettings()
    {
        m_result.strSetting = GetValue(g_szGet);
        for (const QString& strChange : m_parser.values(QString::fromLatin1(g_szSet)))
        {
            const int nEquals = strChange.indexOf(QLatin1Char('='));
            if (nEquals <= 0)
            {
                return Fail(CommandLine::tr("Option --%1 takes %2, not '%3'.")
                                .arg(QString::fromLatin1(g_szSet), QStringLiteral("NAME=VALUE"), strChange));
            }
            m_result.listChanges += {strChange.left(nEquals), strChange.mid(nEquals + 1)};
        }
        return true;
    }

    bool TakeMissingRights()
    {
        for (const QString& strRight : m_parser.values(QString::fromLatin1(g_szWithoutRight)))
        {
            int nRight = 0;
            if (!ParseNumber(strRight, 1, std::numeric_limits<int>::max(), nRight))
            {
                return FailValue(g_szWithoutRight, CommandLine::tr("a positive number"));
            }
            m_result.setMissingRights.insert(nRight);
        }
        return true;
    }

    bool TakeSection()
    {
        if (!IsSet("section"))
        {
            return true;
        }
        const QString strSection = GetValue("section");
        m_result.nSection = FindSection(strSection);
        if (m_result.nSection < 0 && !ParseNumber(strSection, 0, g_nSectionCount - 1, m_result.nSection))
        {
            return FailValue("section", CommandLine::tr("a number from 0 to 8 or a section's name"));
        }
        if (m_result.nSection == g_nWallSection && m_result.setMissingRights.contains(g_nWallRight))
        {
            return Fail(CommandLine::tr("Without right 26 there is no section 6."));
        }
        if (m_result.eAction != CommandLine::Screenshot && m_result.eAction != CommandLine::OpenWindow)
        {
            return Fail(CommandLine::tr("Option --section belongs to the dialog."));
        }
        return true;
    }

    bool TakeChoice(const char* pszName, std::initializer_list<const char*> listChoices, const QString& strExpected,
                    QString& strChoice)
    {
        strChoice = GetValue(pszName);
        const bool bGood = std::any_of(listChoices.begin(), listChoices.end(), [&strChoice](const char* pszGood) {
            return strChoice == QLatin1String(pszGood);
        });
        return bGood || !IsSet(pszName) || FailValue(pszName, strExpected);
    }

    bool TakeServer()
    {
        return !IsSet("platform") || ParseServer(GetValue("platform"), m_result.strHost, m_result.nPort) ||
               FailValue("platform", CommandLine::tr("HOST:PORT"));
    }

    bool TakeDataFolder()
    {
        m_result.strDataFolder = GetValue("data-dir");
        return true;
    }

    const QCommandLineParser& m_parser;
    CommandLine& m_result;
    QString m_strError;
};

} // namespace

bool CommandLine::Parse(const QStringList& listArguments, CommandLine& result, QString& strError)
{
    result = CommandLine();
    QCommandLineParser parser;
    AddOptions(parser);
    Options options(parser, result);
    const bool bUnderstood = parser.parse(QStringList{QStringLiteral("local-config-client")} + listArguments);
    if (bUnderstood && options.Take())
    {
        return true;
    }
    strError = (bUnderstood ? options.GetError() : parser.errorText()).simplified();
    return false;
}

QString CommandLine::GetHelp()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Surveillance workstation client. Without an action it opens its window and "
                                        "the settings dialog."));
    AddOptions(parser);
    return parser.helpText() + QLatin1Char('\n') +
           tr("Environment:\n"
              "  KV_CLIENT_RESOURCES  Folder of skins, sounds, translations and alarm types.\n"
              "  DISPLAY              Screen that the window opens on; a picture needs none.\n"
              "  QT_SCALE_FACTOR      How large to draw, as far as the screen has room for it.\n");
}

} // namespace LocalConfigClient
