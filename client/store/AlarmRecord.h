#pragma once

#include <LocalConfig/interfaces/IAlarmSection.h>

namespace UICommonMdl
{
class CAlarmType;
}

namespace LocalConfigClient
{

/// The key under which the sound of an alarm type is kept: most types have an entry of their own, some groups share
/// one.
int GetSoundKey(const UICommonMdl::CAlarmType& catalogue, int nAlarmType);

/// Whether alarms of this category can be shown on the map. The page offers no others for flashing.
bool HasPlaceOnMap(int nCategory);

/// Adds an entry for each category and each sound key of the catalogue that the record lacks; what it has stays.
void SeedAlarms(const UICommonMdl::CAlarmType& catalogue, LocalConfigLogical::AlarmConfigInfo& record);

} // namespace LocalConfigClient
