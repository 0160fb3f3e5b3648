#include "KeepAlive.h"

#include <winsock2.h>

#include <mstcpip.h>

namespace LocalConfigClient
{

void KeepAlive(qintptr nSocket)
{
    constexpr ULONG nSystemProbes = 10; // that system's own, which no option changes
    constexpr ULONG nMilliseconds = 1000;
    tcp_keepalive values = {};
    values.onoff = 1;
    values.keepalivetime = g_nKeepAliveIdle * nMilliseconds;
    values.keepaliveinterval = g_nKeepAliveInterval * g_nKeepAliveProbes * nMilliseconds / nSystemProbes;
    DWORD nReturned = 0;
    ::WSAIoctl(SOCKET(nSocket), SIO_KEEPALIVE_VALS, &values, sizeof(values), nullptr, 0, &nReturned, nullptr, nullptr);
}

} // namespace LocalConfigClient
