#include "Client.h"
#include "SystemSignals.h"

#include <QApplication>

#include <cstdio>

using namespace LocalConfigClient;

namespace
{

constexpr int g_nExitFailed = 1;
constexpr int g_nExitUsage = 2;

bool HasDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
#else
    return true;
#endif
}

} // namespace

int main(int argc, char* argv[])
{
    SystemSignals::SurviveFileSizeLimit();
    QCoreApplication::setApplicationName(QStringLiteral("local-config-client"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.0.0"));

    QStringList listArguments;
    for (int n = 1; n < argc; ++n)
    {
        listArguments += QString::fromLocal8Bit(argv[n]);
    }
    CommandLine commandLine;
    QString strError;
    if (!CommandLine::Parse(listArguments, commandLine, strError))
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
            std::fputs(qUtf8Printable(CommandLine::GetHelp()), stdout);
            return 0;
        }
        if (commandLine.eAction == CommandLine::ShowVersion)
        {
            std::printf("local-config-client %s\n", qUtf8Printable(QCoreApplication::applicationVersion()));
            return 0;
        }
        return Client(commandLine).RunWithoutDisplay();
    }

    if (!HasDisplay())
    {
        if (commandLine.eAction == CommandLine::OpenWindow)
        {
            Client::Complain(QStringLiteral("There is no display; --screenshot FILE renders the dialog without one."));
            return g_nExitFailed;
        }
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_LOGGING_RULES", "default.warning=false"); // what that plug-in lacks is no news to an operator
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(nOwnArguments, argv);
    return Client(commandLine).Run(application);
}
