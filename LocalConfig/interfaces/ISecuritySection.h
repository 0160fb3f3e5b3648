#pragma once

#include <LocalConfig/interfaces/IConfigSection.h>

namespace LocalConfigLogical
{

/// Transmission security. A default-constructed record holds the built-in default.
struct SecurityConfigInfo
{
    bool encryptTransmission = false; ///< encrypt audio and video transmission; takes effect after a restart
};

static_assert(sizeof(SecurityConfigInfo) == 1);

/// Section object of SectionSecurity.
class ISecuritySection : public IRecordExchange<SecurityConfigInfo>
{
protected:
    ~ISecuritySection() = default;
};

} // namespace LocalConfigLogical
