#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace LocalConfigClient
{

// What the client is told by whoever has started it, and tells them.

/// The arguments that follow the program's name.
QStringList GetArguments(int argc, char* argv[]);

/// Sets a variable of this program's environment.
void SetEnvironment(const char* pszName, const QString& strValue);

/// Writes bytes to the standard output as they are.
/// \return whether all of them have gone
bool Print(const QByteArray& content);

/// Writes text to the standard output, in the encoding that is used there.
void PrintText(const QString& strText);

/// Writes text to the standard error output, in the encoding that is used there.
void PrintError(const QString& strText);

} // namespace LocalConfigClient
