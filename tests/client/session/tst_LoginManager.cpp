// Against a real server on this machine, which goes away and comes back. Its name is known to the preloaded library
// "FaultFs" alone, see support/FaultFs.cpp.

#include <client/session/LoginManager.h>

#include <QElapsedTimer>
#include <QPointer>
#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QtTest>

#include <algorithm>
#include <array>
#include <atomic>
#include <mutex>
#include <thread>

#ifdef Q_OS_LINUX
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#endif

using namespace LocalConfigClient;
using UserLogical::ILoginManagerObserver;

namespace
{

constexpr LoginManager::BackOff g_fast{10, 40};

/// Notes what it is told, and where.
class CObserver : public ILoginManagerObserver
{
public:
    void NotifyLoginState(const Param& param) override
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        m_listStates += QString("%1/%2").arg(param.nState).arg(param.nSubState);
        m_pThread = QThread::currentThread();
    }

    QStringList States() const
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        return m_listStates;
    }

    QThread* Thread() const
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        return m_pThread;
    }

private:
    mutable std::mutex m_mutex;
    QStringList m_listStates;
    QThread* m_pThread = nullptr;
};

/// A server that keeps its connections open until it is closed.
class CServer
{
public:
    bool Open(quint16 nPort = 0)
    {
        m_pServer.reset(new QTcpServer);
        QTcpServer* pServer = m_pServer.data();
        QObject::connect(pServer, &QTcpServer::newConnection, pServer, [this] { ++m_nConnections; });
        return m_pServer->listen(QHostAddress::LocalHost, nPort);
    }
    void Close()
    {
        m_pServer->waitForNewConnection(0); // Wine keeps connections that nobody has taken
        m_pServer.reset();
    }
    quint16 Port() const { return m_pServer->serverPort(); }
    bool HasConnection() const
    {
        const auto listSockets = m_pServer->findChildren<QTcpSocket*>();
        return std::any_of(listSockets.begin(), listSockets.end(), [](const QTcpSocket* pSocket) {
            return pSocket->state() == QAbstractSocket::ConnectedState;
        });
    }
    void SendToAll(const QByteArray& data) const
    {
        for (QTcpSocket* pSocket : m_pServer->findChildren<QTcpSocket*>())
        {
            pSocket->write(data);
        }
    }

    int m_nConnections = 0;

private:
    QScopedPointer<QTcpServer> m_pServer;
};

#ifdef Q_OS_LINUX

/// The socket of this process that is connected to a port; -1 without one.
int FindSocketTo(quint16 nPort)
{
    for (int nSocket = 3; nSocket < 1024; ++nSocket)
    {
        sockaddr_in address = {};
        socklen_t nLength = sizeof(address);
        if (::getpeername(nSocket, reinterpret_cast<sockaddr*>(&address), &nLength) == 0 &&
            address.sin_family == AF_INET && address.sin_port == qToBigEndian(nPort))
        {
            return nSocket;
        }
    }
    return -1;
}

int GetOption(int nSocket, int nLevel, int nOption)
{
    int nValue = -1;
    socklen_t nLength = sizeof(nValue);
    ::getsockopt(nSocket, nLevel, nOption, &nValue, &nLength);
    return nValue;
}

#endif

} // namespace

class tst_LoginManager : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qunsetenv("KV_ADDRESSES"); }

    void WithoutAServerNobodyIsTold();
    void AConnectionThatSucceedsIsNoNews();
    void LossAndReturn();
    void ToldFromAThreadOfItsOwn();
    void AServerThatIsNotThere();
    void ALateObserverIsToldOfTheLoss();
    void ALateObserverOfAConnectionIsToldNothing();
    void ARemovedObserverIsLeftAlone();
    void RemovingFromWithinANotification();
    void RemovingWaitsForANotificationThatIsUnderWay();
    void ObserversComeAndGoWhileTheServerDoes();
    void AConnectionThatTheServerDropsIsALoss();
    void AddingTwiceCountsOnce();
    void UnknownAndNullObserversAreHarmless();
    void WhatTheServerSaysIsIgnored();
    void AttemptsBecomeSeldom();
    void EndsWhileConnecting();
#ifndef Q_OS_WIN // names are given addresses by a preloaded library
    void EveryAddressOfAHostIsTried();
#endif
    void AHostThatIsUnknownIsALoss();
#ifdef Q_OS_LINUX // elsewhere the system does not tell what was set
    void AServerThatVanishesIsNoticedWithinHalfAMinute();
#endif
};

