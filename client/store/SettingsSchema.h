#pragma once

#include <QByteArray>

namespace LocalConfigClient
{

/// A JSON schema of the settings document, for tools that check documents before they are rolled out. It comes from the
/// list of fields that reads and writes documents, and takes what the client takes without a complaint. Only keys of
/// maps are looked at up to nine digits.
QByteArray GetSettingsSchema();

} // namespace LocalConfigClient
