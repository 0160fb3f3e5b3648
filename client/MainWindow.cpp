#include "MainWindow.h"

#include <client/alarm/AlarmCenter.h>
#include <client/alarm/MapView.h>
#include <client/live/LiveActions.h>
#include <client/live/SplitView.h>
#include <client/store/ConfigService.h>

#include <KvGui/KvMessageNotify.h>
#include <KvGui/KvModal.h>
#include <KvGui/KvPushButton.h>
#include <KvGui/KvToolListView.h>
#include <LocalConfig/CLocalConfig.h>
#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CAlarmTypeCombox.h>

#include <QDateTime>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

using UICommonMdl::CAlarmType;

namespace LocalConfigClient
{

namespace
{

// By basic.clientSize.
constexpr QSize g_arrClientSizes[] = {{1280, 800}, {1280, 1024}, {1440, 900}, {1680, 1050}};

constexpr int g_nPanelWidth = 312;
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

/// The first alarm category that the map shows; the first of all where it shows none.
int FindFlashing(const QList<int>& listCategories, const LocalConfigLogical::AlarmConfigInfo& settings)
{
    const auto it = std::find_if(listCategories.begin(), listCategories.end(), [&settings](int nCategory) {
        const auto flash = settings.flashCategories.find(nCategory);
        return flash != settings.flashCategories.end() && flash->second;
    });
    return it == listCategories.end() ? listCategories.first() : *it;
}

KVGUI::KvMessageNotify* Notifications()
{
    return KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance();
}

} // namespace

/// Shows the connection state; the notifications come from the login manager's thread.
class MainWindow::ConnectionObserver : public QObject, public UserLogical::ILoginManagerObserver
{
public:
    explicit ConnectionObserver(QLabel* pLabel)
        : m_pLabel(pLabel)
    {
        ShowState();
    }

    /// Tells why the settings are locked, if they are.
    void TellLoss() const
    {
        if (!m_bConnected)
        {
            Notifications()->AddTextNotification(GetLossText());
        }
    }

    void NotifyLoginState(const Param& param) override
    {
        const bool bConnected = param.nState == 2;
        QMetaObject::invokeMethod(
            this, [this, bConnected] { Show(bConnected); }, Qt::QueuedConnection);
    }

private:
    static QString GetLossText()
    {
        return MainWindow::tr("The connection to the platform is lost. The settings are locked until it is back.");
    }

    void Show(bool bConnected)
    {
        if (bConnected == m_bConnected)
        {
            return;
        }
        m_bConnected = bConnected;
        ShowState();
        TellLoss();
        if (bConnected)
        {
            Notifications()->TakeBack(GetLossText());
            Notifications()->AddSuccessNotification(MainWindow::tr("The connection to the platform is back."));
        }
    }

    void ShowState() { m_pLabel->setText(m_bConnected ? MainWindow::tr("Connected") : MainWindow::tr("Disconnected")); }

    QLabel* m_pLabel;
    bool m_bConnected = true;
};

MainWindow::MainWindow(ConfigService& configService, UserLogical::IUserManager& userManager)
    : m_configService(configService)
    , m_userManager(userManager)
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(tr("Surveillance Client"));

    m_pPages = new QStackedWidget(this);
    auto* pClient = new QWidget(m_pPages);
    m_pSplitView = new SplitView(pClient);
    m_pLiveActions = new LiveActions(m_configService, *m_pSplitView, this);
    m_pHeader = MakeHeader();
    m_pAlarmPanel = MakeAlarmPanel();
    auto* pLayout = new QGridLayout(pClient);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addWidget(m_pHeader, 0, 0, 1, 2);
    pLayout->addWidget(m_pSplitView, 1, 0);
    pLayout->addWidget(m_pAlarmPanel, 1, 1);
    pLayout->setColumnStretch(0, 1);
    pLayout->setRowStretch(1, 1);
    m_pPages->addWidget(pClient);
    m_pPages->addWidget(MakeLockScreen());
    setCentralWidget(m_pPages);
    AddShortcuts();

    m_pObserver = std::make_unique<ConnectionObserver>(m_pConnection);
    if (UserLogical::ILoginManager* pLoginManager = m_userManager.GetLoginManager())
    {
        pLoginManager->AddObserver(m_pObserver.get());
    }

