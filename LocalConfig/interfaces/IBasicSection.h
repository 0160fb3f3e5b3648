#pragma once

#include <LocalConfig/interfaces/IConfigSection.h>

#include <cstddef>
#include <cstdint>

namespace LocalConfigLogical
{

/// General client settings. A default-constructed record holds the built-in defaults.
struct BasicConfigInfo
{
    std::uint32_t hostOwned1 = 4;    ///< the host's own, returned as it came
    std::uint32_t hostOwned2 = 1000; ///< the host's own, returned as it came
    std::uint32_t hostOwned3 = 12;   ///< the host's own, returned as it came
    std::int32_t skin = 1;           ///< 1 dark, 2 white
    bool hostOwned5 = false;         ///< the host's own, returned as it came
    std::uint32_t hostOwned6 = 4;    ///< the host's own, returned as it came
    bool hostOwned7 = true;          ///< the host's own, returned as it came
    bool timeSync = false;           ///< time synchronisation with the platform server
    bool hostOwned9 = false;         ///< the host's own, returned as it came
    bool hostOwned10 = false;        ///< the host's own, returned as it came
    bool autoLogin = false;          ///< log in without asking
    bool hostOwned12 = false;        ///< the host's own, returned as it came
    bool adaptiveTalk = true;        ///< self-adaptive audio talk parameter
    bool hostOwned14 = false;        ///< the host's own, returned as it came
    std::uint32_t hostOwned15 = 0;   ///< the host's own, returned as it came
    bool autoRun = false;            ///< start the client with the operating system; the host writes the entry
    bool hostOwned17 = true;         ///< the host's own, returned as it came
    bool hostOwned18 = false;        ///< the host's own, returned as it came
    std::uint32_t hostOwned19 = 1;   ///< the host's own, returned as it came
    bool hostOwned20 = false;        ///< the host's own, returned as it came
    std::int32_t showDeviceNode = 1; ///< device node in the device tree: exactly 1 is on
    bool hostOwned22 = true;         ///< the host's own, returned as it came
    std::int32_t clientSize = 2;     ///< index into 1280*800, 1280*1024, 1440*900, 1680*1050
    bool restoreLiveView = false;    ///< display the previous live view after a restart
    bool hostOwned25 = false;        ///< the host's own, returned as it came
    bool liveThumbnail = true;       ///< thumbnails in live view
    bool showTimeZone = false;       ///< takes effect after a restart
    std::int32_t hostOwned28 = -1;   ///< the host's own, returned as it came
};

static_assert(offsetof(BasicConfigInfo, skin) == 12);
static_assert(offsetof(BasicConfigInfo, hostOwned5) == 16);
static_assert(offsetof(BasicConfigInfo, hostOwned6) == 20);
static_assert(offsetof(BasicConfigInfo, hostOwned7) == 24);
static_assert(offsetof(BasicConfigInfo, timeSync) == 25);
static_assert(offsetof(BasicConfigInfo, autoLogin) == 28);
static_assert(offsetof(BasicConfigInfo, adaptiveTalk) == 30);
static_assert(offsetof(BasicConfigInfo, hostOwned15) == 32);
static_assert(offsetof(BasicConfigInfo, autoRun) == 36);
static_assert(offsetof(BasicConfigInfo, hostOwned19) == 40);
static_assert(offsetof(BasicConfigInfo, showDeviceNode) == 48);
static_assert(offsetof(BasicConfigInfo, clientSize) == 56);
static_assert(offsetof(BasicConfigInfo, restoreLiveView) == 60);
static_assert(offsetof(BasicConfigInfo, showTimeZone) == 63);
static_assert(offsetof(BasicConfigInfo, hostOwned28) == 64);
static_assert(sizeof(BasicConfigInfo) == 68);

/// Section object of SectionBasic.
class IBasicSection : public IConfigSection
{
public:
    /// Slot 3. Told before each load of the page whether the system's auto-start entry names this client.
    virtual void SetAutoRunState(bool bAutoRun) = 0;

    /// Slot 4. Stores the record. \return 0 when stored; any other value refuses the save.
    virtual int SetConfig(const BasicConfigInfo& record) = 0;

    /// Slot 5. Overwrites \a record, which holds the defaults, with the current values.
    virtual void GetConfig(BasicConfigInfo& record) = 0;

protected:
    ~IBasicSection() = default;
};

} // namespace LocalConfigLogical
