#pragma once

#include <KvGui/KvCustomDialog.h>
#include <LocalConfig/LocalConfigExport.h>
#include <LocalConfig/interfaces/IUserManager.h>

#include <QMap>
#include <QPointer>

#include <memory>
#include <vector>

namespace Ui
{
class CLocalConfig;
}

namespace LocalConfigLogical
{
class ILocalConfig;
}

namespace LocalConfig
{

class CGroupBox;
class CKeyboardTravel;
class IConfigPage;

/// The "Local Config" dialog: everything that is configured on the operator's own workstation, in nine sections.
///
/// A host constructs the dialog, calls Init with its services, optionally InitDialogSize, shows the dialog with exec
/// or show as often as it likes, calls UnInitUI when the dialog is no longer shown, and deletes it. The services, the
/// section objects and the rights object stay the host's and must live until UnInitUI has returned.
///
/// Everything runs on the GUI thread except NotifyLoginState. No exception leaves the module.
class LOCALCONFIG_EXPORT CLocalConfig : public KVGUI::KvCustomDialog, public UserLogical::ILoginManagerObserver
{
    Q_OBJECT

public:
    /// Builds the empty dialog; no service is touched.
    explicit CLocalConfig(QWidget* pParent);
    ~CLocalConfig() override;

    /// Stores the services, asks for right 26 (video wall), registers with the login manager and builds the
    /// navigation. To be called once, before the dialog is shown; the pages are created at the first show.
    /// \return 0; -1 if either pointer is null, in which case nothing has been stored
    int Init(LocalConfigLogical::ILocalConfig* pLocalConfig, UserLogical::IUserManager* pUserManager);

    /// Fixes the height to 680 when the desktop is less than 769 pixels high. The constructor has done so already;
    /// a host may call it again when the desktop has changed.
    void InitDialogSize();

    /// Leaves the login manager and forgets all services. To be called before the dialog is deleted, not while it is
    /// shown. A second call does no harm.
    void UnInitUI();

    /// Login state of the client, see UserLogical::ILoginManagerObserver::Param. May be called from any thread.
    void NotifyLoginState(const UserLogical::ILoginManagerObserver::Param& param) override;

signals:
    /// The connection to the platform is down: buttons and pages lock.
    void SignalDisconnect();
    /// The connection to the platform is back: buttons and pages unlock.
    void SignalReconnect();

protected:
    void showEvent(QShowEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    bool focusNextPrevChild(bool bNext) override;

private slots:
    void OnGroupBoxClicked(int iIndex);
    void OnToolListCurrentIndexChanged(int iIndex);
    void OnVerticalScrollBarChanged(int iValue);
    void OnSaveBtnClicked();
    void OnResumeClicked();
    void OnBtnCancelClicked();
    void OnDisconnect();
    void OnReconnect();
    void OnAdjustVerticalScrollBar();
    void OnVideoConfigChangeSize();

private:
    void OnCloseBtmClicked() override;

    void InitUI();
    void ConnectSlots();
    void AddSection(int nIndex);
    bool HasRightTo(int nIndex) const;

    void CreateBasicConfig();
    void CreateVideoConfig();
    void CreatePlaybackConfig();
    void CreateCaptureConfig();
    void CreateRecordConfig();
    void CreateAlarmConfig();
    void CreateTVWallConfig();
    void CreateSrcurityConfig();
    void CreateShortcurKeyConfig();
    IConfigPage* NewPage(int nIndex);
    void HandSectionTo(int nIndex);
    void CreatePage(int nIndex);

    template <class Action>
    void ForEachPage(Action action);
    void ReloadPages(bool bDefault);
    void ReloadRefused(const QMap<const IConfigPage*, int>& mapResults);
    void MarkSections(const QMap<const IConfigPage*, int>& mapResults);
    void ShowFirstRefused(const QMap<const IConfigPage*, int>& mapResults);
    void SetConnected(bool bConnected);
    template <class Action>
    void KeepFocusOn(QWidget* pHolder, Action action);

    CGroupBox* GetGroupBoxByIndex(int iIndex) const;
    CGroupBox* GetGroupBoxByVerticalScrollBarValue(int iValue) const;
    CGroupBox* GetSelectGroupBox() const;
    void ChangeSelectGroupBox(int iIndex);
    static bool IsContains(int iValue, const QWidget* pWidget);

    std::unique_ptr<Ui::CLocalConfig> m_pUi;
    CKeyboardTravel* m_pTravel = nullptr;
    LocalConfigLogical::ILocalConfig* m_pLocalConfig = nullptr;
    UserLogical::IUserManager* m_pUserManager = nullptr;
    UserLogical::ILoginManager* m_pLoginManager = nullptr;
    bool m_bFirstShow = true;
    bool m_bTvWallRight = false;
    std::vector<IConfigPage*> m_vecPages; // by navigation index; Qt children of their group boxes
    QMap<int, CGroupBox*> m_mapGroupBox;
    QPointer<QWidget> m_pLockedHolder; // of the focus, when the connection went
};

} // namespace LocalConfig