    // The time zone is shown or not from the start; a change takes effect after a restart.
    m_pTimeZone->setText(m_configService.GetStored().basic.showTimeZone ? GetTimeZoneText() : QString());
    m_configService.SetSavedHandler([this] { ApplySettings(); });
    m_configService.SetProblemHandler(
        [](const QString& strProblem) { Notifications()->AddTextNotification(strProblem); });
    ApplySettings();
}

QWidget* MainWindow::MakeHeader()
{
    auto* pHeader = new QWidget(m_pSplitView->parentWidget());
    auto* pTitle = new QLabel(windowTitle(), pHeader);
    m_pTimeZone = new QLabel(pHeader);
    m_pTimeZone->setObjectName(QStringLiteral("timeZone"));
    m_pConnection = new QLabel(pHeader);
    m_pConnection->setObjectName(QStringLiteral("connection"));

    auto* pLayout = new QHBoxLayout(pHeader);
    pLayout->setContentsMargins(16, 8, 16, 8);
    pLayout->setSpacing(8);
    pTitle->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // the first to give way on a narrow screen
    pLayout->addWidget(pTitle, 1);
    pLayout->addWidget(m_pTimeZone);
    pLayout->addSpacing(8);
    pLayout->addWidget(m_pConnection);
    pLayout->addSpacing(8);
    const auto addButton = [pHeader, pLayout](const char* pszName, const QString& strText, const QString& strToolTip) {
        auto* pButton = new KVGUI::KvPushButton(strText, pHeader);
        pButton->setObjectName(QString::fromLatin1(pszName));
        pButton->setToolTip(strToolTip);
        pLayout->addWidget(pButton);
        return pButton;
    };
    connect(addButton("btnSnapshot", tr("Snapshot"), tr("Picture of the selected window (P)")),
            &QAbstractButton::clicked, m_pLiveActions, &LiveActions::SnapWindow);
    connect(addButton("btnContinuous", tr("Continuous Snapshot"),
                      tr("Pictures of the selected window, one after the other")),
            &QAbstractButton::clicked, m_pLiveActions, &LiveActions::SnapContinuously);
    m_pRecord = addButton("btnRecord", QString(), tr("Recording of the selected window (Ctrl+R)"));
    connect(m_pRecord, &QAbstractButton::clicked, m_pLiveActions, &LiveActions::ToggleRecording);
    const auto showRecording = [this] {
        m_pRecord->setText(m_pLiveActions->IsRecording() ? tr("Stop Recording") : tr("Record"));
        m_pSplitView->SetRecorded(m_pLiveActions->GetRecordedPane());
    };
    connect(m_pLiveActions, &LiveActions::SignalRecordingChanged, this, showRecording);
    showRecording();
    connect(addButton("btnSettings", tr("Local Config..."), tr("Settings of this workstation (Ctrl+,)")),
            &QAbstractButton::clicked, this, [this] { OpenSettings(); });
    return pHeader;
}

