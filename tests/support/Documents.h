#pragma once

#include <client/store/SettingsDocument.h>

/// The document that keeps these settings.
inline QByteArray Document(const LocalConfigClient::Settings& settings)
{
    LocalConfigClient::SettingsDocument document;
    document.SetSettings(settings);
    return document.Serialize();
}
