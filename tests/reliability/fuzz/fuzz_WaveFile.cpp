// WAV files: what is called playable is so for a reader that believes every size in it.

#include "Fuzz.h"

#include <UICommonModule/CWaveFile.h>

#include <QtEndian>

namespace
{

/// Skips chunks as the reader behind QSound does. Returns where the named one begins, -1 without it.
qint64 FindChunk(const QByteArray& content, qint64 nFrom, const char* pszName)
{
    qint64 nChunk = nFrom;
    while (nChunk + 8 <= content.size())
    {
        if (content.mid(int(nChunk), 4) == pszName)
        {
            return nChunk;
        }
        nChunk += 8 + qint64(qFromLittleEndian<quint32>(content.constData() + nChunk + 4));
    }
    return -1;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const QByteArray content = Bytes(pData, nSize);
    if (!UICommonMdl::CWaveFile::IsPlayable(content))
    {
        return 0;
    }
    const qint64 nFormat = FindChunk(content, 12, "fmt ");
    DEMAND(nFormat >= 0 && nFormat + 24 <= content.size());
    const auto nFormatSize = qFromLittleEndian<quint32>(content.constData() + nFormat + 4);
    DEMAND(nFormatSize >= 16);
    const qint64 nSamples = FindChunk(content, nFormat + 8 + nFormatSize, "data");
    DEMAND(nSamples >= 0);
    const auto nSamplesSize = qFromLittleEndian<quint32>(content.constData() + nSamples + 4);
    DEMAND(nSamples + 8 + qint64(nSamplesSize) <= content.size());
    DEMAND(nSamplesSize > 0 || nSamples + 8 < content.size());
    return 0;
}
