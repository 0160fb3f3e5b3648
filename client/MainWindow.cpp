#include "MainWindow.h"

#include "ConfigService.h"
#include "SplitView.h"

#include <KvGui/KvMessageNotify.h>
#include <KvGui/KvPushButton.h>
#include <KvGui/KvToolListView.h>
#include <LocalConfig/CLocalConfig.h>

#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

namespace LocalConfigClient
{

namespace
{

// By basic.clientSize.
constexpr QSize g_arrClientSizes[] = {{1280, 800}, {1280, 1024}, {1440, 900}, {1680, 1050}};

constexpr int g_nLayoutTime = 120; // milliseconds until the dialog has computed its final layout

/// "UTC+01:00"
QString GetTimeZoneText()
{
    const int nMinutes = QDateTime::currentDateTime().offsetFromUtc() / 60;
    return QStringLiteral("UTC%1%2:%3")
        .arg(nMinutes < 0 ? QLatin1Char('-') : QLatin1Char('+'))
        .arg(qAbs(nMinutes) / 60, 2, 10, QLatin1Char('0'))
        .arg(qAbs(nMinutes) % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

/// Shows the connection state; the notifications come from the login manager's thread.
class MainWindow::ConnectionObserver : public QObject, public UserLogical::ILoginManagerObserver
{
public:
    explicit ConnectionObserver(QLabel* pLabel)
        : m_pLabel(pLabel)
    {
        Show(true);
    }

    void NotifyLoginState(const Param& param) override
    {
        const bool bConnected = param.nState == 2;
        QMetaObject::invokeMethod(
            this, [this, bConnected] { Show(bConnected); }, Qt::QueuedConnection);
    }

private:
    void Show(bool bConnected)
    {
        m_pLabel->setText(bConnected ? MainWindow::tr("Connected") : MainWindow::tr("Disconnected"));
    }

    QLabel* m_pLabel;
};

MainWindow::MainWindow(ConfigService& configService, UserLogical::IUserManager& userManager)
    : m_configService(configService)
    , m_userManager(userManager)
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(tr("Surveillance Client"));

    auto* pCentral = new QWidget(this);
    auto* pHeader = new QWidget(pCentral);
    auto* pTitle = new QLabel(windowTitle(), pHeader);
    m_pTimeZone = new QLabel(pHeader);
    m_pTimeZone->setObjectName(QStringLiteral("timeZone"));
    m_pConnection = new QLabel(pHeader);
    m_pConnection->setObjectName(QStringLiteral("connection"));
    auto* pSettings = new KVGUI::KvPushButton(tr("Local Config..."), pHeader);
    pSettings->setObjectName(QStringLiteral("btnSettings"));
    pSettings->setToolTip(tr("Settings of this workstation (Ctrl+,)"));
    m_pSplitView = new SplitView(pCentral);

    auto* pHeaderLayout = new QHBoxLayout(pHeader);
    pHeaderLayout->setContentsMargins(16, 8, 16, 8);
    pHeaderLayout->setSpacing(16);
    pHeaderLayout->addWidget(pTitle);
    pHeaderLayout->addStretch();
    pHeaderLayout->addWidget(m_pTimeZone);
    pHeaderLayout->addWidget(m_pConnection);
    pHeaderLayout->addWidget(pSettings);
    auto* pLayout = new QVBoxLayout(pCentral);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addWidget(pHeader);
    pLayout->addWidget(m_pSplitView, 1);
    setCentralWidget(pCentral);

    connect(pSettings, &KVGUI::KvPushButton::clicked, this, [this] { OpenSettings(); });
    connect(new QShortcut(QKeySequence(Qt::CTRL + Qt::Key_Comma), this), &QShortcut::activated, this,
            [this] { OpenSettings(); });

    m_pObserver = std::make_unique<ConnectionObserver>(m_pConnection);
    if (UserLogical::ILoginManager* pLoginManager = m_userManager.GetLoginManager())
    {
        pLoginManager->AddObserver(m_pObserver.get());
    }

    // The time zone is shown or not from the start; a change takes effect after a restart.
    m_pTimeZone->setText(m_configService.GetStored().basic.showTimeZone ? GetTimeZoneText() : QString());
    m_configService.SetSavedHandler([this] { ApplySettings(); });
    m_configService.SetProblemHandler([](const QString& strProblem) {
        KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance()->AddTextNotification(strProblem);
    });
    ApplySettings();
}

MainWindow::~MainWindow()
{
    m_configService.SetSavedHandler({});
    m_configService.SetProblemHandler({});
    if (UserLogical::ILoginManager* pLoginManager = m_userManager.GetLoginManager())
    {
        pLoginManager->RemoveObserver(m_pObserver.get());
    }
}

void MainWindow::ApplySettings()
{
    const Settings& settings = m_configService.GetStored();
    const int nClientSize = settings.basic.clientSize;
    const bool bKnown = nClientSize >= 0 && nClientSize < int(std::size(g_arrClientSizes));
    if (bKnown && nClientSize != m_nClientSize) // else the operator's own size stays
    {
        m_nClientSize = nClientSize;
        resize(g_arrClientSizes[nClientSize].boundedTo(screen()->availableSize()));
    }
    m_pSplitView->SetSplit(settings.video.nDefaultSplit);
    m_pSplitView->SetDisplayScale(settings.video.nDisplayScale);
}

void MainWindow::OpenSettings(int nSection)
{
    LocalConfig::CLocalConfig dialog(this);
    dialog.Init(&m_configService, &m_userManager);
    dialog.InitDialogSize();
    if (nSection >= 0)
    {
        QTimer::singleShot(g_nLayoutTime, &dialog, [&dialog, nSection] {
            dialog.findChild<KVGUI::KvToolListView*>()->SetCurrentIndex(nSection);
        });
    }
    const int nSaves = m_configService.GetSaveAttempts();
    dialog.exec();
    dialog.UnInitUI();
    if (m_configService.GetSaveAttempts() == nSaves)
    {
        // Cancelled: what single pages had stored before another one refused is not to come back with the next save.
        m_configService.Revert();
    }
}

} // namespace LocalConfigClient
