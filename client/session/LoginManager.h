#pragma once

#include <LocalConfig/interfaces/IUserManager.h>

#include <QList>
#include <QObject>
#include <QString>
#include <QThread>

#include <mutex>

namespace LocalConfigClient
{

/// Watches the connection to the platform server from a thread of its own and tells observers there: state 2 with
/// sub-state 0 when the connection is made, state 3 when it is lost, each only on a change. A lost connection is tried
/// again, ever more seldom.
///
/// Without a server the client counts as connected and nobody is told anything.
///
/// AddObserver and RemoveObserver may be called from any thread, also from within a notification.
class LoginManager final : public UserLogical::ILoginManager
{
public:
    /// How long to wait before the next attempt, in milliseconds: doubled after each failure.
    struct BackOff
    {
        int nFirst = 250;
        int nLongest = 8000;
    };

    LoginManager();
    LoginManager(const QString& strHost, quint16 nPort, BackOff backOff);
    LoginManager(const QString& strHost, quint16 nPort)
        : LoginManager(strHost, nPort, BackOff())
    {}
    ~LoginManager();

    /// An observer that comes while the connection is down is told so, from the manager's thread.
    void AddObserver(KvPluginAPI::IObserver* pObserver) override;
    void RemoveObserver(KvPluginAPI::IObserver* pObserver) override;

private:
    friend class ConnectionWatch;

    LoginManager(const LoginManager&) = delete;
    LoginManager& operator=(const LoginManager&) = delete;

    void SetConnected(bool bConnected);
    void TellNewcomers();
    static void Tell(UserLogical::ILoginManagerObserver* pObserver, bool bConnected);

    // Held while observers are told, so that none is called once RemoveObserver has returned.
    std::recursive_mutex m_mutex;
    QList<UserLogical::ILoginManagerObserver*> m_listObservers;
    QList<UserLogical::ILoginManagerObserver*> m_listNewcomers;
    bool m_bConnected = true;
    QThread m_thread;
    QObject* m_pWatch = nullptr; // lives in m_thread
};

} // namespace LocalConfigClient
