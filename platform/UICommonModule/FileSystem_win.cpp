#include "CErrorCode.h"
#include "FileSystem.h"

#include <io.h>
#include <windows.h>

namespace UICommonMdl
{

namespace
{

constexpr DWORD g_nQuotaExceeded = 1295; // ERROR_DISK_QUOTA_EXCEEDED, which some SDKs do not declare

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
    default:
        return CErrorCode::IoError;
    }
}

bool FlushFile(int nHandle)
{
    return ::_commit(nHandle) == 0;
}

bool FlushFolder(const QString& /*strFolder*/)
{
    return true; // the journal of the file system does this
}

bool CanSeeInto(const QString& /*strFolder*/)
{
    return true;
}

} // namespace UICommonMdl
