#include "CErrorCode.h"
#include "FileSystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <io.h>
#include <optional>
#include <vector>
#include <windows.h>

namespace UICommonMdl
{

namespace
{

constexpr DWORD g_nQuotaExceeded = 1295; // ERROR_DISK_QUOTA_EXCEEDED, which some SDKs do not declare
constexpr int g_nMaxLinks = 40;
constexpr int g_nLongPath = 240;        // letters; a little less than MAX_PATH, for folders must leave room for names
constexpr ULONGLONG g_nPatience = 1000; // milliseconds for scanners, indexers and backups to let go of a file
constexpr DWORD g_nPause = 20;
constexpr DWORD g_nShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// A path for the functions of the system, which take a long one only when it says that it is complete.
std::wstring Native(const QString& strPath)
{
    QString strNative = QDir::toNativeSeparators(strPath);
    if (strPath.size() >= g_nLongPath && !strNative.startsWith(QLatin1String("\\\\?\\")))
    {
        const QString strFull = QDir::toNativeSeparators(QDir::cleanPath(QDir().absoluteFilePath(strPath)));
        const bool bShare = strFull.startsWith(QLatin1String("\\\\"));
        strNative = bShare ? QLatin1String("\\\\?\\UNC") + strFull.mid(1) : QLatin1String("\\\\?\\") + strFull;
    }
    return strNative.toStdWString();
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

bool IsMissing(DWORD nError)
{
    return nError == ERROR_FILE_NOT_FOUND || nError == ERROR_PATH_NOT_FOUND;
}

bool IsHeld(DWORD nError)
{
    return nError == ERROR_SHARING_VIOLATION || nError == ERROR_LOCK_VIOLATION || nError == ERROR_USER_MAPPED_FILE;
}

/// Tries again as long as another program holds the file, but not for ever.
template <class Attempt>
bool Persist(Attempt attempt)
{
    const ULONGLONG nStart = ::GetTickCount64();
    while (!attempt())
    {
        const DWORD nError = ::GetLastError();
        if (!IsHeld(nError) || ::GetTickCount64() - nStart > g_nPatience)
        {
            ::SetLastError(nError);
            return false;
        }
        ::Sleep(g_nPause);
    }
    return true;
}

/// Where a file cannot be replaced the system says "access denied", too, when another program has it open.
bool MoveOnce(const std::wstring& from, const std::wstring& to)
{
    if (::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
    {
        return true;
    }
    const DWORD nError = ::GetLastError();
    const DWORD nAttributes = ::GetFileAttributesW(to.c_str());
    bool bHeld = false;
    if (nError == ERROR_ACCESS_DENIED && (nAttributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0)
    {
        const HANDLE hTarget = ::CreateFileW(to.c_str(), DELETE, g_nShareAll, nullptr, OPEN_EXISTING,
                                             FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
        bHeld = hTarget != INVALID_HANDLE_VALUE || IsHeld(::GetLastError());
        if (hTarget != INVALID_HANDLE_VALUE)
        {
            ::CloseHandle(hTarget);
        }
    }
    ::SetLastError(bHeld ? ERROR_SHARING_VIOLATION : nError);
    return false;
}

/// What the system knows a file or folder by, whatever its name is; nothing when it cannot be found.
std::optional<BY_HANDLE_FILE_INFORMATION> GetIdentity(const QString& strPath)
{
    BY_HANDLE_FILE_INFORMATION information = {};
    const HANDLE hFile = ::CreateFileW(Native(strPath).c_str(), FILE_READ_ATTRIBUTES, g_nShareAll, nullptr,
                                       OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (hFile == INVALID_HANDLE_VALUE)
    {
        return std::nullopt;
    }
    const bool bKnown = ::GetFileInformationByHandle(hFile, &information) != 0;
    ::CloseHandle(hFile);
    return bKnown ? std::make_optional(information) : std::nullopt;
}

/// Calls a function of the system's that fills a buffer with a text and returns its length.
template <class Fill>
QString GetText(Fill fill)
{
    std::vector<wchar_t> buffer(MAX_PATH);
    DWORD nLength = fill(buffer.data(), DWORD(buffer.size()));
    if (nLength > buffer.size())
    {
        buffer.resize(nLength);
        nLength = fill(buffer.data(), DWORD(buffer.size()));
    }
    return nLength < buffer.size() ? QString::fromWCharArray(buffer.data(), int(nLength)) : QString();
}

/// Why a file could not be opened to be read.
int GetReadError(const std::wstring& path)
{
    const DWORD nError = ::GetLastError();
    if (IsMissing(nError))
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
        return CErrorCode::NoPermission;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
        return CErrorCode::InUse;
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
    HANDLE hFile = INVALID_HANDLE_VALUE;
    const bool bOpened = Persist([&] {
        hFile = ::CreateFileW(path.c_str(), GENERIC_READ, g_nShareAll, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                              nullptr);
        return hFile != INVALID_HANDLE_VALUE;
    });
    if (!bOpened)
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
        if (!info.isSymbolicLink())
        {
            return CErrorCode::Success;
        }
        strTarget = info.symLinkTarget();
    }
    return CErrorCode::NotAFile;
}

QString GetRealPath(const QString& strFile)
{
    // Final dots and blanks go.
    const std::wstring path = Native(strFile);
    QString strPath = QDir::fromNativeSeparators(GetText(
        [&path](wchar_t* pBuffer, DWORD nSize) { return ::GetFullPathNameW(path.c_str(), nSize, pBuffer, nullptr); }));
    // What follows a colon is a stream of the file.
    const int nStream = strPath.indexOf(QLatin1Char(':'), strPath.lastIndexOf(QLatin1Char('/')) + 1);
    strPath.truncate(nStream < 0 ? strPath.size() : nStream);
    const std::wstring full = Native(strPath);
    const QString strLong =
        GetText([&full](wchar_t* pBuffer, DWORD nSize) { return ::GetLongPathNameW(full.c_str(), pBuffer, nSize); });
    return strLong.isEmpty() ? strPath : QDir::fromNativeSeparators(strLong);
}

bool IsSameFile(const QString& strOne, const QString& strOther)
{
    const auto one = GetIdentity(strOne);
    const auto other = GetIdentity(strOther);
    return one && other && one->dwVolumeSerialNumber == other->dwVolumeSerialNumber &&
           one->nFileIndexHigh == other->nFileIndexHigh && one->nFileIndexLow == other->nFileIndexLow;
}

int CheckReplaceable(const QString& strFile, bool& bExists)
{
    const std::wstring path = Native(strFile);
    const DWORD nAttributes = ::GetFileAttributesW(path.c_str());
    bExists = nAttributes != INVALID_FILE_ATTRIBUTES;
    if (!bExists)
    {
        return IsMissing(::GetLastError()) ? int(CErrorCode::Success) : GetSystemError();
    }
    if ((nAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
    {
        return CErrorCode::NotAFile;
    }
    const HANDLE hFile = ::CreateFileW(path.c_str(), FILE_WRITE_DATA, g_nShareAll, nullptr, OPEN_EXISTING,
                                       FILE_ATTRIBUTE_NORMAL, nullptr);
    if (hFile == INVALID_HANDLE_VALUE)
    {
        return IsHeld(::GetLastError()) ? int(CErrorCode::Success) : GetSystemError(); // it may be let go of
    }
    ::CloseHandle(hFile);
    return CErrorCode::Success;
}

int CopyAttributes(const QString& strModel, QFile& file)
{
    // Here the mode is an access list. A file system without any, and one where this user may not set any, has its own.
    const std::wstring model = Native(strModel);
    DWORD nSize = 0;
    ::GetFileSecurityW(model.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &nSize);
    std::vector<BYTE> buffer(nSize);
    const auto hFile = reinterpret_cast<HANDLE>(::_get_osfhandle(file.handle()));
    const HANDLE hList =
        nSize == 0 || IsFolder(model) ? INVALID_HANDLE_VALUE : ::ReOpenFile(hFile, WRITE_DAC, g_nShareAll, 0);
    if (hList == INVALID_HANDLE_VALUE)
    {
        return CErrorCode::Success;
    }
    SECURITY_DESCRIPTOR_CONTROL nControl = 0;
    DWORD nRevision = 0;
    const bool bRead =
        ::GetFileSecurityW(model.c_str(), DACL_SECURITY_INFORMATION, buffer.data(), nSize, &nSize) != 0 &&
        ::GetSecurityDescriptorControl(buffer.data(), &nControl, &nRevision) != 0;
    if (bRead && (nControl & SE_DACL_AUTO_INHERITED) != 0)
    {
        ::SetSecurityDescriptorControl(buffer.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    }
    const bool bSet = bRead && ::SetKernelObjectSecurity(hList, DACL_SECURITY_INFORMATION, buffer.data()) != 0;
    const int nResult = bSet ? int(CErrorCode::Success) : GetSystemError();
    ::CloseHandle(hList);
    return nResult;
}

int MoveOver(const QString& strFrom, const QString& strTo)
{
    const std::wstring from = Native(strFrom);
    const std::wstring to = Native(strTo);
    if (IsFolder(to))
    {
        return CErrorCode::NotAFile;
    }
    return Persist([&] { return MoveOnce(from, to); }) ? int(CErrorCode::Success) : GetSystemError();
}

int RemoveFile(const QString& strFile)
{
    const std::wstring path = Native(strFile);
    return Persist([&path] { return ::DeleteFileW(path.c_str()) != 0; }) ? int(CErrorCode::Success) : GetSystemError();
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
