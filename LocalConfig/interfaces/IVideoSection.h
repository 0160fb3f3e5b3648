#pragma once

#include <LocalConfig/interfaces/IConfigSection.h>

#include <cstddef>
#include <cstdint>

namespace LocalConfigLogical
{

/// Live view settings. A default-constructed record holds the built-in defaults.
struct VideoConfigInfo
{
    std::int32_t nReserved0 = 1;               ///< the host's own, returned as it came
    bool bReserved1 = false;                   ///< the host's own, returned as it came
    std::int32_t nReserved2 = 1;               ///< the host's own, returned as it came
    bool bReserved3 = true;                    ///< the host's own, returned as it came
    std::int32_t nPlayMode = 3;                ///< 1 real-time, 2 fluency, 3 balance, 4 custom
    std::int32_t nVideoBufferTime = 1500;      ///< milliseconds, 0 to 1500; for play mode 4
    bool bDblClickMainStream = false;          ///< double click maximises and switches to the main stream
    bool bReserved4 = true;                    ///< the host's own, returned as it came
    bool bReserved5 = true;                    ///< the host's own, returned as it came
    std::int32_t nDecodeMode = 0;              ///< 2 hardware decoding, 0 software decoding
    std::int32_t nDefaultSplit = 4;            ///< 1, 4, 6, 8, 9, 13, 16, 20, 25 or 36 windows
    std::int32_t nSubStreamSplitThreshold = 9; ///< above this many windows sub streams are opened
    std::int32_t nInstantPlaybackTime = 30;    ///< seconds, or in nInstantTimeUnit when bInstantCustom is set
    bool bInstantCustom = false;               ///< the length is a custom one
    std::int32_t nInstantTimeUnit = 2;         ///< unit of a custom length: 0 hour, 1 minute, 2 second
    bool bProcessDecode = true;                ///< mirrored to Localcfg.ini on every save
    bool bGpuDecodeSupported = true;           ///< hardware decoding is available on this machine
    std::int32_t nSilentTime = 0;              ///< minutes without activity after which videos close, 1 to 30; 0 never
    std::int32_t nCpuPromptThreshold = 80;     ///< CPU usage in percent at which the user is warned
    std::int32_t nDisplayScale = 1;            ///< 0 original scale, 1 full screen
};

static_assert(offsetof(VideoConfigInfo, nPlayMode) == 16);
static_assert(offsetof(VideoConfigInfo, bDblClickMainStream) == 24);
static_assert(offsetof(VideoConfigInfo, nDecodeMode) == 28);
static_assert(offsetof(VideoConfigInfo, bInstantCustom) == 44);
static_assert(offsetof(VideoConfigInfo, nInstantTimeUnit) == 48);
static_assert(offsetof(VideoConfigInfo, bGpuDecodeSupported) == 53);
static_assert(offsetof(VideoConfigInfo, nSilentTime) == 56);
static_assert(sizeof(VideoConfigInfo) == 68);

/// Section object of SectionVideo.
class IVideoSection : public IRecordExchange<VideoConfigInfo>
{
protected:
    ~IVideoSection() = default;
};

} // namespace LocalConfigLogical