void tst_LoginManager::WithoutAServerNobodyIsTold()
{
    LoginManager manager;
    CObserver observer;
    manager.AddObserver(&observer);
    QTest::qWait(50);
    QCOMPARE(observer.States(), QStringList());
    manager.RemoveObserver(&observer);
}

void tst_LoginManager::AConnectionThatSucceedsIsNoNews()
{
    CServer server;
    QVERIFY(server.Open());
    LoginManager manager("127.0.0.1", server.Port(), g_fast);
    CObserver observer;
    manager.AddObserver(&observer);
    QTRY_COMPARE(server.m_nConnections, 1);
    QTest::qWait(50);
    QCOMPARE(observer.States(), QStringList());
    manager.RemoveObserver(&observer);
}

void tst_LoginManager::LossAndReturn()
{
    CServer server;
    QVERIFY(server.Open());
    const quint16 nPort = server.Port();
    LoginManager manager("127.0.0.1", nPort, g_fast);
    CObserver observer;
    manager.AddObserver(&observer);
    QTRY_COMPARE(server.m_nConnections, 1);
    for (int n = 1; n <= 2; ++n)
    {
        server.Close();
        QTRY_COMPARE(observer.States().size(), 2 * n - 1);
        QCOMPARE(observer.States().last(), QString("3/0"));
        QTest::qWait(60); // further attempts that fail are no news
        QCOMPARE(observer.States().size(), 2 * n - 1);
        QVERIFY(server.Open(nPort));
        QTRY_COMPARE(observer.States().size(), 2 * n);
        QCOMPARE(observer.States().last(), QString("2/0"));
    }
    manager.RemoveObserver(&observer);
}

void tst_LoginManager::ToldFromAThreadOfItsOwn()
{
    CServer server;
    QVERIFY(server.Open());
    LoginManager manager("127.0.0.1", server.Port(), g_fast);
    CObserver observer;
    manager.AddObserver(&observer);
    QTRY_COMPARE(server.m_nConnections, 1);
    server.Close();
    QTRY_COMPARE(observer.States().size(), 1);
    QVERIFY(observer.Thread() != QThread::currentThread());
    manager.RemoveObserver(&observer);
}

void tst_LoginManager::AServerThatIsNotThere()
{
    CServer server;
    QVERIFY(server.Open());
    const quint16 nPort = server.Port();
    server.Close();
    LoginManager manager("127.0.0.1", nPort, g_fast);
    CObserver observer;
    manager.AddObserver(&observer);
    QTRY_COMPARE(observer.States(), QStringList{"3/0"});
    QVERIFY(server.Open(nPort));
    QTRY_COMPARE(observer.States(), (QStringList{"3/0", "2/0"}));
    manager.RemoveObserver(&observer);
}

void tst_LoginManager::ALateObserverIsToldOfTheLoss()
{
    CServer server;
    QVERIFY(server.Open());
    const quint16 nPort = server.Port();
    server.Close();
    LoginManager manager("127.0.0.1", nPort, g_fast);
    CObserver first;
    manager.AddObserver(&first);
    QTRY_COMPARE(first.States().size(), 1);
    CObserver late;
    manager.AddObserver(&late);
    QTRY_COMPARE(late.States(), QStringList{"3/0"});
    QVERIFY(late.Thread() != QThread::currentThread());
    QTest::qWait(50);
    QCOMPARE(first.States().size(), 1);
    QCOMPARE(late.States().size(), 1);
    manager.RemoveObserver(&first);
    manager.RemoveObserver(&late);
}

void tst_LoginManager::ALateObserverOfAConnectionIsToldNothing()
{
    CServer server;
    QVERIFY(server.Open());
    LoginManager manager("127.0.0.1", server.Port(), g_fast);
    QTRY_COMPARE(server.m_nConnections, 1);
    QTest::qWait(30);
    CObserver observer;
    manager.AddObserver(&observer);
    QTest::qWait(50);
    QCOMPARE(observer.States(), QStringList());
    manager.RemoveObserver(&observer);
}

void tst_LoginManager::ARemovedObserverIsLeftAlone()
{
    CServer server;
    QVERIFY(server.Open());
    LoginManager manager("127.0.0.1", server.Port(), g_fast);
    CObserver removed;
    CObserver stays;
    manager.AddObserver(&removed);
    manager.AddObserver(&stays);
    QTRY_COMPARE(server.m_nConnections, 1);
    manager.RemoveObserver(&removed);
    server.Close();
    QTRY_COMPARE(stays.States().size(), 1);
    QCOMPARE(removed.States(), QStringList());
    manager.RemoveObserver(&stays);
}

