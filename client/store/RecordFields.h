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
/// keys of the settings document.
template <class Record>
inline constexpr NoFields g_fieldsOf{};

#define FIELD(name) visit(#name, record.name)

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::BasicConfigInfo> = [](auto& record, auto& visit) {
    FIELD(hostOwned1);
    FIELD(hostOwned2);
    FIELD(hostOwned3);
    FIELD(skin);
    FIELD(hostOwned5);
    FIELD(hostOwned6);
    FIELD(hostOwned7);
    FIELD(timeSync);
    FIELD(hostOwned9);
    FIELD(hostOwned10);
    FIELD(autoLogin);
    FIELD(hostOwned12);
    FIELD(adaptiveTalk);
    FIELD(hostOwned14);
    FIELD(hostOwned15);
    FIELD(autoRun);
    FIELD(hostOwned17);
    FIELD(hostOwned18);
    FIELD(hostOwned19);
    FIELD(hostOwned20);
    FIELD(showDeviceNode);
    FIELD(hostOwned22);
    FIELD(clientSize);
    FIELD(restoreLiveView);
    FIELD(hostOwned25);
    FIELD(liveThumbnail);
    FIELD(showTimeZone);
    FIELD(hostOwned28);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::VideoConfigInfo> = [](auto& record, auto& visit) {
    FIELD(nReserved0);
    FIELD(bReserved1);
    FIELD(nReserved2);
    FIELD(bReserved3);
    FIELD(nPlayMode);
    FIELD(nVideoBufferTime);
    FIELD(bDblClickMainStream);
    FIELD(bReserved4);
    FIELD(bReserved5);
    FIELD(nDecodeMode);
    FIELD(nDefaultSplit);
    FIELD(nSubStreamSplitThreshold);
    FIELD(nInstantPlaybackTime);
    FIELD(bInstantCustom);
    FIELD(nInstantTimeUnit);
    FIELD(bProcessDecode);
    FIELD(bGpuDecodeSupported);
    FIELD(nSilentTime);
    FIELD(nCpuPromptThreshold);
    FIELD(nDisplayScale);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::PlaybackConfigInfo> = [](auto& record, auto& visit) {
    FIELD(bReserved0);
    FIELD(nReserved1);
    FIELD(bReserved2);
    FIELD(bLargePicAdjustment);
    FIELD(strReserved3);
    FIELD(nDevRecordStream);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::SnapshotConfigInfo> = [](auto& record, auto& visit) {
    FIELD(reserved);
    FIELD(imageFormat);
    FIELD(continuousCount);
    FIELD(interval);
    FIELD(picturePath);
    FIELD(hostString1);
    FIELD(hostString2);
    FIELD(hostString3);
    FIELD(nameFormat);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::RecordConfigInfo> = [](auto& record, auto& visit) {
    FIELD(hostOwned1);
    FIELD(maxFileSize);
    FIELD(recordPath);
    FIELD(hostOwned4);
    FIELD(hostOwned5);
    FIELD(nameFormat);
    FIELD(hostOwned7);
    FIELD(hostOwned8);
    FIELD(hostOwned9);
    FIELD(hostOwned10);
    FIELD(hostOwned11);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::AlarmConfigInfo> = [](auto& record, auto& visit) {
    FIELD(alarmSound);
    FIELD(loopSound);
    FIELD(mapFlash);
    FIELD(linkVideo);
    FIELD(openVideoType);
    FIELD(flashCategories);
    FIELD(alarmSounds);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::AlarmSoundInfo> = [](auto& record, auto& visit) {
    FIELD(alarmType);
    FIELD(defaultSound);
    FIELD(customSound);
    FIELD(hostOwned4);
    FIELD(soundChanged);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::ShortcutKeyConfigInfo> =
    [](auto& record, auto& visit) { FIELD(pcKeyboard); };

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::TvWallConfigInfo> = [](auto& record, auto& visit) {
    FIELD(nSubStreamSplitThreshold);
    FIELD(nBindMode);
    FIELD(bDblClickMainStream);
    FIELD(nDefaultStreamType);
    FIELD(nStayTime);
};

template <>
inline constexpr auto g_fieldsOf<LocalConfigLogical::SecurityConfigInfo> =
    [](auto& record, auto& visit) { FIELD(encryptTransmission); };

template <>
inline constexpr auto g_fieldsOf<Settings> = [](auto& record, auto& visit) {
    FIELD(basic);
    FIELD(video);
    FIELD(playback);
    FIELD(snapshot);
    FIELD(record);
    FIELD(alarm);
    FIELD(shortcutKey);
    FIELD(tvWall);
    FIELD(security);
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
