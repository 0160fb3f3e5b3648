#pragma once

#include <LocalConfig/interfaces/IUserManager.h>

#include <QMainWindow>

#include <memory>

class QLabel;

namespace LocalConfigClient
{

class ConfigService;
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

    /// Applies what takes effect at once; the rest is applied at the next start.
    void ApplySettings();

private:
    class ConnectionObserver;

    ConfigService& m_configService;
    UserLogical::IUserManager& m_userManager;
    std::unique_ptr<ConnectionObserver> m_pObserver;
    int m_nClientSize = -1; // the last one that was applied
    SplitView* m_pSplitView;
    QLabel* m_pConnection;
    QLabel* m_pTimeZone;
};

} // namespace LocalConfigClient
