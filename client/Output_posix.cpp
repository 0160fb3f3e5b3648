#include "Output.h"

#include <cstdio>

namespace LocalConfigClient
{

bool Print(const QByteArray& content)
{
    const std::size_t nSize = std::size_t(content.size());
    return std::fwrite(content.constData(), 1, nSize, stdout) == nSize && std::fflush(stdout) == 0;
}

} // namespace LocalConfigClient
