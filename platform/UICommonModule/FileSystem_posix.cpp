#include "CErrorCode.h"
#include "FileSystem.h"

#include <QFile>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace UICommonMdl
{

namespace
{

constexpr mode_t g_nModeBits = 07777;
constexpr int g_nMaxLinks = 40;       // as many as the system itself follows
constexpr int g_nMaxLockTries = 1000; // against somebody who keeps removing the file

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

/// Everything before the name; "." where there is nothing.
QByteArray GetFolder(const QByteArray& path)
{
    const int nName = path.lastIndexOf('/');
    return nName < 0 ? QByteArray(".") : path.left(qMax(nName, 1));
}

/// Whether a file that is not found is behind a link that leads nowhere, perhaps to a disk that is not there now.
bool IsBehindLostLink(QByteArray path)
{
    struct stat status = {};
    while (::lstat(path.constData(), &status) != 0)
    {
        if (!IsMissing(errno) || path == GetFolder(path))
        {
            return false;
        }
        path = GetFolder(path);
    }
    return S_ISLNK(status.st_mode) && ::stat(path.constData(), &status) != 0;
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
            return CErrorCode::Unreadable;
        }
        if (!IsMissing(errno))
        {
            return GetSystemError();
        }
        return IsBehindLostLink(path) ? CErrorCode::Unreadable : CErrorCode::FileMissing;
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

/// Replaces the folder that a path names by the one that it really is, where that can be found.
QByteArray WithRealFolder(const QByteArray& path)
{
    char szFolder[PATH_MAX];
    if (::realpath(GetFolder(path).constData(), szFolder) == nullptr)
    {
        return path;
    }
    return QByteArray(szFolder) + '/' + path.mid(path.lastIndexOf('/') + 1);
}

/// What a link says; empty where there is none.
int ReadLink(const QByteArray& path, QByteArray& link)
{
    char szLink[PATH_MAX];
    const ssize_t nLength = ::readlink(path.constData(), szLink, sizeof(szLink));
    link = QByteArray(szLink, int(qMax<ssize_t>(nLength, 0)));
    return nLength >= 0 || errno == EINVAL || IsMissing(errno) ? int(CErrorCode::Success) : GetSystemError();
}

bool IsRegular(int nHandle)
{
    struct stat status = {};
    return ::fstat(nHandle, &status) == 0 && S_ISREG(status.st_mode);
}

bool IsNameOf(const QByteArray& path, int nHandle)
{
    struct stat named = {};
    struct stat open = {};
    return ::lstat(path.constData(), &named) == 0 && ::fstat(nHandle, &open) == 0 && named.st_dev == open.st_dev &&
           named.st_ino == open.st_ino;
}

/// Takes a folder's own lock. One that has none, such as that of some shares, counts as locked, but stays closed.
int LockFolder(const QByteArray& path, QFile& folder)
{
    const int nHandle = ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (nHandle < 0)
    {
        return CErrorCode::Success;
    }
    if (::flock(nHandle, LOCK_EX | LOCK_NB) == 0)
    {
        return Adopt(nHandle, QIODevice::ReadOnly, folder);
    }
    CloseQuietly(nHandle);
    return errno == EWOULDBLOCK ? CErrorCode::Locked : CErrorCode::Success;
}

int OpenForLock(const QByteArray& path, int nMode)
{
    // Neither waits for a pipe nor follows a link.
    return ::open(path.constData(), nMode | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC, 0666);
}

/// Removes what stands in a lock file's place and cannot be one, or not for this user. The folder must be locked, so
/// that two processes do not remove each other's new file.
int RemoveStranger(const QByteArray& path)
{
    struct stat status = {};
    if (::lstat(path.constData(), &status) != 0)
    {
        return IsMissing(errno) ? int(CErrorCode::Success) : GetSystemError();
    }
    const int nHandle = S_ISREG(status.st_mode) ? OpenForLock(path, O_RDONLY) : -1;
    if (nHandle >= 0 && ::flock(nHandle, LOCK_EX | LOCK_NB) != 0)
    {
        CloseQuietly(nHandle);
        return errno == EWOULDBLOCK ? int(CErrorCode::Locked) : GetSystemError();
    }
    const bool bGone = ::unlink(path.constData()) == 0 || IsMissing(errno);
    const int nResult = bGone ? int(CErrorCode::Success) : GetSystemError();
    if (nHandle >= 0)
    {
        ::close(nHandle);
    }
    return nResult;
}

/// One try to open and lock a file. bAgain tells that what stood there has changed, so that the next try may do.
int TryOpenLocked(const QByteArray& path, bool bMayRemove, QFile& file, bool& bAgain)
{
    bAgain = false;
    const int nHandle = OpenForLock(path, O_RDWR | O_CREAT);
    if (nHandle < 0 ? errno == ELOOP || errno == ENXIO || errno == EACCES : !IsRegular(nHandle))
    {
        const int nError = nHandle < 0 ? GetSystemError() : int(CErrorCode::IoError);
        if (nHandle >= 0)
        {
            ::close(nHandle);
        }
        const int nRemoved = bMayRemove ? RemoveStranger(path) : nError;
        bAgain = nRemoved == CErrorCode::Success;
        return bAgain ? nError : nRemoved;
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
    if (!IsNameOf(path, nHandle))
    {
        ::close(nHandle);
        bAgain = true;
        return CErrorCode::IoError;
    }
    return Adopt(nHandle, QIODevice::ReadWrite, file);
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

int OpenLocked(const QString& strFile, QFile& file, QFile& folder)
{
    const QByteArray path = QFile::encodeName(strFile);
    int nResult = LockFolder(GetFolder(path), folder);
    bool bAgain = nResult == CErrorCode::Success;
    for (int n = 0; bAgain && n < g_nMaxLockTries; ++n)
    {
        nResult = TryOpenLocked(path, folder.isOpen(), file, bAgain);
    }
    if (nResult != CErrorCode::Success)
    {
        folder.close();
    }
    return nResult;
}

bool IsNameOf(const QString& strFile, const QFile& file)
{
    return IsNameOf(QFile::encodeName(strFile), file.handle());
}

int FollowLinks(const QString& strFile, QString& strTarget)
{
    QByteArray path = QFile::encodeName(strFile);
    for (int n = 0; n < g_nMaxLinks; ++n)
    {
        QByteArray link;
        const int nResult = ReadLink(path, link);
        if (nResult != CErrorCode::Success || link.isEmpty())
        {
            strTarget = QFile::decodeName(path);
            return nResult;
        }
        // A link is read from the folder that it lies in, which a path through other links does not name.
        path = WithRealFolder(link.startsWith('/') ? link : GetFolder(WithRealFolder(path)) + '/' + link);
    }
    strTarget = strFile;
    return CErrorCode::NotAFile;
}

QString GetRealPath(const QString& strFile)
{
    return strFile; // a name is what it says
}

bool IsSameFile(const QString& strOne, const QString& strOther)
{
    struct stat one = {};
    struct stat other = {};
    return ::stat(QFile::encodeName(strOne).constData(), &one) == 0 &&
           ::stat(QFile::encodeName(strOther).constData(), &other) == 0 && one.st_dev == other.st_dev &&
           one.st_ino == other.st_ino;
}

int CheckReplaceable(const QString& strFile, bool& bExists)
{
    const QByteArray path = QFile::encodeName(strFile);
    struct stat status = {};
    bExists = ::stat(path.constData(), &status) == 0;
    if (!bExists)
    {
        return IsMissing(errno) ? int(CErrorCode::Success) : GetSystemError();
    }
    if (!S_ISREG(status.st_mode))
    {
        return CErrorCode::NotAFile;
    }
    return ::access(path.constData(), W_OK) == 0 ? int(CErrorCode::Success) : GetSystemError();
}

int CopyAttributes(const QString& strModel, QFile& file)
{
    struct stat model = {};
    struct stat own = {};
    if (::lstat(QFile::encodeName(strModel).constData(), &model) != 0)
    {
        return IsMissing(errno) ? int(CErrorCode::Success) : GetSystemError();
    }
    if (!S_ISREG(model.st_mode))
    {
        return CErrorCode::Success;
    }
    if (::fstat(file.handle(), &own) != 0)
    {
        return GetSystemError();
    }
    // An ordinary user cannot give files away, and need not, but can let a group of theirs keep one.
    const bool bSameOwner = model.st_uid == own.st_uid && model.st_gid == own.st_gid;
    if (!bSameOwner && ::fchown(file.handle(), model.st_uid, model.st_gid) != 0 &&
        (errno != EPERM || (::fchown(file.handle(), own.st_uid, model.st_gid) != 0 && errno != EPERM)))
    {
        return GetSystemError();
    }
    return ::fchmod(file.handle(), model.st_mode & g_nModeBits) == 0 ? int(CErrorCode::Success) : GetSystemError();
}

int MoveOver(const QString& strFrom, const QString& strTo)
{
    const int nResult = std::rename(QFile::encodeName(strFrom).constData(), QFile::encodeName(strTo).constData());
    return nResult == 0 ? int(CErrorCode::Success) : GetSystemError();
}

int RemoveFile(const QString& strFile)
{
    return ::unlink(QFile::encodeName(strFile).constData()) == 0 ? int(CErrorCode::Success) : GetSystemError();
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
        if (errno == EACCES)
        {
            ::sync(); // a folder that may be written but not listed cannot be flushed on its own
            return true;
        }
        return false;
    }
    // Some file systems cannot flush a folder and say so with EINVAL.
    const bool bFlushed = ::fsync(nHandle) == 0 || errno == EINVAL;
    CloseQuietly(nHandle);
    return bFlushed;
}

} // namespace UICommonMdl
