#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QByteArray>
#include <QString>

namespace UICommonMdl
{

/// Whole files that are either the old or the new one, whatever happens in between.
class UICOMMONMODULE_EXPORT CAtomicFile
{
public:
    /// Replaces a file, or makes a new one: temporary file in the same folder, flush to the disk, rename over the old
    /// file, flush of the folder. An existing file keeps its permissions; a symbolic link keeps pointing at it.
    /// After a failure the old file is as it was and no temporary file is left; only where the very last step fails,
    /// the flush of the folder, the new file stands there already.
    ///
    /// \return CErrorCode::Success, or DiskFull, NoPermission, FolderMissing, IoError
    static int Write(const QString& strFile, const QByteArray& content);

    /// Reads a regular file; anything else (a folder, a device, a pipe) is not opened.
    /// \return CErrorCode::Success, or FileMissing, NoPermission, Unreadable, IoError; \a content is then empty
    static int Read(const QString& strFile, QByteArray& content);

    /// Removes a file; a folder stays.
    /// \return CErrorCode::Success, also when there is no such file, or NoPermission, IoError
    static int Remove(const QString& strFile);
};

} // namespace UICommonMdl
