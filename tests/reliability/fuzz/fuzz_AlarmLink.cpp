// Config.xml: only a document that names the switch forces anything.

#include "Fuzz.h"

#include <LocalConfig/pages/AlarmLink.h>

int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const QByteArray content = Bytes(pData, nSize);
    const bool bForced = LocalConfig::ParseForcedAlarmSound(content).has_value();
    // In which of the encodings that a document may have is open; the letters stand there in all of them.
    DEMAND(!bForced || (content.contains('E') && content.contains('S') && content.contains('<')));
    return 0;
}
