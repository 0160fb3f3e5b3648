#include "Caller.h"
#include "Client.h"
#include "ScreenScale.h"
#include "SystemSignals.h"

#include <QApplication>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <memory>

using namespace LocalConfigClient;

namespace
{

constexpr int g_nExitFailed = 1;
constexpr int g_nExitUsage = 2;

bool HasDisplay(CommandLine::Action eAction)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    // A picture needs no display, so nobody asks whether the one that is named is there.
    const bool bNamed = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    return (bNamed && eAction == CommandLine::OpenWindow) || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
#else
    Q_UNUSED(eAction)
    return true;
#endif
}

int FailWithoutDisplay(CommandLine::Action eAction)
{
    Client::Complain(eAction == CommandLine::OpenWindow
                         ? QStringLiteral("There is no display; --screenshot FILE renders the dialog without one.")
                         : QStringLiteral("There is no display of the kind that QT_QPA_PLATFORM names."));
    return g_nExitFailed;
}

// What Qt remarks about a machine that lacks something which the client does without, or tells the operator itself.
constexpr const char* g_arrNoNews[] = {"QStandardPaths: XDG_RUNTIME_DIR not set",
                                       "PulseAudioService: ", "This plugin does not support "};

CommandLine::Action g_eAction = CommandLine::OpenWindow;
bool g_bMakingApplication = false;
QtMessageHandler g_defaultHandler = nullptr;

bool IsNoNews(const QString& strText)
{
    return std::any_of(std::begin(g_arrNoNews), std::end(g_arrNoNews),
                       [&strText](const char* pszBegin) { return strText.startsWith(QLatin1String(pszBegin)); });
}

void OnMessage(QtMsgType eType, const QMessageLogContext& context, const QString& strText)
{
    // Where no display is to be had, Qt warns, and then it aborts the program.
    if (g_bMakingApplication && eType == QtFatalMsg)
    {
        std::_Exit(FailWithoutDisplay(g_eAction));
    }
    const bool bAboutDisplay = g_bMakingApplication && qstrncmp(context.category, "qt.qpa.", 7) == 0;
    if (!bAboutDisplay && !IsNoNews(strText))
    {
        g_defaultHandler(eType, context, strText);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    SystemSignals::SurviveFileSizeLimit();
    QCoreApplication::setApplicationName(QStringLiteral("local-config-client"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.0.0"));

    CommandLine commandLine;
    QString strError;
    if (!CommandLine::Parse(GetArguments(argc, argv), commandLine, strError))
    {
        Client::Complain(strError);
        return g_nExitUsage;
    }
    // The client reads its own options; Qt would take some of them, such as --platform, for its own.
    int nOwnArguments = 1;

    if (!Client::NeedsDisplay(commandLine.eAction))
    {
        const QCoreApplication application(nOwnArguments, argv);
        if (commandLine.eAction == CommandLine::ShowHelp)
        {
            PrintText(CommandLine::GetHelp());
            return 0;
        }
        if (commandLine.eAction == CommandLine::ShowVersion)
        {
            PrintText(QStringLiteral("local-config-client %1\n").arg(QCoreApplication::applicationVersion()));
            return 0;
        }
        return Client(commandLine).RunWithoutDisplay();
    }

    if (!HasDisplay(commandLine.eAction))
    {
        if (commandLine.eAction == CommandLine::OpenWindow)
        {
            return FailWithoutDisplay(commandLine.eAction);
        }
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_LOGGING_RULES", "default.warning=false"); // what that plug-in lacks is no news to an operator
    }
#ifdef Q_OS_WIN
    QApplication::setDesktopSettingsAware(false); // lists and menus have fonts of their own there
#endif
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    g_eAction = commandLine.eAction;
    g_bMakingApplication = true;
    g_defaultHandler = qInstallMessageHandler(&OnMessage);
    // A picture is as large as it is asked for, a window must fit its screen.
    const auto pApplication = commandLine.eAction == CommandLine::OpenWindow
                                  ? ScreenScale::MakeApplication(nOwnArguments, argv)
                                  : std::make_unique<QApplication>(nOwnArguments, argv);
    g_bMakingApplication = false;
    return Client(commandLine).Run(*pApplication);
}