void tst_LoginManager::RemovingFromWithinANotification()
{
    class CLeaver : public CObserver
    {
    public:
        void NotifyLoginState(const Param& param) override
        {
            CObserver::NotifyLoginState(param);
            m_pManager->RemoveObserver(this);
            m_pManager->RemoveObserver(m_pOther);
        }
        LoginManager* m_pManager = nullptr;
        ILoginManagerObserver* m_pOther = nullptr;
    };
    CServer server;
    QVERIFY(server.Open());
    LoginManager manager("127.0.0.1", server.Port(), g_fast);
    CObserver other;
    CLeaver leaver;
    leaver.m_pManager = &manager;
    leaver.m_pOther = &other;
    manager.AddObserver(&leaver);
    manager.AddObserver(&other);
    QTRY_COMPARE(server.m_nConnections, 1);
    const quint16 nPort = server.Port();
    server.Close();
    QTRY_COMPARE(leaver.States().size(), 1);
    QVERIFY(server.Open(nPort));
    QTRY_VERIFY(server.m_nConnections > 1);
    QTest::qWait(30);
    QCOMPARE(leaver.States().size(), 1);
    QCOMPARE(other.States(), QStringList());
}

void tst_LoginManager::RemovingWaitsForANotificationThatIsUnderWay()
{
    class CSlow : public ILoginManagerObserver
    {
    public:
        void NotifyLoginState(const Param& /*param*/) override
        {
            m_entered.release();
            QThread::msleep(200);
            m_bLeft = true;
        }
        QSemaphore m_entered;
        std::atomic<bool> m_bLeft{false};
    };
    CServer server;
    QVERIFY(server.Open());
    LoginManager manager("127.0.0.1", server.Port(), g_fast);
    CSlow observer;
    manager.AddObserver(&observer);
    QTRY_COMPARE(server.m_nConnections, 1);
    server.Close();
    QVERIFY(observer.m_entered.tryAcquire(1, 5000));
    manager.RemoveObserver(&observer);
    QVERIFY(observer.m_bLeft);
}

void tst_LoginManager::ObserversComeAndGoWhileTheServerDoes()
{
    CServer server;
    QVERIFY(server.Open());
    const quint16 nPort = server.Port();
    LoginManager manager("127.0.0.1", nPort, g_fast);
    std::atomic<bool> bStop{false};
    std::atomic<int> nRounds{0};
    std::array<std::thread, 2> arrThreads;
    for (std::thread& thread : arrThreads)
    {
        thread = std::thread([&] {
            while (!bStop)
            {
                CObserver observer;
                manager.AddObserver(&observer);
                std::this_thread::yield();
                manager.RemoveObserver(&observer);
                ++nRounds;
            }
        });
    }
    bool bOpened = true;
    for (int n = 0; n < 5; ++n)
    {
        QTest::qWait(20);
        server.Close();
        QTest::qWait(20);
        bOpened = server.Open(nPort) && bOpened;
    }
    bStop = true;
    for (std::thread& thread : arrThreads)
    {
        thread.join();
    }
    QVERIFY(bOpened);
    QVERIFY(nRounds > 10);
    // None of them is left behind: whoever comes now hears of the next loss.
    CObserver last;
    manager.AddObserver(&last);
    QTRY_VERIFY(server.HasConnection()); // else there is nothing to lose yet
    server.Close();
    QTRY_COMPARE(last.States().isEmpty() ? QString() : last.States().last(), QString("3/0"));
    manager.RemoveObserver(&last);
}

void tst_LoginManager::AConnectionThatTheServerDropsIsALoss()
{
    QTcpServer server; // keeps listening
    QPointer<QTcpSocket> pSocket;
    connect(&server, &QTcpServer::newConnection, this, [&] { pSocket = server.nextPendingConnection(); });
    QVERIFY(server.listen(QHostAddress::LocalHost));
    LoginManager manager("127.0.0.1", server.serverPort(), g_fast);
    CObserver observer;
    manager.AddObserver(&observer);
    QTRY_VERIFY(pSocket);
    delete pSocket;
    QTRY_COMPARE(observer.States(), (QStringList{"3/0", "2/0"}));
    manager.RemoveObserver(&observer);
}

