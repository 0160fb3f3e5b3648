#pragma once

#include <LocalConfig/interfaces/IConfigSection.h>

#include <cstdint>
#include <string>

namespace LocalConfigLogical
{

/// Snapshot settings. A default-constructed record holds the built-in defaults.
struct SnapshotConfigInfo
{
    bool reserved = false;            ///< the host's own, returned as it came
    std::int32_t imageFormat = 1;     ///< 0 BMP, otherwise JPEG
    std::int32_t continuousCount = 3; ///< pictures of one continuous snapshot, 2 to 10
    std::int32_t interval = 2;        ///< seconds between them, at least 1
    std::string picturePath;          ///< UTF-8, at most 180 bytes; empty: the client's own folder
    std::string hostString1;          ///< the host's own, returned as it came
    std::string hostString2;          ///< the host's own, returned as it came
    std::string hostString3;          ///< the host's own, returned as it came
    std::int32_t nameFormat = 3;      ///< index of the file-name pattern, 0 to 3
};

/// Section object of SectionSnapshot.
class ISnapshotSection : public IRecordExchange<SnapshotConfigInfo>
{
protected:
    ~ISnapshotSection() = default;
};

} // namespace LocalConfigLogical
