// A settings document that is read and written gives the same settings, and the same bytes from then on.

#include "Fuzz.h"

#include <client/store/SettingsDocument.h>

using LocalConfigClient::SettingsDocument;

int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    SettingsDocument first;
    QString strError;
    if (first.Parse(Bytes(pData, nSize), &strError) != SettingsDocument::Good)
    {
        DEMAND(!strError.isEmpty());
        DEMAND(first.GetSettings() == LocalConfigClient::Settings());
        return 0;
    }
    const LocalConfigClient::MissingRights missing = first.GetMissingRights();
    const QByteArray written = first.Serialize();
    SettingsDocument second;
    DEMAND(second.Parse(written) == SettingsDocument::Good);
    DEMAND(second.GetSettings() == first.GetSettings());
    DEMAND(second.GetMissingRights().setRights == missing.setRights);
    DEMAND(second.GetMissingRights().bAll == missing.bAll);
    DEMAND(second.Serialize() == written);

    SettingsDocument other;
    other.TakeUnknownKeys(first);
    DEMAND(other.GetSettings() == LocalConfigClient::Settings());
    other.Serialize();
    return 0;
}
