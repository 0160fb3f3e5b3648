#pragma once

#include <optional>

class QByteArray;
class QString;

namespace LocalConfig
{

/// Whether a file "Config.xml" forces the alarm sound on or off: the first element EnableAlarmSound under the root
/// AlarmLink, as a number.
/// \return nothing where the file is missing, cannot be read or understood, or does not say
std::optional<bool> ReadForcedAlarmSound(const QString& strFile);

/// Likewise, for what stands in such a file.
std::optional<bool> ParseForcedAlarmSound(const QByteArray& content);

} // namespace LocalConfig
