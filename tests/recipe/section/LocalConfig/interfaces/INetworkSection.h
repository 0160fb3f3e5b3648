#pragma once

#include <LocalConfig/interfaces/IConfigSection.h>

namespace LocalConfigLogical
{

/// The way to the platform server. A default-constructed record holds the built-in default.
struct NetworkConfigInfo
{
    bool useProxy = false; ///< connect through the system's proxy server
};

static_assert(sizeof(NetworkConfigInfo) == 1);

/// Section object of SectionNetwork.
class INetworkSection : public IRecordExchange<NetworkConfigInfo>
{
protected:
    ~INetworkSection() = default;
};

} // namespace LocalConfigLogical
