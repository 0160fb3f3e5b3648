#pragma once

#include <LocalConfig/interfaces/IUserManager.h>

#include <QMainWindow>
#include <QVector>

#include <memory>

class QLabel;
class QShortcut;
class QStackedWidget;

namespace KVGUI
{
class KvPushButton;
}

namespace UICommonMdl
{
class CAlarmTypeCombox;
}

namespace LocalConfigClient
{

class AlarmCenter;
class ConfigService;
class LiveActions;
class MapView;
class SplitView;

/// The client's main window: shows what the settings do, and opens the settings dialog.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The services must outlive the window.
    MainWindow(ConfigService& configService, UserLogical::IUserManager& userManager);
    ~MainWindow() override;

    /// Opens the settings dialog, modal, until the operator closes it.
    /// \param nSection  navigation index of the section that it shows at first; -1 for the first one
    void OpenSettings(int nSection = -1);

    /// The same when the window, which is not shown yet, can be seen: only then it has the place that the dialog opens
    /// over.
    void OpenSettingsOnceSeen(int nSection);

    /// Applies what takes effect at once; the rest is applied at the next start.
    void ApplySettings();

    /// Shows the live view alone, on the whole screen, or the window as it was.
    void SetFullScreen(bool bFullScreen);

    /// Hides everything behind a screen that only unlocking leads away from.
    void SetLocked(bool bLocked);

signals:
    void SignalSeen(); ///< painted for the first time

protected:
    bool event(QEvent* pEvent) override;

private:
    class ConnectionObserver;

    void FitIntoScreen();
    QWidget* MakeHeader();
    QWidget* MakeAlarmPanel();
    void ShowAlarm();
    QWidget* MakeLockScreen();
    void AddShortcuts();
    void SettleShortcuts();

    ConfigService& m_configService;
    UserLogical::IUserManager& m_userManager;
    std::unique_ptr<ConnectionObserver> m_pObserver;
    int m_nClientSize = -1; // the last one that was applied
    SplitView* m_pSplitView;
    LiveActions* m_pLiveActions;
    QStackedWidget* m_pPages; // the client and the lock screen
    QWidget* m_pHeader;
    QWidget* m_pAlarmPanel;
    MapView* m_pMapView;
    AlarmCenter* m_pAlarmCenter;
    UICommonMdl::CAlarmTypeCombox* m_pAlarmType;
    QLabel* m_pAlarm;
    KVGUI::KvPushButton* m_pAcknowledge;
    KVGUI::KvPushButton* m_pRecord;
    KVGUI::KvPushButton* m_pUnlock;
    QVector<QShortcut*> m_listKeyboard; // of the PC keyboard
    QShortcut* m_pSettingsShortcut;
    bool m_bMaximized = false; // before full screen
    bool m_bSeen = false;
    QLabel* m_pConnection;
    QLabel* m_pTimeZone;
};

} // namespace LocalConfigClient
