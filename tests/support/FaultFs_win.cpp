// A disk that fails, for programs that this is linked into: it takes the place of some functions of the system in the
// import tables of all libraries that are loaded, those of the C library among them.
//
// KV_FAULT="<call>:<error>:<text>[:<n>]" as in FaultFs.cpp. Calls: write, fsync, rename, link. Errors: ENOSPC, EIO,
// EPERM.

#include <QByteArray>
#include <QDir>
#include <QString>

#include <cstring>
#include <map>

#include <windows.h>

#include <psapi.h>

namespace
{

struct SFault
{
    QByteArray call;
    DWORD nError = ERROR_SUCCESS;
    QString strText;
    int nCall = 0; // 0: each
};

SFault ParseFault(const QByteArray& fault)
{
    static const std::map<QByteArray, DWORD> mapErrors = {
        {"ENOSPC", ERROR_DISK_FULL}, {"EIO", ERROR_IO_DEVICE}, {"EPERM", ERROR_ACCESS_DENIED}};
    const int nError = fault.indexOf(':') + 1;
    const int nText = fault.indexOf(':', nError) + 1;
    if (nError == 0 || nText == 0)
    {
        return {};
    }
    SFault result{fault.left(nError - 1), mapErrors.at(fault.mid(nError, nText - 1 - nError)), {}, 0};
    result.strText = QString::fromLocal8Bit(fault.mid(nText));
    const int nNumber = result.strText.lastIndexOf(':') + 1;
    bool bNumber = false;
    const int nCall = result.strText.midRef(nNumber).toInt(&bNumber);
    if (nNumber > 0 && bNumber)
    {
        result.nCall = nCall;
        result.strText.truncate(nNumber - 1);
    }
    return result;
}

bool Matches(const QString& strPath, QString strText)
{
    if (strText.endsWith('$'))
    {
        strText.chop(1);
        return strPath.endsWith(strText, Qt::CaseInsensitive);
    }
    return strPath.contains(strText, Qt::CaseInsensitive);
}

bool Fails(const char* pszCall, const QString& strPath)
{
    static QByteArray counted; // the fault whose calls are counted
    static int nCalls = 0;

    const QByteArray fault = qgetenv("KV_FAULT");
    const SFault parsed = ParseFault(fault);
    if (parsed.call != pszCall || !Matches(QDir::fromNativeSeparators(strPath), parsed.strText))
    {
        return false;
    }
    if (counted != fault)
    {
        counted = fault;
        nCalls = 0;
    }
    ++nCalls;
    if (parsed.nCall != 0 && nCalls != parsed.nCall)
    {
        return false;
    }
    ::SetLastError(parsed.nError);
    return true;
}

QString PathOf(HANDLE hFile)
{
    wchar_t szPath[MAX_PATH * 4];
    const DWORD nLength = ::GetFinalPathNameByHandleW(hFile, szPath, DWORD(std::size(szPath)), 0);
    return nLength < std::size(szPath) ? QString::fromWCharArray(szPath, int(nLength)) : QString();
}

BOOL WINAPI FaultyWriteFile(HANDLE hFile, LPCVOID pData, DWORD nSize, LPDWORD pWritten, LPOVERLAPPED pOverlapped)
{
    // Pipes and consoles have no path.
    const bool bFails = ::GetFileType(hFile) == FILE_TYPE_DISK && Fails("write", PathOf(hFile));
    return bFails ? FALSE : ::WriteFile(hFile, pData, nSize, pWritten, pOverlapped);
}

BOOL WINAPI FaultyFlushFileBuffers(HANDLE hFile)
{
    return Fails("fsync", PathOf(hFile)) ? FALSE : ::FlushFileBuffers(hFile);
}

BOOL WINAPI FaultyMoveFileExW(LPCWSTR pszFrom, LPCWSTR pszTo, DWORD nFlags)
{
    return Fails("rename", QString::fromWCharArray(pszTo)) ? FALSE : ::MoveFileExW(pszFrom, pszTo, nFlags);
}

BOOL WINAPI FaultyCreateHardLinkW(LPCWSTR pszName, LPCWSTR pszFile, LPSECURITY_ATTRIBUTES pSecurity)
{
    return Fails("link", QString::fromWCharArray(pszName)) ? FALSE : ::CreateHardLinkW(pszName, pszFile, pSecurity);
}

/// A pointer to a function as the import tables hold it.
template <class Function>
ULONGLONG Address(Function function)
{
    static_assert(sizeof(function) == sizeof(ULONGLONG));
    ULONGLONG nAddress = 0;
    std::memcpy(&nAddress, &function, sizeof(nAddress));
    return nAddress;
}

template <class Type>
Type* At(HMODULE hModule, DWORD nOffset)
{
    return reinterpret_cast<Type*>(reinterpret_cast<BYTE*>(hModule) + nOffset);
}

void Replace(HMODULE hModule, const std::map<QByteArray, ULONGLONG>& mapFunctions)
{
    const auto* pHeader =
        At<IMAGE_NT_HEADERS64>(hModule, DWORD(reinterpret_cast<IMAGE_DOS_HEADER*>(hModule)->e_lfanew));
    const IMAGE_DATA_DIRECTORY& imports = pHeader->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (imports.VirtualAddress == 0)
    {
        return;
    }
    for (auto* pLibrary = At<IMAGE_IMPORT_DESCRIPTOR>(hModule, imports.VirtualAddress); pLibrary->FirstThunk != 0;
         ++pLibrary)
    {
        if (pLibrary->OriginalFirstThunk == 0)
        {
            continue;
        }
        auto* pName = At<IMAGE_THUNK_DATA64>(hModule, pLibrary->OriginalFirstThunk);
        auto* pSlot = At<IMAGE_THUNK_DATA64>(hModule, pLibrary->FirstThunk);
        for (; pName->u1.AddressOfData != 0; ++pName, ++pSlot)
        {
            if (IMAGE_SNAP_BY_ORDINAL64(pName->u1.Ordinal))
            {
                continue;
            }
            const auto found =
                mapFunctions.find(At<IMAGE_IMPORT_BY_NAME>(hModule, DWORD(pName->u1.AddressOfData))->Name);
            DWORD nProtection = 0;
            if (found != mapFunctions.end() &&
                ::VirtualProtect(pSlot, sizeof(*pSlot), PAGE_READWRITE, &nProtection) != 0)
            {
                pSlot->u1.Function = found->second;
                ::VirtualProtect(pSlot, sizeof(*pSlot), nProtection, &nProtection);
            }
        }
    }
}

bool ReplaceEverywhere()
{
    const std::map<QByteArray, ULONGLONG> mapFunctions = {{"WriteFile", Address(&FaultyWriteFile)},
                                                          {"FlushFileBuffers", Address(&FaultyFlushFileBuffers)},
                                                          {"MoveFileExW", Address(&FaultyMoveFileExW)},
                                                          {"CreateHardLinkW", Address(&FaultyCreateHardLinkW)}};
    HMODULE arrModules[256];
    DWORD nSize = 0;
    ::K32EnumProcessModules(::GetCurrentProcess(), arrModules, sizeof(arrModules), &nSize);
    for (DWORD n = 0; n < nSize / sizeof(HMODULE); ++n)
    {
        wchar_t szName[MAX_PATH];
        ::K32GetModuleBaseNameW(::GetCurrentProcess(), arrModules[n], szName, MAX_PATH);
        const QString strName = QString::fromWCharArray(szName).toLower();
        // The program itself calls what it replaces, the system's own libraries are below it.
        if (strName.startsWith("qt5") || strName.startsWith("msvcr") || strName.startsWith("ucrt") ||
            strName == "uicommonmodule.dll")
        {
            Replace(arrModules[n], mapFunctions);
        }
    }
    return true;
}

const bool g_bReplaced = ReplaceEverywhere();

} // namespace
