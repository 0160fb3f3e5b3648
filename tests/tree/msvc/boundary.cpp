// Calls every operation of the boundary once, in functions that are named after its position; and lays out every
// record.

#include <LocalConfig/interfaces/IAlarmSection.h>
#include <LocalConfig/interfaces/IBasicSection.h>
#include <LocalConfig/interfaces/ILocalConfig.h>
#include <LocalConfig/interfaces/IPlaybackSection.h>
#include <LocalConfig/interfaces/IRecordSection.h>
#include <LocalConfig/interfaces/ISecuritySection.h>
#include <LocalConfig/interfaces/IShortcutKeySection.h>
#include <LocalConfig/interfaces/ISnapshotSection.h>
#include <LocalConfig/interfaces/ITvWallSection.h>
#include <LocalConfig/interfaces/IUserManager.h>
#include <LocalConfig/interfaces/IVideoSection.h>

using namespace LocalConfigLogical;
using namespace UserLogical;

extern "C" {

void Slot2_GetSection(ILocalConfig& config)
{
    config.GetSection(SectionBasic);
}
void Slot5_SaveAll(ILocalConfig& config)
{
    config.SaveAll();
}

void Slot4_GetLoginManager(IUserManager& users)
{
    users.GetLoginManager();
}
void Slot22_GetUserRight(IUserManager& users)
{
    users.GetUserRight();
}
void Slot23_ReleaseUserRight(IUserManager& users)
{
    users.ReleaseUserRight(nullptr);
}
void Slot2_HasRight(IUserRight& right)
{
    right.HasRight(26);
}
void Slot34_AddObserver(ILoginManager& manager)
{
    manager.AddObserver(nullptr);
}
void Slot35_RemoveObserver(ILoginManager& manager)
{
    manager.RemoveObserver(nullptr);
}

void Slot3_BasicAutoRun(IBasicSection& section)
{
    section.SetAutoRunState(true);
}
void Slot4_BasicSet(IBasicSection& section, BasicConfigInfo& record)
{
    section.SetConfig(record);
}
void Slot5_BasicGet(IBasicSection& section, BasicConfigInfo& record)
{
    section.GetConfig(record);
}

void Slot3_AlarmSet(IAlarmSection& section, AlarmConfigInfo& record)
{
    section.SetConfig(record, true);
}
void Slot4_AlarmGet(IAlarmSection& section, AlarmConfigInfo& record)
{
    section.GetConfig(record);
}
void Slot5_AlarmReset(IAlarmSection& section)
{
    section.ResetConfig(true);
}
void Slot6_AlarmPrepare(IAlarmSection& section)
{
    section.PrepareSave();
}

void Slot3_VideoSet(IVideoSection& section, VideoConfigInfo& record)
{
    section.SetConfig(record);
}
void Slot4_VideoGet(IVideoSection& section, VideoConfigInfo& record)
{
    section.GetConfig(record);
}
void Slot3_PlaybackSet(IPlaybackSection& section, PlaybackConfigInfo& record)
{
    section.SetConfig(record);
}
void Slot4_PlaybackGet(IPlaybackSection& section, PlaybackConfigInfo& record)
{
    section.GetConfig(record);
}
void Slot3_SnapshotSet(ISnapshotSection& section, SnapshotConfigInfo& record)
{
    section.SetConfig(record);
}
void Slot4_SnapshotGet(ISnapshotSection& section, SnapshotConfigInfo& record)
{
    section.GetConfig(record);
}
void Slot3_RecordSet(IRecordSection& section, RecordConfigInfo& record)
{
    section.SetConfig(record);
}
void Slot4_RecordGet(IRecordSection& section, RecordConfigInfo& record)
{
    section.GetConfig(record);
}
void Slot3_ShortcutKeySet(IShortcutKeySection& section, ShortcutKeyConfigInfo& record)
{
    section.SetConfig(record);
}
void Slot4_ShortcutKeyGet(IShortcutKeySection& section, ShortcutKeyConfigInfo& record)
{
    section.GetConfig(record);
}
void Slot3_TvWallSet(ITvWallSection& section, TvWallConfigInfo& record)
{
    section.SetConfig(record);
}
void Slot4_TvWallGet(ITvWallSection& section, TvWallConfigInfo& record)
{
    section.GetConfig(record);
}
void Slot3_SecuritySet(ISecuritySection& section, SecurityConfigInfo& record)
{
    section.SetConfig(record);
}
void Slot4_SecurityGet(ISecuritySection& section, SecurityConfigInfo& record)
{
    section.GetConfig(record);
}

} // extern "C"

// What the headers cannot check everywhere, for the strings and maps of other libraries have other sizes.
static_assert(offsetof(AlarmConfigInfo, openVideoType) == 4 && offsetof(AlarmConfigInfo, flashCategories) == 8);
static_assert(offsetof(AlarmConfigInfo, alarmSounds) == 24 && sizeof(AlarmConfigInfo) == 40);
static_assert(offsetof(AlarmSoundInfo, defaultSound) == 8 && offsetof(AlarmSoundInfo, customSound) == 40);
static_assert(offsetof(AlarmSoundInfo, hostOwned4) == 72 && offsetof(AlarmSoundInfo, soundChanged) == 73);
