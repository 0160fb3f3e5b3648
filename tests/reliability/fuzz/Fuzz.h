#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// The entry point of libFuzzer: it is called with one input after the other.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);

/// The input as it is; it must outlive the result.
inline QByteArray Bytes(const std::uint8_t* pData, std::size_t nSize)
{
    return QByteArray::fromRawData(reinterpret_cast<const char*>(pData), int(nSize));
}

/// Ends the run, with the input kept, where something that holds for every input does not.
#define DEMAND(condition)                                                                                              \
    if (!(condition))                                                                                                  \
    {                                                                                                                  \
        std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition);                            \
        std::abort();                                                                                                  \
    }
