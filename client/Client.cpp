#include "Client.h"

#include "Caller.h"
#include "ClientStyle.h"
#include "ClientTexts.h"
#include "MainWindow.h"
#include "SystemSignals.h"
#include <client/alarm/AlarmSounds.h>
#include <client/session/AutoStart.h>
#include <client/session/LoginManager.h>
#include <client/session/UserManager.h>
#include <client/store/ConfigService.h>
#include <client/store/SettingValue.h>
#include <client/store/SettingsSchema.h>

#include <KvGui/KvMessageNotify.h>
#include <KvGui/KvToolListView.h>
#include <LocalConfig/CLocalConfig.h>
#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CAtomicFile.h>
#include <UICommonModule/CErrorCode.h>
#include <UICommonModule/CGlobalInfo.h>
#include <UICommonModule/COutputFile.h>
#include <UICommonModule/Pxa.h>

#include <QApplication>
#include <QBuffer>
#include <QDesktopWidget>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QPalette>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <memory>

using UICommonMdl::CAlarmType;
using UICommonMdl::CAtomicFile;
using UICommonMdl::CErrorCode;
using UICommonMdl::CGlobalInfo;
using UICommonMdl::COutputFile;

namespace LocalConfigClient
{

namespace
{

constexpr int g_nExitGood = 0;
constexpr int g_nExitFailed = 1;
constexpr char g_szResources[] = "KV_CLIENT_RESOURCES";
constexpr QRect g_pictureDesktop(0, 0, 1920, 1080);
constexpr int g_nLayoutTime = 120; // milliseconds until the dialog has computed its final layout

int Fail(const QString& strText, int nCode)
{
    Client::Complain(CErrorCode::GetErroCodeInfor(strText, nCode, true, false));
    return g_nExitFailed;
}

int PrintOut(const QByteArray& content)
{
    return Print(content) ? g_nExitGood
                          : Fail(Client::tr("Cannot write '%1'").arg(QStringLiteral("stdout")), CErrorCode::IoError);
}

void ComplainAbout(const ConfigService& service)
{
    for (const QString& strProblem : service.GetFile().GetProblems())
    {
        Client::Complain(strProblem);
    }
}

/// Makes the alarms of the catalogue known, or says why there are none.
void LoadCatalogue(ConfigService& service)
{
    const CAlarmType* pCatalogue = CAlarmType::Instance();
    service.SeedAlarms(*pCatalogue);
    if (!pCatalogue->GetProblem().isEmpty())
    {
        Client::Complain(pCatalogue->GetProblem());
    }
}

/// Whether a name could be understood. One that is no text in the system's encoding would lead to another file.
bool IsText(const QString& strName)
{
    const bool bText = !strName.contains(QChar(QChar::ReplacementCharacter));
    if (!bText)
    {
        Client::Complain(Client::tr("'%1' is no text in the encoding of this system.").arg(strName));
    }
    return bText;
}

/// A PNG; empty when there is none to be had.
QByteArray Draw(QWidget& widget)
{
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    return widget.grab().save(&buffer, "PNG") ? content : QByteArray();
}

int WriteAutoStart(bool bEnable)
{
    return AutoStart::Apply(bEnable, QCoreApplication::applicationName(), QCoreApplication::applicationFilePath());
}

std::unique_ptr<LoginManager> MakeLoginManager(const CommandLine& commandLine)
{
    return commandLine.strHost.isEmpty() ? std::make_unique<LoginManager>()
                                         : std::make_unique<LoginManager>(commandLine.strHost, commandLine.nPort);
}

/// Those that the command line takes, and those that the document takes.
MissingRights GetMissingRights(const CommandLine& commandLine, const ConfigService& service)
{
    MissingRights missing = service.GetMissingRights();
    missing.setRights += commandLine.setMissingRights;
    return missing;
}

void SettleResourceFolder()
{
    const QString strFolder = qEnvironmentVariable(g_szResources);
    if (!strFolder.isEmpty())
    {
        SetEnvironment(g_szResources, QFileInfo(strFolder).absoluteFilePath());
    }
}

} // namespace

Client::Client(const CommandLine& commandLine)
    : m_commandLine(commandLine)
{
    // The client works in its data folder, so the paths that it was given must be settled before.
    SettleResourceFolder();
    if (!m_commandLine.strFile.isEmpty())
    {
        m_commandLine.strFile = QFileInfo(m_commandLine.strFile).absoluteFilePath();
    }
    if (!m_commandLine.strDataFolder.isEmpty())
    {
        m_commandLine.strDataFolder = QFileInfo(m_commandLine.strDataFolder).absoluteFilePath();
    }
}

bool Client::NeedsDisplay(CommandLine::Action eAction)
{
    return eAction == CommandLine::OpenWindow || eAction == CommandLine::Screenshot;
}

void Client::Complain(const QString& strText)
{
    // A path may hold line feeds and worse, the complaint stays one line all the same.
    QString strLine = strText;
    std::replace_if(
        strLine.begin(), strLine.end(), [](QChar ch) { return ch.category() == QChar::Other_Control; },
        QLatin1Char(' '));
    PrintError(QStringLiteral("local-config-client: %1\n").arg(strLine));
}

bool Client::EnterDataFolder()
{
    QString& strFolder = m_commandLine.strDataFolder;
    const bool bNamed = !strFolder.isEmpty();
    if (!bNamed)
    {
        strFolder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    }
    if (!IsText(strFolder) || !IsText(m_commandLine.strFile))
    {
        return false;
    }
    if (QFileInfo::exists(strFolder) && !QFileInfo(strFolder).isDir())
    {
        Complain(tr("The data folder '%1' is no folder.").arg(strFolder));
        return false;
    }
    if (!QFileInfo::exists(strFolder))
    {
        const bool bLooking = m_commandLine.eAction == CommandLine::Dump ||
                              m_commandLine.eAction == CommandLine::Export || m_commandLine.eAction == CommandLine::Get;
        if (bLooking && bNamed)
        {
            // The user's own folder may be missing, one that was named should be there.
            Complain(tr("The data folder '%1' does not exist.").arg(strFolder));
            return false;
        }
        if (bLooking || m_commandLine.eAction == CommandLine::Import || m_commandLine.eAction == CommandLine::Set)
        {
            return true; // looking makes no folder, nor does a change before it has proved good
        }
        if (!MakeDataFolder())
        {
            return false;
        }
    }
    if (!QDir::setCurrent(strFolder))
    {
        Complain(tr("The data folder '%1' cannot be entered.").arg(strFolder));
        return false;
    }
    return true;
}

bool Client::MakeDataFolder() const
{
    const bool bMade = QDir().mkpath(m_commandLine.strDataFolder);
    if (!bMade)
    {
        Complain(tr("The data folder '%1' cannot be made.").arg(m_commandLine.strDataFolder));
    }
    return bMade;
}

bool Client::MayWriteFile(const ConfigService& service) const
{
    const bool bOwn = service.GetFile().IsOwnFile(m_commandLine.strFile);
    if (bOwn)
    {
        Complain(tr("'%1' is the client's own file.").arg(m_commandLine.strFile));
    }
    return !bOwn;
}

// --- Without a display

int Client::RunWithoutDisplay()
{
    if (m_commandLine.eAction == CommandLine::ShowSchema)
    {
        return PrintOut(GetSettingsSchema());
    }
    if (!EnterDataFolder())
    {
        return g_nExitFailed;
    }
    SettleSkinAndLanguage();
    ClientTexts::Translate(CGlobalInfo::GetClientStrLanguage());
    switch (m_commandLine.eAction)
    {
    case CommandLine::Import:
        return ImportSettings();
    case CommandLine::Set:
        return ChangeSettings();
    default:
        return WriteSettings();
    }
}

int Client::ImportSettings() const
{
    QByteArray content;
    const int nRead = CAtomicFile::Read(m_commandLine.strFile, content);
    if (nRead != CErrorCode::Success)
    {
        return Fail(tr("Cannot read '%1'").arg(m_commandLine.strFile), nRead);
    }
    QString strError;
    if (SettingsDocument().Parse(content, &strError) != SettingsDocument::Good)
    {
        Complain(tr("Cannot import '%1': %2").arg(m_commandLine.strFile, strError));
        return g_nExitFailed;
    }
    if (!MakeDataFolder())
    {
        return g_nExitFailed;
    }
    ConfigService service(m_commandLine.strDataFolder, SettingsFile::ReadWrite);
    const int nResult = service.Import(content, &strError);
    const QString& strHindrance = service.GetFile().GetHindrance();
    if (nResult != CErrorCode::Success && !strHindrance.isEmpty())
    {
        Complain(tr("Cannot import '%1': %2").arg(m_commandLine.strFile, strHindrance));
        return g_nExitFailed;
    }
    if (nResult != CErrorCode::Success)
    {
        return Fail(tr("Cannot import '%1'").arg(m_commandLine.strFile), nResult);
    }
    ComplainAbout(service);
    return g_nExitGood;
}

/// To the standard output, or to a file.
int Client::WriteSettings() const
{
    const ConfigService service(m_commandLine.strDataFolder, SettingsFile::ReadOnly);
    ComplainAbout(service);
    if (service.GetFile().StandsIn())
    {
        return g_nExitFailed; // what stands in for the settings must not be taken for them
    }
    switch (m_commandLine.eAction)
    {
    case CommandLine::Dump:
        return PrintOut(service.Export());
    case CommandLine::Get:
        return PrintSetting(service);
    default:
        return MayWriteFile(service) ? WriteFile(service.Export()) : g_nExitFailed;
    }
}

int Client::PrintSetting(const ConfigService& service) const
{
    const std::optional<QByteArray> value = SettingValue::Get(service.GetStored(), m_commandLine.strSetting);
    if (!value)
    {
        Complain(SettingValue::DescribeMissing(m_commandLine.strSetting));
        return g_nExitFailed;
    }
    return PrintOut(*value + '\n');
}

bool Client::ApplyChanges(Settings& settings) const
{
    QString strError;
    for (const auto& [strName, strValue] : m_commandLine.listChanges)
    {
        if (!SettingValue::Set(settings, strName, strValue, strError))
        {
            Complain(strError);
            return false;
        }
    }
    return true;
}

/// All of the changes, or none.
int Client::ChangeSettings() const
{
    Settings settings;
    if (!ApplyChanges(settings)) // which needs no data folder
    {
        return g_nExitFailed;
    }
    if (const ConfigService looking(m_commandLine.strDataFolder, SettingsFile::ReadOnly); looking.GetFile().StandsIn())
    {
        ComplainAbout(looking);
        return g_nExitFailed; // the rest of them would be stored as if somebody had chosen it
    }
    if (!MakeDataFolder())
    {
        return g_nExitFailed;
    }
    ConfigService service(m_commandLine.strDataFolder, SettingsFile::ReadWrite);
    settings = service.GetStored();
    ApplyChanges(settings);
    const int nResult = service.Replace(settings);
    if (nResult != CErrorCode::Success && !service.GetFile().GetHindrance().isEmpty())
    {
        Complain(service.GetFile().GetHindrance());
        return g_nExitFailed;
    }
    if (nResult != CErrorCode::Success)
    {
        return Fail(tr("The settings cannot be changed"), nResult);
    }
    ComplainAbout(service);
    return g_nExitGood;
}

int Client::WriteFile(const QByteArray& content) const
{
    const int nWritten =
        content.isEmpty() ? int(CErrorCode::IoError) : COutputFile::Write(m_commandLine.strFile, content);
    return nWritten == CErrorCode::Success ? g_nExitGood
                                           : Fail(tr("Cannot write '%1'").arg(m_commandLine.strFile), nWritten);
}

// --- With a display

void Client::SettleSkinAndLanguage() const
{
    if (!m_commandLine.strSkin.isEmpty())
    {
        Pxa::SetSkin(m_commandLine.strSkin);
    }
    if (!m_commandLine.strLanguage.isEmpty())
    {
        CGlobalInfo::SetClientStrLanguage(m_commandLine.strLanguage);
    }
}

void Client::ApplyLook(QApplication& application)
{
    QApplication::setStyle(new ClientStyle);
    // A picture that needs no display needs no system that would have a font, either.
    const bool bHasSystem = QGuiApplication::platformName() != QLatin1String("offscreen");
    application.setFont(ClientTexts::MakeFont(bHasSystem ? application.font() : QFont(QString(), 1)));
    application.setPalette(Pxa::GetPalette());

    const QString strPath = Pxa::GetSkinPath(QStringLiteral("public"), QStringLiteral("KvGui.qss"));
    QString strSheet;
    if (Pxa::loadStyleSheet(strPath, strSheet))
    {
        application.setStyleSheet(strSheet);
    }
    else
    {
        Complain(tr("The skin file '%1' cannot be read.").arg(strPath));
    }
}

int Client::Run(QApplication& application)
{
    if (!EnterDataFolder())
    {
        return g_nExitFailed;
    }
    SettleSkinAndLanguage();
    ClientTexts::Translate(CGlobalInfo::GetClientStrLanguage());
    ApplyLook(application);
    return m_commandLine.eAction == CommandLine::Screenshot ? TakeScreenshot() : OpenWindow();
}

int Client::OpenWindow()
{
    const SystemSignals systemSignals;
    QObject::connect(&systemSignals, &SystemSignals::SignalEnd, &QCoreApplication::quit);

    ConfigService service(m_commandLine.strDataFolder, SettingsFile::ReadWrite, &WriteAutoStart);
    LoadCatalogue(service);
    if (!ProvideSounds())
    {
        Complain(tr("Not all alarm sounds could be put into the data folder."));
    }
    const std::unique_ptr<LoginManager> pLoginManager = MakeLoginManager(m_commandLine);
    UserManager userManager(GetMissingRights(m_commandLine, service), pLoginManager.get());
    MainWindow window(service, userManager);
    window.OpenSettingsOnceSeen(m_commandLine.nSection);
    window.show();

    ComplainAbout(service);
    const auto tellProblems = [&service] {
        for (const QString& strProblem : service.GetFile().GetProblems())
        {
            KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance()->AddTextNotification(strProblem);
        }
    };
    // Over the dialog, where the operator looks, and not behind it.
    QObject::connect(&window, &MainWindow::SignalSeen, &window,
                     [&window, tellProblems] { QTimer::singleShot(g_nLayoutTime, &window, tellProblems); });
    return QApplication::exec();
}

int Client::TakeScreenshot()
{
    ConfigService service(m_commandLine.strDataFolder, SettingsFile::ReadOnly);
    if (!MayWriteFile(service))
    {
        return g_nExitFailed;
    }
    ComplainAbout(service);
    LoadCatalogue(service);
    const std::unique_ptr<LoginManager> pLoginManager = MakeLoginManager(m_commandLine);
    UserManager userManager(GetMissingRights(m_commandLine, service), pLoginManager.get());
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
    {
        // That plug-in's screen is lower than any desktop; the dialog is to be seen as on an ordinary one.
        QApplication::desktop()->setGeometry(g_pictureDesktop);
    }
    LocalConfig::CLocalConfig dialog(nullptr);
    dialog.Init(&service, &userManager);
    dialog.setAttribute(Qt::WA_DontShowOnScreen);
    dialog.show();

    QEventLoop loop;
    QTimer::singleShot(g_nLayoutTime, &loop, &QEventLoop::quit);
    loop.exec();
    if (m_commandLine.nSection >= 0)
    {
        dialog.findChild<KVGUI::KvToolListView*>()->SetCurrentIndex(m_commandLine.nSection);
    }

    const QByteArray picture = Draw(dialog);
    dialog.hide();
    dialog.UnInitUI();
    return WriteFile(picture);
}

} // namespace LocalConfigClient
