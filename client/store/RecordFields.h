#pragma once

#include <LocalConfig/interfaces/IAlarmSection.h>
#include <LocalConfig/interfaces/IBasicSection.h>
#include <LocalConfig/interfaces/IPlaybackSection.h>
#include <LocalConfig/interfaces/IRecordSection.h>
#include <LocalConfig/interfaces/ISecuritySection.h>
#include <LocalConfig/interfaces/IShortcutKeySection.h>
#include <LocalConfig/interfaces/ISnapshotSection.h>
#include <LocalConfig/interfaces/ITvWallSection.h>
#include <LocalConfig/interfaces/IVideoSection.h>

#include <type_traits>

namespace LocalConfigClient
{

/// The nine records of the client.
struct Settings
{
    LocalConfigLogical::BasicConfigInfo basic;
    LocalConfigLogical::VideoConfigInfo video;
    LocalConfigLogical::PlaybackConfigInfo playback;
    LocalConfigLogical::SnapshotConfigInfo snapshot;
    LocalConfigLogical::RecordConfigInfo record;
    LocalConfigLogical::AlarmConfigInfo alarm;
    LocalConfigLogical::ShortcutKeyConfigInfo shortcutKey;
    LocalConfigLogical::TvWallConfigInfo tvWall;
    LocalConfigLogical::SecurityConfigInfo security;
};

struct NoFields
{};

/// The one list of each record's fields: reading, writing and comparing records all go through here. The names are the
/// keys of the settings document, and stand in its order: that of their characters.
template <class Record>
inline constexpr NoFields g_fieldsOf{};

#define FIELD(name) visit(#name, record.name)

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::BasicConfigInfo> = [](auto& record, auto& visit) {
    FIELD(adaptiveTalk);
    FIELD(autoLogin);
    FIELD(autoRun);
    FIELD(clientSize);
    FIELD(hostOwned1);
    FIELD(hostOwned10);
    FIELD(hostOwned12);
    FIELD(hostOwned14);
    FIELD(hostOwned15);
    FIELD(hostOwned17);
    FIELD(hostOwned18);
    FIELD(hostOwned19);
    FIELD(hostOwned2);
    FIELD(hostOwned20);
    FIELD(hostOwned22);
    FIELD(hostOwned25);
    FIELD(hostOwned28);
    FIELD(hostOwned3);
    FIELD(hostOwned5);
    FIELD(hostOwned6);
    FIELD(hostOwned7);
    FIELD(hostOwned9);
    FIELD(liveThumbnail);
    FIELD(restoreLiveView);
    FIELD(showDeviceNode);
    FIELD(showTimeZone);
    FIELD(skin);
    FIELD(timeSync);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::VideoConfigInfo> = [](auto& record, auto& visit) {
    FIELD(bDblClickMainStream);
    FIELD(bGpuDecodeSupported);
    FIELD(bInstantCustom);
    FIELD(bProcessDecode);
    FIELD(bReserved1);
    FIELD(bReserved3);
    FIELD(bReserved4);
    FIELD(bReserved5);
    FIELD(nCpuPromptThreshold);
    FIELD(nDecodeMode);
    FIELD(nDefaultSplit);
    FIELD(nDisplayScale);
    FIELD(nInstantPlaybackTime);
    FIELD(nInstantTimeUnit);
    FIELD(nPlayMode);
    FIELD(nReserved0);
    FIELD(nReserved2);
    FIELD(nSilentTime);
    FIELD(nSubStreamSplitThreshold);
    FIELD(nVideoBufferTime);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::PlaybackConfigInfo> = [](auto& record, auto& visit) {
    FIELD(bLargePicAdjustment);
    FIELD(bReserved0);
    FIELD(bReserved2);
    FIELD(nDevRecordStream);
    FIELD(nReserved1);
    FIELD(strReserved3);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::SnapshotConfigInfo> = [](auto& record, auto& visit) {
    FIELD(continuousCount);
    FIELD(hostString1);
    FIELD(hostString2);
    FIELD(hostString3);
    FIELD(imageFormat);
    FIELD(interval);
    FIELD(nameFormat);
    FIELD(picturePath);
    FIELD(reserved);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::RecordConfigInfo> = [](auto& record, auto& visit) {
    FIELD(hostOwned1);
    FIELD(hostOwned10);
    FIELD(hostOwned11);
    FIELD(hostOwned4);
    FIELD(hostOwned5);
    FIELD(hostOwned7);
    FIELD(hostOwned8);
    FIELD(hostOwned9);
    FIELD(maxFileSize);
    FIELD(nameFormat);
    FIELD(recordPath);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::AlarmConfigInfo> = [](auto& record, auto& visit) {
    FIELD(alarmSound);
    FIELD(alarmSounds);
    FIELD(flashCategories);
    FIELD(linkVideo);
    FIELD(loopSound);
    FIELD(mapFlash);
    FIELD(openVideoType);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::AlarmSoundInfo> = [](auto& record, auto& visit) {
    FIELD(alarmType);
    FIELD(customSound);
    FIELD(defaultSound);
    FIELD(hostOwned4);
    FIELD(soundChanged);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::ShortcutKeyConfigInfo> =
    [](auto& record, auto& visit) { FIELD(pcKeyboard); };

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::TvWallConfigInfo> = [](auto& record, auto& visit) {
    FIELD(bDblClickMainStream);
    FIELD(nBindMode);
    FIELD(nDefaultStreamType);
    FIELD(nStayTime);
    FIELD(nSubStreamSplitThreshold);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::SecurityConfigInfo> =
    [](auto& record, auto& visit) { FIELD(encryptTransmission); };

template <>
inline constexpr auto g_fieldsOf<Settings> = [](auto& record, auto& visit) {
    FIELD(alarm);
    FIELD(basic);
    FIELD(playback);
    FIELD(record);
    FIELD(security);
    FIELD(shortcutKey);
    FIELD(snapshot);
    FIELD(tvWall);
    FIELD(video);
};

#undef FIELD

/// Calls visit(name, field) for each field of a record.
template <class Record, class Visitor>
void VisitFields(Record& record, Visitor&& visit)
{
    constexpr auto& fields = g_fieldsOf<std::remove_const_t<Record>>;
    static_assert(!std::is_same_v<decltype(fields), const NoFields&>, "a record without a list of its fields");
    fields(record, visit);
}

} // namespace LocalConfigClient
