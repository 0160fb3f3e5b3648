#include "KeepAlive.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

namespace LocalConfigClient
{

void KeepAlive(qintptr nSocket)
{
    const auto set = [nSocket](int nLevel, int nOption, int nValue) {
        ::setsockopt(int(nSocket), nLevel, nOption, &nValue, sizeof(nValue));
    };
    set(SOL_SOCKET, SO_KEEPALIVE, 1);
    set(IPPROTO_TCP, TCP_KEEPIDLE, g_nKeepAliveIdle);
    set(IPPROTO_TCP, TCP_KEEPINTVL, g_nKeepAliveInterval);
    set(IPPROTO_TCP, TCP_KEEPCNT, g_nKeepAliveProbes);
}

} // namespace LocalConfigClient
