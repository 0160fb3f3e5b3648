#include "HostLookup.h"

#include <QUrl>

#include <mutex>
#include <system_error>
#include <thread>

#ifdef Q_OS_WIN
#include <winsock2.h>
#include <ws2tcpip.h>
#else
#include <netdb.h>
#include <sys/socket.h>
#endif

namespace LocalConfigClient
{

namespace
{

QVector<QHostAddress> LookUp(const QByteArray& host)
{
    addrinfo hints = {};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* pFirst = nullptr;
    QVector<QHostAddress> listAddresses;
    if (::getaddrinfo(host.constData(), nullptr, &hints, &pFirst) != 0)
    {
        return listAddresses;
    }
    for (const addrinfo* pEntry = pFirst; pEntry; pEntry = pEntry->ai_next)
    {
        const QHostAddress address(pEntry->ai_addr);
        if (!address.isNull() && !listAddresses.contains(address))
        {
            listAddresses += address;
        }
    }
    ::freeaddrinfo(pFirst);
    return listAddresses;
}

} // namespace

struct HostLookup::SLink
{
    std::mutex mutex;
    HostLookup* pOwner; // null once nobody wants to know any more
};

HostLookup::HostLookup(QObject* pParent)
    : QObject(pParent)
    , m_pLink(std::make_shared<SLink>())
{
    m_pLink->pOwner = this;
}

HostLookup::~HostLookup()
{
    const std::lock_guard<std::mutex> locker(m_pLink->mutex);
    m_pLink->pOwner = nullptr;
}

void HostLookup::Start(const QString& strHost)
{
    if (m_bRunning)
    {
        return;
    }
    m_bRunning = true;
    const auto lookUp = [pLink = m_pLink, host = QUrl::toAce(strHost)] {
        const QVector<QHostAddress> listAddresses = LookUp(host);
        const std::lock_guard<std::mutex> locker(pLink->mutex);
        if (HostLookup* pOwner = pLink->pOwner)
        {
            QMetaObject::invokeMethod(
                pOwner, [pOwner, listAddresses] { pOwner->OnDone(listAddresses); }, Qt::QueuedConnection);
        }
    };
    try
    {
        // No QHostInfo: the end of the program waits for its threads.
        std::thread(lookUp).detach();
    }
    catch (const std::system_error&)
    {
        QMetaObject::invokeMethod(
            this, [this] { OnDone({}); }, Qt::QueuedConnection);
    }
}

void HostLookup::OnDone(const QVector<QHostAddress>& listAddresses)
{
    m_bRunning = false;
    emit SignalDone(listAddresses);
}

} // namespace LocalConfigClient
