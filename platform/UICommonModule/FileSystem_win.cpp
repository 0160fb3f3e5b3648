#include "CErrorCode.h"
#include "FileSystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace UICommonMdl
{

namespace
{

constexpr DWORD g_nQuotaExceeded = 1295; // ERROR_DISK_QUOTA_EXCEEDED, which some SDKs do not declare
constexpr int g_nMaxLinks = 40;
constexpr DWORD g_nShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::wstring Native(const QString& strPath)
{
    return QDir::toNativeSeparators(strPath).toStdWString();
}

int Adopt(HANDLE hFile, int nFlags, QIODevice::OpenMode eMode, QFile& file)
{
    const int nHandle = ::_open_osfhandle(reinterpret_cast<intptr_t>(hFile), nFlags);
    if (nHandle < 0)
    {
        ::CloseHandle(hFile);
        return CErrorCode::IoError;
    }
    if (!file.open(nHandle, eMode | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
    {
        ::_close(nHandle);
        return CErrorCode::IoError;
    }
    return CErrorCode::Success;
}

HANDLE OpenExisting(const QString& strFile)
{
    return ::CreateFileW(Native(strFile).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                         OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

bool IsFolder(const std::wstring& path)
{
    const DWORD nAttributes = ::GetFileAttributesW(path.c_str());
    return nAttributes != INVALID_FILE_ATTRIBUTES && (nAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// Why a file could not be opened to be read.
int GetReadError(const std::wstring& path)
{
    const DWORD nError = ::GetLastError();
    if (nError == ERROR_FILE_NOT_FOUND || nError == ERROR_PATH_NOT_FOUND)
    {
        // A link that leads nowhere is there all the same.
        return ::GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES ? CErrorCode::FileMissing
                                                                             : CErrorCode::Unreadable;
    }
    if (IsFolder(path))
    {
        return CErrorCode::Unreadable;
    }
    ::SetLastError(nError);
    return GetSystemError();
}

} // namespace

void ClearSystemError()
{
    ::SetLastError(ERROR_SUCCESS);
}

int GetSystemError()
{
    switch (::GetLastError())
    {
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case g_nQuotaExceeded:
        return CErrorCode::DiskFull;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_SHARING_VIOLATION:
        return CErrorCode::NoPermission;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_FILE_NOT_FOUND:
        return CErrorCode::FolderMissing;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return CErrorCode::FileExists;
    default:
        return CErrorCode::IoError;
    }
}

int OpenToRead(const QString& strFile, QFile& file)
{
    const std::wstring path = Native(strFile);
    const HANDLE hFile =
        ::CreateFileW(path.c_str(), GENERIC_READ, g_nShareAll, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (hFile == INVALID_HANDLE_VALUE)
    {
        return GetReadError(path);
    }
    if (::GetFileType(hFile) != FILE_TYPE_DISK)
    {
        ::CloseHandle(hFile);
        return CErrorCode::Unreadable;
    }
    return Adopt(hFile, _O_RDONLY | _O_BINARY, QIODevice::ReadOnly, file);
}

int OpenNew(const QString& strFile, QFile& file)
{
    const HANDLE hFile = ::CreateFileW(Native(strFile).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_NEW,
                                       FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (hFile == INVALID_HANDLE_VALUE)
    {
        return GetSystemError();
    }
    return Adopt(hFile, _O_WRONLY | _O_BINARY, QIODevice::WriteOnly, file);
}

bool IsStream(const QString& strFile)
{
    const HANDLE hFile = OpenExisting(strFile);
    if (hFile == INVALID_HANDLE_VALUE)
    {
        return false;
    }
    const DWORD nType = ::GetFileType(hFile);
    ::CloseHandle(hFile);
    return nType == FILE_TYPE_CHAR || nType == FILE_TYPE_PIPE;
}

int OpenStream(const QString& strFile, QFile& file)
{
    const HANDLE hFile = OpenExisting(strFile);
    return hFile == INVALID_HANDLE_VALUE ? GetSystemError()
                                         : Adopt(hFile, _O_WRONLY | _O_BINARY, QIODevice::WriteOnly, file);
}

int OpenLocked(const QString& strFile, QFile& file, QFile& /*folder*/)
{
    const std::wstring path = Native(strFile);
    if (IsFolder(path))
    {
        return CErrorCode::NotAFile;
    }
    // Others may look who holds it; opening it to write, as everybody does who wants the lock, is what they may not.
    const HANDLE hFile = ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                       OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (hFile == INVALID_HANDLE_VALUE)
    {
        return ::GetLastError() == ERROR_SHARING_VIOLATION ? int(CErrorCode::Locked) : GetSystemError();
    }
    return Adopt(hFile, _O_RDWR | _O_BINARY, QIODevice::ReadWrite, file);
}

bool IsNameOf(const QString& /*strFile*/, const QFile& /*file*/)
{
    return true; // a file that is open like this cannot be removed
}

int FollowLinks(const QString& strFile, QString& strTarget)
{
    strTarget = strFile;
    for (int n = 0; n < g_nMaxLinks; ++n)
    {
        const QFileInfo info(strTarget);
        if (!info.isSymLink())
        {
            return CErrorCode::Success;
        }
        strTarget = info.symLinkTarget();
    }
    return CErrorCode::NotAFile;
}

int CheckReplaceable(const QString& strFile, bool& bExists)
{
    const QFileInfo info(strFile);
    bExists = info.exists();
    if (bExists && !info.isFile())
    {
        return CErrorCode::NotAFile;
    }
    return !bExists || info.isWritable() ? CErrorCode::Success : CErrorCode::NoPermission;
}

int CopyAttributes(const QString& /*strModel*/, QFile& /*file*/)
{
    return CErrorCode::Success; // MoveOver leaves the access list that stands there
}

int MoveOver(const QString& strFrom, const QString& strTo)
{
    const std::wstring from = Native(strFrom);
    const std::wstring to = Native(strTo);
    if (IsFolder(to))
    {
        return CErrorCode::NotAFile;
    }
    const DWORD nFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    const bool bMoved =
        ::ReplaceFileW(to.c_str(), from.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != 0 ||
        ::MoveFileExW(from.c_str(), to.c_str(), nFlags) != 0;
    return bMoved ? int(CErrorCode::Success) : GetSystemError();
}

int Link(const QString& strFile, const QString& strName)
{
    return ::CreateHardLinkW(Native(strName).c_str(), Native(strFile).c_str(), nullptr) != 0 ? int(CErrorCode::Success)
                                                                                             : GetSystemError();
}

bool FlushFile(int nHandle)
{
    const auto hFile = reinterpret_cast<HANDLE>(::_get_osfhandle(nHandle));
    if (::FlushFileBuffers(hFile) != 0)
    {
        return true;
    }
    // One that was opened to be read flushes nothing.
    const HANDLE hWritten = ::GetLastError() == ERROR_ACCESS_DENIED ? ::ReOpenFile(hFile, GENERIC_WRITE, g_nShareAll, 0)
                                                                    : INVALID_HANDLE_VALUE;
    if (hWritten == INVALID_HANDLE_VALUE)
    {
        return false;
    }
    const bool bFlushed = ::FlushFileBuffers(hWritten) != 0;
    const DWORD nError = ::GetLastError();
    ::CloseHandle(hWritten);
    ::SetLastError(nError);
    return bFlushed;
}

bool FlushFolder(const QString& /*strFolder*/)
{
    return true; // the journal of the file system does this
}

} // namespace UICommonMdl
