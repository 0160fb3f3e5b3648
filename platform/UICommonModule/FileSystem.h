#pragma once

#include <QByteArray>
#include <QString>

class QFileDevice;

namespace UICommonMdl
{

/// What the operating systems do differently below CAtomicFile and CGrowingFile.

void ClearSystemError();

/// The last failure as a CErrorCode; never Success.
int GetSystemError();

/// Writes all of it to an unbuffered file.
/// \return CErrorCode::Success or what GetSystemError makes of the failure
int WriteAll(QFileDevice& file, const QByteArray& content);

/// Waits until an open file's data is on the disk.
bool FlushFile(int nHandle);

/// Waits until the names in a folder are on the disk.
bool FlushFolder(const QString& strFolder);

/// Whether a folder's entries can be told apart from missing ones.
bool CanSeeInto(const QString& strFolder);

} // namespace UICommonMdl
