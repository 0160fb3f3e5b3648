#include "AlarmSounds.h"

#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CGlobalInfo.h>

#include <QDir>
#include <QFile>

using LocalConfigLogical::AlarmConfigInfo;
using LocalConfigLogical::AlarmSoundInfo;
using UICommonMdl::CAlarmType;
using UICommonMdl::CGlobalInfo;

namespace LocalConfigClient
{

namespace
{

constexpr char g_szSounds[] = "Sound";

// Alarm categories that have no place on the map.
constexpr int g_nSystem = 1;
constexpr int g_nService = 6;

bool HasKeyOfItsOwn(int nFaceType)
{
    return nFaceType == 967 || nFaceType == 17020 || nFaceType == 17029;
}

} // namespace

int GetSoundKey(const CAlarmType& catalogue, int nAlarmType)
{
    constexpr int nFaceGroup = 104;
    constexpr int nPlateGroup = 105;
    const int nGroup = catalogue.GetGroupInfoByAlarmId(nAlarmType).nGroupId;
    if (nGroup == nFaceGroup && !HasKeyOfItsOwn(nAlarmType))
    {
        return 200000;
    }
    if (nGroup == nPlateGroup)
    {
        return 100000;
    }
    return nAlarmType >= 3101 && nAlarmType <= 3130 ? 2 : nAlarmType;
}

void SeedAlarms(const CAlarmType& catalogue, AlarmConfigInfo& record)
{
    for (int nCategory : catalogue.GetCategoryIds())
    {
        record.flashCategories.emplace(nCategory, nCategory != g_nSystem && nCategory != g_nService);
    }
    for (int nIndex = 0; nIndex < catalogue.GetAlarmTypeCount(); ++nIndex)
    {
        const int nType = catalogue.GetAlarmTypeIdByIndex(nIndex);
        AlarmSoundInfo sound;
        sound.alarmType = nType;
        sound.defaultSound = catalogue.GetDefaultSoundByAlarmId(nType).toStdString();
        record.alarmSounds.emplace(GetSoundKey(catalogue, nType), sound);
    }
}

QString GetSoundFile(const CAlarmType& catalogue, const AlarmConfigInfo& record, int nAlarmType)
{
    const auto sound = record.alarmSounds.find(GetSoundKey(catalogue, nAlarmType));
    if (sound == record.alarmSounds.end())
    {
        return QString();
    }
    const QString strCustom = QString::fromStdString(sound->second.customSound);
    return QDir::current().absoluteFilePath(
        strCustom.isEmpty() ? QStringLiteral("%1/sound_%2/%3")
                                  .arg(QString::fromLatin1(g_szSounds), CGlobalInfo::GetClientStrLanguage(),
                                       QString::fromStdString(sound->second.defaultSound))
                            : strCustom);
}

bool ProvideSounds()
{
    bool bGood = true;
    const QDir source(QDir(CGlobalInfo::GetResourcePath()).filePath(QString::fromLatin1(g_szSounds)));
    const QDir target(QDir::current().filePath(QString::fromLatin1(g_szSounds)));
    for (const QString& strFolder : source.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
    {
        bGood = QDir().mkpath(target.filePath(strFolder)) && bGood;
        const QDir folder(source.filePath(strFolder));
        for (const QString& strFile : folder.entryList(QDir::Files))
        {
            const QString strTarget = QDir(target.filePath(strFolder)).filePath(strFile);
            bGood = (QFile::exists(strTarget) || QFile::copy(folder.filePath(strFile), strTarget)) && bGood;
        }
    }
    return bGood;
}

} // namespace LocalConfigClient
