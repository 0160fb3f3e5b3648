#pragma once

#include <QByteArray>

namespace LocalConfigClient
{

/// Writes bytes to the standard output as they are.
/// \return whether all of them have gone
bool Print(const QByteArray& content);

} // namespace LocalConfigClient
