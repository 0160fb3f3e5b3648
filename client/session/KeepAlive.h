#pragma once

#include <QtGlobal>

namespace LocalConfigClient
{

/// How long a server may be silent that has vanished without closing the connection: after so many seconds it is
/// probed, so often and so many seconds apart, before the connection is given up.
constexpr int g_nKeepAliveIdle = 10;
constexpr int g_nKeepAliveInterval = 5;
constexpr int g_nKeepAliveProbes = 3;

/// Has the operating system probe a connection.
void KeepAlive(qintptr nSocket);

} // namespace LocalConfigClient