QWidget* MainWindow::MakeAlarmPanel()
{
    auto* pPanel = new QWidget(m_pSplitView->parentWidget());
    m_pMapView = new MapView(pPanel);
    m_pAlarmCenter = new AlarmCenter(m_configService, *m_pMapView, *m_pSplitView, this);
    connect(m_pAlarmCenter, &AlarmCenter::SignalChanged, this, &MainWindow::ShowAlarm);

    QMap<int, QString> mapMain;
    QMap<int, QMap<int, QString>> mapSub;
    CAlarmType::Instance()->GetAlarmCategory(mapMain, mapSub);
    m_pMapView->SetCategories(mapMain);
    auto* pCaption = new QLabel(tr("Alarm Type:"), pPanel);
    m_pAlarmType = new UICommonMdl::CAlarmTypeCombox(pPanel);
    m_pAlarmType->setObjectName(QStringLiteral("alarmType"));
    m_pAlarmType->setAccessibleName(tr("Alarm Type"));
    pCaption->setBuddy(m_pAlarmType);
    m_pAlarmType->InitMenu(mapMain, mapSub);
    if (!mapMain.isEmpty())
    {
        const int nCategory = FindFlashing(mapMain.keys(), m_configService.GetStored().alarm);
        m_pAlarmType->ChooseItem(nCategory, mapSub.value(nCategory).firstKey());
    }
    connect(m_pMapView, &MapView::SignalCategoryPicked, this,
            [this, mapSub](int nCategory) { m_pAlarmType->ChooseItem(nCategory, mapSub.value(nCategory).firstKey()); });
    auto* pRaise = new KVGUI::KvPushButton(tr("Test Alarm"), pPanel);
    pRaise->setObjectName(QStringLiteral("btnTestAlarm"));
    pRaise->setEnabled(!mapMain.isEmpty());
    connect(pRaise, &QAbstractButton::clicked, this, [this] {
        m_pAlarmCenter->Raise(
            CAlarmType::Instance()->GetAlarmTypeIdByIndex(m_pAlarmType->GetCurrentChosenItem().value(0, -1)));
    });
    m_pAlarm = new QLabel(pPanel);
    m_pAlarm->setObjectName(QStringLiteral("alarm"));
    m_pAlarm->setWordWrap(true);
    m_pAcknowledge = new KVGUI::KvPushButton(tr("Acknowledge"), pPanel);
    m_pAcknowledge->setObjectName(QStringLiteral("btnAcknowledge"));
    connect(m_pAcknowledge, &QAbstractButton::clicked, m_pAlarmCenter, &AlarmCenter::Acknowledge);

    auto* pLayout = new QVBoxLayout(pPanel);
    pLayout->setContentsMargins(16, 8, 16, 16);
    pLayout->setSpacing(8);
    pLayout->addWidget(m_pMapView);
    pLayout->addSpacing(8);
    pLayout->addWidget(pCaption);
    pLayout->addWidget(m_pAlarmType);
    pLayout->addWidget(pRaise);
    pLayout->addStretch();
    pLayout->addWidget(m_pAlarm);
    pLayout->addWidget(m_pAcknowledge);
    pPanel->setFixedWidth(g_nPanelWidth);
    ShowAlarm();
    return pPanel;
}

void MainWindow::ShowAlarm()
{
    const bool bActive = m_pAlarmCenter->IsActive();
    m_pAlarm->setText(bActive ? tr("Alarm: %1").arg(m_pAlarmCenter->GetAlarmName()) : QString());
    m_pAcknowledge->setEnabled(bActive);
}

QWidget* MainWindow::MakeLockScreen()
{
    auto* pScreen = new QWidget(m_pPages);
    auto* pText = new QLabel(tr("The client is locked."), pScreen);
    m_pUnlock = new KVGUI::KvPushButton(tr("Unlock"), pScreen);
    m_pUnlock->setObjectName(QStringLiteral("btnUnlock"));
    m_pUnlock->setAutoDefault(true);
    connect(m_pUnlock, &QAbstractButton::clicked, this, [this] { SetLocked(false); });
    auto* pLayout = new QVBoxLayout(pScreen);
    pLayout->setSpacing(16);
    pLayout->addStretch();
    pLayout->addWidget(pText, 0, Qt::AlignCenter);
    pLayout->addWidget(m_pUnlock, 0, Qt::AlignCenter);
    pLayout->addStretch();
    return pScreen;
}

void MainWindow::AddShortcuts()
{
    const auto add = [this](const QKeySequence& keys, std::function<void()> action) {
        auto* pShortcut = new QShortcut(keys, this);
        connect(pShortcut, &QShortcut::activated, this, std::move(action));
        return pShortcut;
    };
    m_pSettingsShortcut = add(Qt::CTRL + Qt::Key_Comma, [this] { OpenSettings(); });
    m_listKeyboard = {
        add(Qt::Key_P, [this] { m_pLiveActions->SnapWindow(); }),
        add(Qt::CTRL + Qt::Key_P, [this] { m_pLiveActions->SnapAllWindows(); }),
        add(Qt::CTRL + Qt::Key_R, [this] { m_pLiveActions->ToggleRecording(); }),
        add(Qt::Key_Return, [this] { m_pSplitView->ToggleSingleWindow(); }),
        add(Qt::Key_Enter, [this] { m_pSplitView->ToggleSingleWindow(); }),
        add(Qt::CTRL + Qt::Key_F, [this] { SetFullScreen(true); }),
        add(Qt::Key_Escape, [this] { SetFullScreen(false); }),
        add(Qt::CTRL + Qt::Key_L, [this] { SetLocked(true); }),
    };
}

