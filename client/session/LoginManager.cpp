#include "LoginManager.h"

#include "HostLookup.h"
#include "KeepAlive.h"

#include <QElapsedTimer>
#include <QTcpSocket>
#include <QTimer>

namespace LocalConfigClient
{

namespace
{

constexpr int g_nStateConnected = 2;
constexpr int g_nStateLost = 3;
constexpr int g_nConnectTimeout = 5000;             // milliseconds; the system's own is minutes
constexpr qint64 g_nReadBuffer = qint64(64) * 1024; // bytes of what nobody wants to know

} // namespace

/// Lives in the manager's thread.
class ConnectionWatch : public QObject
{
public:
    ConnectionWatch(LoginManager& manager, const QString& strHost, quint16 nPort, LoginManager::BackOff backOff)
        : m_manager(manager)
        , m_strHost(strHost)
        , m_nPort(nPort)
        , m_backOff(backOff)
        , m_nDelay(backOff.nFirst)
        , m_lookup(this)
        , m_socket(this)
        , m_retry(this)
        , m_timeout(this)
    {
        m_retry.setSingleShot(true);
        m_timeout.setSingleShot(true);
        m_timeout.setInterval(g_nConnectTimeout);
        m_socket.setReadBufferSize(g_nReadBuffer);
        connect(&m_lookup, &HostLookup::SignalDone, this, &ConnectionWatch::OnLookedUp);
        connect(&m_retry, &QTimer::timeout, this, &ConnectionWatch::OnRetry);
        connect(&m_timeout, &QTimer::timeout, this, &ConnectionWatch::OnLost);
        connect(&m_socket, &QTcpSocket::connected, this, &ConnectionWatch::OnConnected);
        connect(&m_socket, &QTcpSocket::disconnected, this, &ConnectionWatch::OnLost);
        connect(&m_socket, &QTcpSocket::errorOccurred, this, &ConnectionWatch::OnLost);
        // The server's words are none of the watch's business, but unread they would keep the loss from being seen.
        connect(&m_socket, &QTcpSocket::readyRead, &m_socket, [this] { m_socket.skip(m_socket.bytesAvailable()); });
    }

    ~ConnectionWatch() override
    {
        m_socket.disconnect(this); // closing it is no loss to report, least of all to timers that are gone
    }

    void Connect()
    {
        m_timeout.start();
        const QHostAddress address(m_strHost);
        if (address.isNull())
        {
            m_lookup.Start(m_strHost);
        }
        else
        {
            OnLookedUp({address});
        }
    }

private:
    /// May come late, when the attempt that asked for it has been given up.
    void OnLookedUp(const QVector<QHostAddress>& listAddresses)
    {
        m_listAddresses = listAddresses;
        if (listAddresses.isEmpty())
        {
            OnLost();
            return;
        }
        m_retry.stop();
        ConnectToNext();
    }

    void ConnectToNext()
    {
        m_timeout.start();
        m_socket.connectToHost(m_listAddresses.takeFirst(), m_nPort);
    }

    void OnRetry()
    {
        if (m_listAddresses.isEmpty())
        {
            Connect();
        }
        else
        {
            ConnectToNext();
        }
    }

    void OnConnected()
    {
        m_timeout.stop();
        m_listAddresses.clear();
        KeepAlive(m_socket.socketDescriptor());
        m_held.start();
        m_manager.SetConnected(true);
    }

    void OnLost()
    {
        if (m_retry.isActive())
        {
            return; // one loss is reported by several signals
        }
        m_timeout.stop();
        if (!m_listAddresses.isEmpty())
        {
            m_retry.start(0); // the server has another address
            m_socket.abort();
            return;
        }
        if (m_held.isValid() && m_held.elapsed() > m_backOff.nLongest)
        {
            m_nDelay = m_backOff.nFirst; // a server that hangs up at once is tried ever more seldom, too
        }
        m_held.invalidate();
        m_retry.start(m_nDelay);
        m_nDelay = qMin(2 * m_nDelay, m_backOff.nLongest);
        m_socket.abort();
        m_manager.SetConnected(false);
    }

    LoginManager& m_manager;
    QString m_strHost;
    quint16 m_nPort;
    LoginManager::BackOff m_backOff;
    int m_nDelay;
    QVector<QHostAddress> m_listAddresses; // that this attempt has not tried yet
    QElapsedTimer m_held;                  // how long the connection has lasted
    HostLookup m_lookup;
    QTcpSocket m_socket;
    QTimer m_retry;
    QTimer m_timeout;
};

LoginManager::LoginManager() = default;

LoginManager::LoginManager(const QString& strHost, quint16 nPort, BackOff backOff)
{
    auto* pWatch = new ConnectionWatch(*this, strHost, nPort, backOff);
    m_pWatch = pWatch;
    pWatch->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::started, pWatch, &ConnectionWatch::Connect);
    QObject::connect(&m_thread, &QThread::finished, pWatch, &QObject::deleteLater);
    m_thread.setObjectName(QStringLiteral("login watch"));
    m_thread.start();
}

LoginManager::~LoginManager()
{
    m_thread.quit();
    m_thread.wait();
}

void LoginManager::AddObserver(KvPluginAPI::IObserver* pObserver)
{
    auto* pLoginObserver = static_cast<UserLogical::ILoginManagerObserver*>(pObserver);
    const std::lock_guard<std::recursive_mutex> locker(m_mutex);
    if (!pLoginObserver || m_listObservers.contains(pLoginObserver))
    {
        return;
    }
    m_listObservers += pLoginObserver;
    if (m_pWatch && !m_bConnected)
    {
        m_listNewcomers += pLoginObserver;
        QMetaObject::invokeMethod(
            m_pWatch, [this] { TellNewcomers(); }, Qt::QueuedConnection);
    }
}

void LoginManager::RemoveObserver(KvPluginAPI::IObserver* pObserver)
{
    auto* pLoginObserver = static_cast<UserLogical::ILoginManagerObserver*>(pObserver);
    const std::lock_guard<std::recursive_mutex> locker(m_mutex);
    m_listObservers.removeAll(pLoginObserver);
    m_listNewcomers.removeAll(pLoginObserver);
}

void LoginManager::SetConnected(bool bConnected)
{
    const std::lock_guard<std::recursive_mutex> locker(m_mutex);
    if (bConnected == m_bConnected)
    {
        return;
    }
    m_bConnected = bConnected;
    m_listNewcomers.clear();
    const QList<UserLogical::ILoginManagerObserver*> listObservers = m_listObservers;
    for (UserLogical::ILoginManagerObserver* pObserver : listObservers)
    {
        if (m_listObservers.contains(pObserver)) // one observer may remove another
        {
            Tell(pObserver, bConnected);
        }
    }
}

void LoginManager::TellNewcomers()
{
    const std::lock_guard<std::recursive_mutex> locker(m_mutex);
    while (!m_listNewcomers.isEmpty())
    {
        Tell(m_listNewcomers.takeFirst(), m_bConnected);
    }
}

void LoginManager::Tell(UserLogical::ILoginManagerObserver* pObserver, bool bConnected)
{
    UserLogical::ILoginManagerObserver::Param param;
    param.nState = bConnected ? g_nStateConnected : g_nStateLost;
    pObserver->NotifyLoginState(param);
}

} // namespace LocalConfigClient
