#pragma once

#include <LocalConfig/interfaces/IAlarmSection.h>

#include <QString>

namespace UICommonMdl
{
class CAlarmType;
}

namespace LocalConfigClient
{

/// The file to play for an alarm type, as an absolute path; empty when none is known.
QString GetSoundFile(const UICommonMdl::CAlarmType& catalogue, const LocalConfigLogical::AlarmConfigInfo& record,
                     int nAlarmType);

/// Puts the client's own sounds where they are looked for: "Sound" in the working folder. Files that are there stay,
/// but for those that are only the beginning of what they should be.
/// \return false when a file could not be written
bool ProvideSounds();

} // namespace LocalConfigClient