void tst_LoginManager::AddingTwiceCountsOnce()
{
    CServer server;
    QVERIFY(server.Open());
    LoginManager manager("127.0.0.1", server.Port(), g_fast);
    CObserver observer;
    manager.AddObserver(&observer);
    manager.AddObserver(&observer);
    QTRY_COMPARE(server.m_nConnections, 1);
    server.Close();
    QTRY_COMPARE(observer.States().size(), 1);
    QTest::qWait(30);
    QCOMPARE(observer.States().size(), 1);
    manager.RemoveObserver(&observer);
}

void tst_LoginManager::UnknownAndNullObserversAreHarmless()
{
    LoginManager manager;
    CObserver observer;
    manager.AddObserver(nullptr);
    manager.RemoveObserver(nullptr);
    manager.RemoveObserver(&observer);
    QCOMPARE(observer.States(), QStringList());
}

void tst_LoginManager::WhatTheServerSaysIsIgnored()
{
    CServer server;
    QVERIFY(server.Open());
    LoginManager manager("127.0.0.1", server.Port(), g_fast);
    CObserver observer;
    manager.AddObserver(&observer);
    QTRY_COMPARE(server.m_nConnections, 1);
    server.SendToAll(QByteArray(100000, 'x'));
    QTest::qWait(50);
    QCOMPARE(observer.States(), QStringList());
    server.Close();
    QTRY_COMPARE(observer.States(), QStringList{"3/0"});
    manager.RemoveObserver(&observer);
}

void tst_LoginManager::AttemptsBecomeSeldom()
{
    QTcpServer closed;
    QVERIFY(closed.listen(QHostAddress::LocalHost));
    const quint16 nPort = closed.serverPort();
    closed.close();
    const LoginManager manager("127.0.0.1", nPort, LoginManager::BackOff{200, 60000});
    QTest::qWait(2000); // attempts at 0, 200, 600, 1400, 3000
    int nConnections = 0;
    QTcpServer server;
    connect(&server, &QTcpServer::newConnection, this, [&] { ++nConnections; });
    QVERIFY(server.listen(QHostAddress::LocalHost, nPort));
    QElapsedTimer timer;
    timer.start();
    QTRY_COMPARE(nConnections, 1);
    QVERIFY2(timer.elapsed() > 100, "the next attempt is not due for a while");
}

void tst_LoginManager::EndsWhileConnecting()
{
    QElapsedTimer timer;
    timer.start();
    for (int n = 0; n < 20; ++n)
    {
        const LoginManager manager("127.0.0.1", 1, g_fast);
    }
    QVERIFY(timer.elapsed() < 5000);
}

#ifndef Q_OS_WIN

void tst_LoginManager::EveryAddressOfAHostIsTried()
{
    CServer server; // listens at the second one
    QVERIFY(server.Open());
    qputenv("KV_ADDRESSES", "127.0.0.2 127.0.0.1");
    LoginManager manager("server.example", server.Port(), g_fast);
    CObserver observer;
    manager.AddObserver(&observer);
    QTRY_COMPARE(server.m_nConnections, 1);
    QTest::qWait(50);
    QCOMPARE(observer.States(), QStringList());
    server.Close();
    QTRY_COMPARE(observer.States(), QStringList{"3/0"});
    manager.RemoveObserver(&observer);
}

#endif

void tst_LoginManager::AHostThatIsUnknownIsALoss()
{
    qputenv("KV_ADDRESSES", "");
    LoginManager manager("server.example", 80, g_fast);
    CObserver observer;
    manager.AddObserver(&observer);
    QTRY_COMPARE(observer.States(), QStringList{"3/0"});
    manager.RemoveObserver(&observer);
}

#ifdef Q_OS_LINUX

void tst_LoginManager::AServerThatVanishesIsNoticedWithinHalfAMinute()
{
    CServer server;
    QVERIFY(server.Open());
    const LoginManager manager("127.0.0.1", server.Port(), g_fast);
    QTRY_COMPARE(server.m_nConnections, 1);
    const int nSocket = FindSocketTo(server.Port());
    QVERIFY(nSocket > 0);
    QTRY_COMPARE(GetOption(nSocket, SOL_SOCKET, SO_KEEPALIVE), 1);
    const auto time = [nSocket] {
        return GetOption(nSocket, IPPROTO_TCP, TCP_KEEPIDLE) +
               GetOption(nSocket, IPPROTO_TCP, TCP_KEEPINTVL) * GetOption(nSocket, IPPROTO_TCP, TCP_KEEPCNT);
    };
    QTRY_VERIFY2(time() < 30, qPrintable(QString::number(time())));
}

#endif

QTEST_GUILESS_MAIN(tst_LoginManager)

#include "tst_LoginManager.moc"
