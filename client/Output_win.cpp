#include "Output.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>

namespace LocalConfigClient
{

bool Print(const QByteArray& content)
{
    std::fflush(stdout);
    ::_setmode(::_fileno(stdout), _O_BINARY); // else every line feed becomes two characters
    const std::size_t nSize = std::size_t(content.size());
    return std::fwrite(content.constData(), 1, nSize, stdout) == nSize && std::fflush(stdout) == 0;
}

} // namespace LocalConfigClient
