#pragma once

#include <LocalConfig/interfaces/IConfigSection.h>

#include <cstdint>
#include <string>

namespace LocalConfigLogical
{

/// Local recording settings. A default-constructed record holds the built-in defaults.
struct RecordConfigInfo
{
    std::int32_t hostOwned1 = 30;    ///< the host's own, returned as it came
    std::int32_t maxFileSize = 1024; ///< megabytes, 10 to 1500
    std::string recordPath;          ///< UTF-8, at most 168 bytes; empty: the client's own folder
    std::int32_t hostOwned4 = 20;    ///< the host's own, returned as it came
    std::int32_t hostOwned5 = 0;     ///< the host's own, returned as it came
    std::int32_t nameFormat = 3;     ///< index of the file-name pattern, 0 to 3
    bool hostOwned7 = true;          ///< the host's own, returned as it came
    std::int32_t hostOwned8 = 12;    ///< the host's own, returned as it came
    std::int32_t hostOwned9 = 12;    ///< the host's own, returned as it came
    std::int32_t hostOwned10 = 6;    ///< the host's own, returned as it came
    std::int32_t hostOwned11 = 3;    ///< the host's own, returned as it came
};

/// Section object of SectionRecord.
class IRecordSection : public IRecordExchange<RecordConfigInfo>
{
protected:
    ~IRecordSection() = default;
};

} // namespace LocalConfigLogical
