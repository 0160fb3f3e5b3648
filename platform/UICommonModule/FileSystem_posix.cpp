#include "CErrorCode.h"
#include "FileSystem.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace UICommonMdl
{

void ClearSystemError()
{
    errno = 0;
}

int GetSystemError()
{
    switch (errno)
    {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return CErrorCode::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
        return CErrorCode::NoPermission;
    case ENOENT:
    case ENOTDIR:
        return CErrorCode::FolderMissing;
    default:
        return CErrorCode::IoError;
    }
}

bool FlushFile(int nHandle)
{
    return ::fsync(nHandle) == 0;
}

bool FlushFolder(const QString& strFolder)
{
    const int nHandle = ::open(QFile::encodeName(strFolder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (nHandle < 0)
    {
        return errno == EACCES; // a folder that may be written but not listed cannot be flushed on its own
    }
    // Some file systems cannot flush a folder and say so with EINVAL.
    const bool bFlushed = ::fsync(nHandle) == 0 || errno == EINVAL;
    const int nError = errno;
    ::close(nHandle);
    errno = nError;
    return bFlushed;
}

bool CanSeeInto(const QString& strFolder)
{
    return ::access(QFile::encodeName(strFolder).constData(), X_OK) == 0 || errno == ENOENT || errno == ENOTDIR;
}

} // namespace UICommonMdl
