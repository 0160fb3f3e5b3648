#include "CWaveFile.h"

#include "CAtomicFile.h"
#include "CErrorCode.h"

#include <QFileInfo>
#include <QtEndian>

namespace UICommonMdl
{

namespace
{

constexpr qint64 g_nMaxFileSize = qint64(64) * 1024 * 1024; // six minutes of a compact disc

constexpr int g_nFileHeader = 12;
constexpr int g_nChunkHeader = 8;
constexpr quint32 g_nMinFormat = 16;
constexpr int g_nUncompressed = 1;
constexpr int g_nMaxChannels = 8;
constexpr quint32 g_nMaxRate = 192000; // hertz

template <class Number>
Number ReadNumber(const QByteArray& content, int nPosition)
{
    return qFromLittleEndian<Number>(content.constData() + nPosition);
}

bool IsPlayableFormat(const QByteArray& content, int nPosition)
{
    const int nChannels = ReadNumber<quint16>(content, nPosition + 2);
    const auto nRate = ReadNumber<quint32>(content, nPosition + 4);
    const int nBits = ReadNumber<quint16>(content, nPosition + 14);
    return ReadNumber<quint16>(content, nPosition) == g_nUncompressed && nChannels >= 1 &&
           nChannels <= g_nMaxChannels && nRate >= 1 && nRate <= g_nMaxRate &&
           (nBits == 8 || nBits == 16 || nBits == 32);
}

} // namespace

bool CWaveFile::IsPlayableFile(const QString& strFile)
{
    QByteArray content;
    return QFileInfo(strFile).size() <= g_nMaxFileSize && CAtomicFile::Read(strFile, content) == CErrorCode::Success &&
           IsPlayable(content);
}

bool CWaveFile::IsPlayable(const QByteArray& content)
{
    if (content.size() < g_nFileHeader || !content.startsWith("RIFF") || content.mid(8, 4) != "WAVE")
    {
        return false;
    }
    bool bFormat = false;
    int nChunk = g_nFileHeader;
    while (content.size() - nChunk >= g_nChunkHeader)
    {
        const QByteArray name = content.mid(nChunk, 4);
        const auto nSize = ReadNumber<quint32>(content, nChunk + 4);
        const int nStart = nChunk + g_nChunkHeader;
        const auto nRest = quint32(content.size() - nStart);
        if (nSize > nRest)
        {
            return false;
        }
        if (bFormat && name == "data")
        {
            return nRest > 0; // samples of size 0 reach to the end, for the writer did not know it
        }
        if (!bFormat && name == "fmt ")
        {
            if (nSize < g_nMinFormat || !IsPlayableFormat(content, nStart))
            {
                return false;
            }
            bFormat = true;
        }
        if (nSize % 2 != 0)
        {
            return false; // the byte that fills it up would be read as the beginning of the next chunk
        }
        nChunk = nStart + int(nSize);
    }
    return false;
}

} // namespace UICommonMdl