/// The keys work while the PC keyboard is the one in use and the client is not locked.
void MainWindow::SettleShortcuts()
{
    const bool bLocked = m_pPages->currentIndex() != 0;
    const bool bPcKeyboard = m_configService.GetStored().shortcutKey.pcKeyboard;
    for (QShortcut* pShortcut : qAsConst(m_listKeyboard))
    {
        pShortcut->setEnabled(bPcKeyboard && !bLocked);
    }
    m_pSettingsShortcut->setEnabled(!bLocked);
    if (!bPcKeyboard)
    {
        SetFullScreen(false); // which no key would lead out of any more
    }
}

void MainWindow::SetFullScreen(bool bFullScreen)
{
    if (bFullScreen == isFullScreen())
    {
        return;
    }
    if (bFullScreen)
    {
        m_bMaximized = isMaximized();
    }
    m_pHeader->setVisible(!bFullScreen);
    m_pAlarmPanel->setVisible(!bFullScreen);
    if (bFullScreen)
    {
        showFullScreen();
    }
    else if (m_bMaximized)
    {
        showMaximized();
    }
    else
    {
        showNormal();
    }
}

void MainWindow::SetLocked(bool bLocked)
{
    m_pPages->setCurrentIndex(bLocked ? 1 : 0);
    if (bLocked)
    {
        m_pUnlock->setFocus();
    }
    SettleShortcuts();
}

MainWindow::~MainWindow()
{
    m_configService.SetSavedHandler({});
    m_configService.SetProblemHandler({});
    if (auto* pDialog = findChild<LocalConfig::CLocalConfig*>())
    {
        pDialog->hide();
        pDialog->UnInitUI(); // while its services are there
    }
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
        resize(g_arrClientSizes[nClientSize]);
        FitIntoScreen();
    }
    m_pSplitView->SetSplit(settings.video.nDefaultSplit);
    m_pSplitView->SetDisplayScale(settings.video.nDisplayScale);
    SettleShortcuts();
}

/// With its frame, which it has once it is shown.
void MainWindow::FitIntoScreen()
{
    if (isMaximized() || isFullScreen())
    {
        return;
    }
    const QRect available = screen()->availableGeometry();
    resize(size().boundedTo(available.size() - (frameGeometry().size() - size())));
    if (isVisible())
    {
        const QRect frame = frameGeometry();
        move(qMax(available.left(), qMin(frame.left(), available.right() + 1 - frame.width())),
             qMax(available.top(), qMin(frame.top(), available.bottom() + 1 - frame.height())));
    }
}

bool MainWindow::event(QEvent* pEvent)
{
    const bool bHandled = QMainWindow::event(pEvent);
    if (pEvent->type() == QEvent::Paint && !m_bSeen)
    {
        m_bSeen = true;
        FitIntoScreen();
        emit SignalSeen();
    }
    return bHandled;
}

void MainWindow::OpenSettingsOnceSeen(int nSection)
{
    connect(
        this, &MainWindow::SignalSeen, this, [this, nSection] { OpenSettings(nSection); }, Qt::QueuedConnection);
}

void MainWindow::OpenSettings(int nSection)
{
    KVGUI::KvModal<LocalConfig::CLocalConfig> dialog(this);
    dialog->Init(&m_configService, &m_userManager);
    dialog->InitDialogSize();
    if (nSection >= 0)
    {
        auto* pList = dialog->findChild<KVGUI::KvToolListView*>();
        QTimer::singleShot(g_nLayoutTime, pList, [pList, nSection] { pList->SetCurrentIndex(nSection); });
    }
    QTimer::singleShot(g_nLayoutTime, dialog.operator->(), [this] { m_pObserver->TellLoss(); });
    const int nSaves = m_configService.GetSaveAttempts();
    if (!dialog.Exec())
    {
        return; // this window has gone, too
    }
    dialog->UnInitUI();
    if (m_configService.GetSaveAttempts() == nSaves)
    {
        // Cancelled: what single pages had stored before another one refused is not to come back with the next save.
        m_configService.Revert();
    }
}

} // namespace LocalConfigClient
