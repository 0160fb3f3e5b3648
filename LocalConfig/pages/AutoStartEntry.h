#pragma once

#include <QString>

namespace LocalConfig
{

/// The command that the system runs for an application when the user logs in: the registry's "Run" value on Windows,
/// elsewhere the XDG autostart entry, written in the same form. Empty when there is none.
QString ReadAutoStartCommand(const QString& strApplication);

/// The command that starts an executable: its native path in double quotes.
QString GetAutoStartCommand(const QString& strExecutable);

} // namespace LocalConfig
