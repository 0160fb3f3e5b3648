#pragma once

#include <LocalConfig/interfaces/IConfigSection.h>

#include <cstdint>
#include <string>

namespace LocalConfigLogical
{

/// Record playback settings. A default-constructed record holds the built-in defaults.
struct PlaybackConfigInfo
{
    bool bReserved0 = false;           ///< the host's own, returned as it came
    std::int32_t nReserved1 = 15;      ///< the host's own, returned as it came
    bool bReserved2 = false;           ///< the host's own, returned as it came
    bool bLargePicAdjustment = false;  ///< high-definition picture adjustment
    std::string strReserved3;          ///< the host's own, returned as it came
    std::int32_t nDevRecordStream = 0; ///< 0 all, 1 main stream, 2 sub stream 1, 3 sub stream 2
};

/// Section object of SectionPlayback.
class IPlaybackSection : public IRecordExchange<PlaybackConfigInfo>
{
protected:
    ~IPlaybackSection() = default;
};

} // namespace LocalConfigLogical
