#pragma once

#include <QString>

namespace LocalConfigClient
{

/// The entry by which the system starts the client when the user logs in: a value of the registry's "Run" key on
/// Windows, elsewhere an XDG autostart entry. The Basic page reads it.
class AutoStart
{
public:
    /// Writes or removes the entry. Other keys of an existing XDG entry stay, but for those that switch it off.
    /// \param strApplication  the name of the entry
    /// \param strExecutable   what it starts, with "/" between folders
    /// \return a CErrorCode; Success also when there was nothing to do
    static int Apply(bool bEnable, const QString& strApplication, const QString& strExecutable);
};

} // namespace LocalConfigClient
