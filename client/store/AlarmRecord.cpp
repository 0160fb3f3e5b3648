#include "AlarmRecord.h"

#include <UICommonModule/CAlarmType.h>

using LocalConfigLogical::AlarmConfigInfo;
using LocalConfigLogical::AlarmSoundInfo;
using UICommonMdl::CAlarmType;

namespace LocalConfigClient
{

namespace
{

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

} // namespace LocalConfigClient
