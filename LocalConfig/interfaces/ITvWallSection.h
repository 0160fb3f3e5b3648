#pragma once

#include <LocalConfig/interfaces/IConfigSection.h>

#include <cstddef>
#include <cstdint>

namespace LocalConfigLogical
{

/// Video wall settings. A default-constructed record holds the built-in defaults.
struct TvWallConfigInfo
{
    std::int32_t nSubStreamSplitThreshold = 9; ///< above this many windows sub streams are opened
    std::int32_t nBindMode = 1;                ///< 1 tour, 2 tile, 3 inquiry
    bool bDblClickMainStream = false;          ///< double click maximises and switches to the main stream
    std::int32_t nDefaultStreamType = 1;       ///< 1 main stream, 2 sub stream 1, 3 sub stream 2, 5 local signal
    std::int32_t nStayTime = 15;               ///< tour stay time in seconds, 15 to 65535
};

static_assert(offsetof(TvWallConfigInfo, nBindMode) == 4);
static_assert(offsetof(TvWallConfigInfo, bDblClickMainStream) == 8);
static_assert(offsetof(TvWallConfigInfo, nDefaultStreamType) == 12);
static_assert(offsetof(TvWallConfigInfo, nStayTime) == 16);
static_assert(sizeof(TvWallConfigInfo) == 20);

/// Section object of SectionTvWall.
class ITvWallSection : public IRecordExchange<TvWallConfigInfo>
{
protected:
    ~ITvWallSection() = default;
};

} // namespace LocalConfigLogical
