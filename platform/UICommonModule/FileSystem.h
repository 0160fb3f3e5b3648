#pragma once

#include <QString>

namespace UICommonMdl
{

/// What the operating systems do differently below CAtomicFile.

void ClearSystemError();

/// The last failure as a CErrorCode; never Success.
int GetSystemError();

/// Waits until an open file's data is on the disk.
bool FlushFile(int nHandle);

/// Waits until the names in a folder are on the disk.
bool FlushFolder(const QString& strFolder);

/// Whether a folder's entries can be told apart from missing ones.
bool CanSeeInto(const QString& strFolder);

} // namespace UICommonMdl
