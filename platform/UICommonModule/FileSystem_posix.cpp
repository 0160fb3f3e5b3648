#include "CErrorCode.h"
#include "FileSystem.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace UICommonMdl
{

namespace
{

constexpr mode_t g_nModeBits = 07777;

/// Closes a handle without losing the error that led there.
void CloseQuietly(int nHandle)
{
    const int nError = errno;
    ::close(nHandle);
    errno = nError;
}

int Adopt(int nHandle, QIODevice::OpenMode eMode, QFile& file)
{
    if (file.open(nHandle, eMode | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
    {
        return CErrorCode::Success;
    }
    CloseQuietly(nHandle);
    return CErrorCode::IoError;
}

bool IsMissing(int nError)
{
    return nError == ENOENT || nError == ENOTDIR;
}

/// Why a file could not be opened to be read.
int GetReadError(const QByteArray& path)
{
    struct stat status = {};
    switch (errno)
    {
    case ENOENT:
    case ENOTDIR:
        if (::lstat(path.constData(), &status) == 0)
        {
            return CErrorCode::Unreadable; // a link that leads nowhere, perhaps to a disk that is not there now
        }
        return IsMissing(errno) ? int(CErrorCode::FileMissing) : GetSystemError();
    case ELOOP:
    case ENXIO:
        return CErrorCode::Unreadable;
    default:
        return GetSystemError();
    }
}

/// The program's own output that a file is; -1 when it is none.
int FindOutput(const struct stat& status)
{
    for (int nHandle : {STDOUT_FILENO, STDERR_FILENO})
    {
        struct stat own = {};
        if (::fstat(nHandle, &own) == 0 && own.st_dev == status.st_dev && own.st_ino == status.st_ino)
        {
            return nHandle;
        }
    }
    return -1;
}

int OpenForLock(const QByteArray& path)
{
    // Neither waits for a pipe nor follows a link.
    return ::open(path.constData(), O_RDWR | O_CREAT | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC, 0666);
}

/// Removes what stands in a lock file's place and is none. Two processes at once must not remove each other's new file,
/// so they take turns by a lock of the folder.
void RemoveStranger(const QByteArray& path, const QString& strFolder)
{
    const int nFolder = ::open(QFile::encodeName(strFolder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (nFolder < 0)
    {
        return;
    }
    struct stat status = {};
    if (::flock(nFolder, LOCK_EX | LOCK_NB) == 0 && ::lstat(path.constData(), &status) == 0 &&
        !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode))
    {
        ::unlink(path.constData());
    }
    ::close(nFolder);
}

bool IsRegular(int nHandle)
{
    struct stat status = {};
    return ::fstat(nHandle, &status) == 0 && S_ISREG(status.st_mode);
}

/// Whether a name still stands for an open file. Somebody may have removed or replaced it meanwhile.
bool IsNameOf(const QByteArray& path, int nHandle)
{
    struct stat named = {};
    struct stat open = {};
    return ::lstat(path.constData(), &named) == 0 && ::fstat(nHandle, &open) == 0 && named.st_dev == open.st_dev &&
           named.st_ino == open.st_ino;
}

} // namespace

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
    case EEXIST:
        return CErrorCode::FileExists;
    case EISDIR:
        return CErrorCode::NotAFile;
    default:
        return CErrorCode::IoError;
    }
}

int OpenToRead(const QString& strFile, QFile& file)
{
    const QByteArray path = QFile::encodeName(strFile);
    const int nHandle = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (nHandle < 0)
    {
        return GetReadError(path);
    }
    struct stat status = {};
    if (::fstat(nHandle, &status) != 0)
    {
        CloseQuietly(nHandle);
        return GetSystemError();
    }
    if (!S_ISREG(status.st_mode))
    {
        ::close(nHandle);
        return CErrorCode::Unreadable;
    }
    return Adopt(nHandle, QIODevice::ReadOnly, file);
}

int OpenNew(const QString& strFile, QFile& file)
{
    const int nHandle = ::open(QFile::encodeName(strFile).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (nHandle < 0)
    {
        return GetSystemError();
    }
    return Adopt(nHandle, QIODevice::WriteOnly, file);
}

bool IsStream(const QString& strFile)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(strFile).constData(), &status) == 0 &&
           (S_ISCHR(status.st_mode) || S_ISFIFO(status.st_mode) || FindOutput(status) >= 0);
}

int OpenStream(const QString& strFile, QFile& file)
{
    const QByteArray path = QFile::encodeName(strFile);
    struct stat status = {};
    const int nOutput = ::stat(path.constData(), &status) == 0 ? FindOutput(status) : -1;
    // What the output goes to is not opened anew: that would begin a file again that the shell has begun.
    const int nHandle =
        nOutput >= 0 ? ::fcntl(nOutput, F_DUPFD_CLOEXEC, 0) : ::open(path.constData(), O_WRONLY | O_NOCTTY | O_CLOEXEC);
    return nHandle < 0 ? GetSystemError() : Adopt(nHandle, QIODevice::WriteOnly, file);
}

int OpenLocked(const QString& strFile, QFile& file)
{
    const QByteArray path = QFile::encodeName(strFile);
    int nHandle = OpenForLock(path);
    if (nHandle < 0 ? errno == ELOOP || errno == ENXIO : !IsRegular(nHandle))
    {
        if (nHandle >= 0)
        {
            ::close(nHandle);
        }
        RemoveStranger(path, QFileInfo(strFile).absolutePath());
        nHandle = OpenForLock(path);
    }
    if (nHandle < 0)
    {
        return GetSystemError();
    }
    if (::flock(nHandle, LOCK_EX | LOCK_NB) != 0)
    {
        CloseQuietly(nHandle);
        return errno == EWOULDBLOCK ? int(CErrorCode::Locked) : GetSystemError();
    }
    if (!IsRegular(nHandle) || !IsNameOf(path, nHandle))
    {
        ::close(nHandle);
        return CErrorCode::IoError;
    }
    return Adopt(nHandle, QIODevice::ReadWrite, file);
}

int CopyAttributes(const QString& strModel, QFile& file)
{
    struct stat model = {};
    struct stat own = {};
    if (::stat(QFile::encodeName(strModel).constData(), &model) != 0 || ::fstat(file.handle(), &own) != 0)
    {
        return GetSystemError();
    }
    const bool bSameOwner = model.st_uid == own.st_uid && model.st_gid == own.st_gid;
    if (!bSameOwner && ::fchown(file.handle(), model.st_uid, model.st_gid) != 0 && errno != EPERM)
    {
        return GetSystemError(); // an ordinary user cannot give files away, and need not
    }
    return ::fchmod(file.handle(), model.st_mode & g_nModeBits) == 0 ? int(CErrorCode::Success) : GetSystemError();
}

int MoveOver(const QString& strFrom, const QString& strTo)
{
    const int nResult = std::rename(QFile::encodeName(strFrom).constData(), QFile::encodeName(strTo).constData());
    return nResult == 0 ? int(CErrorCode::Success) : GetSystemError();
}

int Link(const QString& strFile, const QString& strName)
{
    const int nResult = ::link(QFile::encodeName(strFile).constData(), QFile::encodeName(strName).constData());
    return nResult == 0 ? int(CErrorCode::Success) : GetSystemError();
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
    CloseQuietly(nHandle);
    return bFlushed;
}

} // namespace UICommonMdl
