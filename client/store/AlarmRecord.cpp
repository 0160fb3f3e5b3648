#include "AlarmRecord.h"

#include <UICommonModule/CAlarmType.h>

using LocalConfigLogical::AlarmConfigInfo;
using LocalConfigLogical::AlarmSoundInfo;
using UICommonMdl::CAlarmType;

namespace LocalConfigClient
{

namespace
{

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

bool HasPlaceOnMap(int nCategory)
{
    constexpr int nSystem = 1;
    constexpr int nService = 6;
    return nCategory != nSystem && nCategory != nService;
}

void SeedAlarms(const CAlarmType& catalogue, AlarmConfigInfo& record)
{
    for (int nCategory : catalogue.GetCategoryIds())
    {
        record.flashCategories.emplace(nCategory, HasPlaceOnMap(nCategory));
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
