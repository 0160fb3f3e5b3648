#pragma once

#include <LocalConfig/interfaces/IConfigSection.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace LocalConfigLogical
{

/// The sound of one alarm type, or of a group of types that shares an entry.
struct AlarmSoundInfo
{
    std::int32_t alarmType = 0;  ///< id in the alarm catalogue
    std::string defaultSound;    ///< file name of the built-in sound
    std::string customSound;     ///< full path of a user-chosen WAV file; empty: none
    std::uint8_t hostOwned4 = 0; ///< the host's own, returned as it came
    bool soundChanged = false;   ///< set whenever the page changes the entry's sound, never cleared by it
};

/// Alarm notification settings. A default-constructed record holds the built-in defaults.
struct AlarmConfigInfo
{
    bool alarmSound = true;                             ///< play a sound when an alarm comes
    bool loopSound = false;                             ///< until the alarm is acknowledged
    bool mapFlash = true;                               ///< flash on the map what raised the alarm
    bool linkVideo = true;                              ///< open the linked video
    std::int32_t openVideoType = 0;                     ///< 0 as pop-up, otherwise in live view
    std::map<std::int32_t, bool> flashCategories;       ///< alarm category id: flash the map for it
    std::map<std::int32_t, AlarmSoundInfo> alarmSounds; ///< by alarm type id, or by the key that a group shares
};

/// Section object of SectionAlarm.
class IAlarmSection : public IConfigSection
{
public:
    /// Slot 3. Stores the record, for good (\a bPersist) or in the working copy only.
    /// \return 0 when stored; any other value refuses the save.
    virtual int SetConfig(const AlarmConfigInfo& record, bool bPersist) = 0;

    /// Slot 4. Overwrites \a record, which holds the defaults, with the current values.
    virtual void GetConfig(AlarmConfigInfo& record) = 0;

    /// Slot 5. Called just before the page reloads, with stored values or with defaults.
    virtual void ResetConfig(bool bUseDefaults) = 0;

    /// Slot 6. Called at the start of every save.
    virtual void PrepareSave() = 0;

protected:
    ~IAlarmSection() = default;
};

} // namespace LocalConfigLogical
