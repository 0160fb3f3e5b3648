#include "Filled.h"

#include <client/store/AlarmRecord.h>

#include <UICommonModule/CAlarmType.h>

#include <QFile>

#include <cstdio>
#include <cstdlib>

using LocalConfigClient::Settings;
using LocalConfigLogical::AlarmConfigInfo;
using LocalConfigLogical::AlarmSoundInfo;
using UICommonMdl::CAlarmType;

namespace
{

constexpr int g_nFirstType = 10000; // clear of the ids that share a sound
constexpr char g_szCatalogue[] = "types.xml";

void FillGeneral(Settings& settings)
{
    settings.basic.timeSync = true;
    settings.basic.autoLogin = true;
    settings.basic.adaptiveTalk = false;
    settings.basic.autoRun = true;
    settings.basic.showDeviceNode = 0;
    settings.basic.clientSize = 3;
    settings.basic.restoreLiveView = true;
    settings.basic.liveThumbnail = false;
    settings.basic.showTimeZone = true;
    settings.security.encryptTransmission = !settings.security.encryptTransmission;
    settings.shortcutKey.pcKeyboard = !settings.shortcutKey.pcKeyboard;
}

void FillVideo(Settings& settings)
{
    settings.video.nPlayMode = 4;
    settings.video.nVideoBufferTime = 700;
    settings.video.bDblClickMainStream = true;
    settings.video.nDecodeMode = 2;
    settings.video.nDefaultSplit = 16;
    settings.video.nSubStreamSplitThreshold = 25;
    settings.video.nInstantPlaybackTime = 90;
    settings.video.bInstantCustom = true;
    settings.video.nInstantTimeUnit = 1;
    settings.video.nSilentTime = 20;
    settings.video.nCpuPromptThreshold = 60;
    settings.video.nDisplayScale = 0;
    settings.playback.bLargePicAdjustment = true;
    settings.playback.nDevRecordStream = 2;
    settings.tvWall.nSubStreamSplitThreshold = 16;
    settings.tvWall.nBindMode = 2;
    settings.tvWall.bDblClickMainStream = true;
    settings.tvWall.nDefaultStreamType = 3;
    settings.tvWall.nStayTime = 300;
}

void FillStorage(Settings& settings)
{
    settings.snapshot.imageFormat = 0;
    settings.snapshot.continuousCount = 7;
    settings.snapshot.interval = 5;
    settings.snapshot.picturePath = "/srv/pictures/station 12";
    settings.snapshot.nameFormat = 1;
    settings.record.maxFileSize = 512;
    settings.record.recordPath = "/srv/recordings/station 12";
    settings.record.nameFormat = 2;
}

void FillAlarm(AlarmConfigInfo& alarm)
{
    alarm.loopSound = true;
    alarm.openVideoType = 1;
    for (auto& category : alarm.flashCategories)
    {
        category.second = category.first % 2 == 0;
    }
    for (auto& sound : alarm.alarmSounds)
    {
        sound.second.customSound = "/srv/sounds/alarm " + std::to_string(sound.first) + ".wav";
        sound.second.soundChanged = true;
    }
}

} // namespace

Settings FilledSettings()
{
    Settings settings;
    FillGeneral(settings);
    FillVideo(settings);
    FillStorage(settings);
    LocalConfigClient::SeedAlarms(*CAlarmType::Instance(), settings.alarm);
    FillAlarm(settings.alarm);
    return settings;
}

void MakeCatalogue(int nTypes, int nTypesPerCategory)
{
    QByteArray content = "<AlarmTypes>";
    for (int n = 0; n < nTypes; ++n)
    {
        const QByteArray category = QByteArray::number(100 + n / nTypesPerCategory);
        if (n % nTypesPerCategory == 0)
        {
            content += n == 0 ? "" : "</Group></Category>";
            content += "<Category id='" + category + "' name='Category " + category + "'><Group id='" + category +
                       "' name='Group' sound='alarm.wav'>";
        }
        const QByteArray type = QByteArray::number(g_nFirstType + n);
        content += "<Type id='" + type + "' name='Alarm type " + type + "'/>";
    }
    content += "</Group></Category></AlarmTypes>";
    const QString strFile = QString::fromLatin1(g_szCatalogue);
    QFile file(strFile);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush() ||
        CAlarmType::Instance()->Load(strFile) != 1)
    {
        std::fputs("bench-rows: the catalogue cannot be made\n", stderr);
        std::exit(2);
    }
}

Settings GrownSettings(int nSounds, int nCategories)
{
    Settings settings;
    FillGeneral(settings);
    FillVideo(settings);
    FillStorage(settings);
    for (int n = 0; n < nSounds; ++n)
    {
        AlarmSoundInfo& sound = settings.alarm.alarmSounds[g_nFirstType + n];
        sound.alarmType = g_nFirstType + n;
        sound.defaultSound = "alarm.wav";
    }
    for (int n = 0; n < nCategories; ++n)
    {
        settings.alarm.flashCategories[100 + n] = false;
    }
    FillAlarm(settings.alarm);
    return settings;
}
