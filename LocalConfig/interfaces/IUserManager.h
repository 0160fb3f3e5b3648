#pragma once

#include <LocalConfig/interfaces/ReservedSlots.h>

#include <cstdint>

namespace KvPluginAPI
{

/// Anything that can be registered as an observer. Not a slot interface: it has a virtual destructor.
class IObserver
{
public:
    IObserver() = default;
    IObserver(const IObserver&) = delete;
    IObserver& operator=(const IObserver&) = delete;
    virtual ~IObserver() = default;
};

} // namespace KvPluginAPI

namespace UserLogical
{

/// Hears changes of the login state. Every observer that is registered with an ILoginManager is one of these.
class ILoginManagerObserver : public KvPluginAPI::IObserver
{
public:
    /// Login state 2 with sub-state 0 means connected, 3 with any sub-state means disconnected; the dialog ignores
    /// every other value. A host may append members of its own.
    struct Param
    {
        std::int32_t nState = 0;    ///< 2 and 3 count
        std::int32_t nSubState = 0; ///< of state 2
    };

    /// May be called from any thread.
    virtual void NotifyLoginState(const Param& param) = 0;
};

/// Owned by the host.
class ILoginManager
{
public:
    LOCALCONFIG_RESERVED_SLOTS_5(0, 1, 2, 3, 4)
    LOCALCONFIG_RESERVED_SLOTS_5(5, 6, 7, 8, 9)
    LOCALCONFIG_RESERVED_SLOTS_10(1)
    LOCALCONFIG_RESERVED_SLOTS_10(2)
    LOCALCONFIG_RESERVED_SLOTS_4(30, 31, 32, 33)

    /// Slot 34. Registers an observer, which stays the caller's.
    virtual void AddObserver(KvPluginAPI::IObserver* pObserver) = 0;

    /// Slot 35. Takes an observer back. Once this has returned the observer is not called any more.
    virtual void RemoveObserver(KvPluginAPI::IObserver* pObserver) = 0;

protected:
    ~ILoginManager() = default;
};

/// The rights of the user who is logged in.
class IUserRight
{
public:
    LOCALCONFIG_RESERVED_SLOTS_2(0, 1)

    /// Slot 2. The module asks for 26 (video wall) and 45 (alarm settings).
    virtual bool HasRight(int nRight) = 0;

protected:
    ~IUserRight() = default;
};

/// The host's user manager.
class IUserManager
{
public:
    LOCALCONFIG_RESERVED_SLOTS_4(0, 1, 2, 3)

    /// Slot 4. The object that accepts login observers, owned by the host; null when there is none.
    virtual ILoginManager* GetLoginManager() = 0;

    LOCALCONFIG_RESERVED_SLOTS_5(5, 6, 7, 8, 9)
    LOCALCONFIG_RESERVED_SLOTS_10(1)
    LOCALCONFIG_RESERVED_SLOTS_2(20, 21)

    /// Slot 22. The rights of the user who is logged in, owned by the host; null counts as no right at all.
    virtual IUserRight* GetUserRight() = 0;

    /// Slot 23. Hands a rights object back. The dialog hands back the one it asks for when it creates the Alarm
    /// page, and keeps the one that Init asks for.
    virtual void ReleaseUserRight(IUserRight* pUserRight) = 0;

protected:
    ~IUserManager() = default;
};

} // namespace UserLogical
