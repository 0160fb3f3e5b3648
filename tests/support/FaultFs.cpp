// A disk that fails, for programs that this library is preloaded into (LD_PRELOAD).
//
// KV_FAULT="<call>:<errno>:<text>" makes write, fsync or rename fail with ENOSPC or EIO for every file whose path
// contains the text.

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <string>
#include <unistd.h>

namespace
{

bool Fails(const char* pszCall, const std::string& strPath)
{
    const char* pszFault = std::getenv("KV_FAULT");
    if (!pszFault)
    {
        return false;
    }
    const std::string strFault = pszFault;
    const std::size_t nFirst = strFault.find(':');
    const std::size_t nSecond = strFault.find(':', nFirst + 1);
    if (nSecond == std::string::npos || strFault.substr(0, nFirst) != pszCall ||
        strPath.find(strFault.substr(nSecond + 1)) == std::string::npos)
    {
        return false;
    }
    errno = strFault.substr(nFirst + 1, nSecond - nFirst - 1) == "ENOSPC" ? ENOSPC : EIO;
    return true;
}

std::string PathOf(int nHandle)
{
    char szLink[64];
    char szPath[4096];
    std::snprintf(szLink, sizeof(szLink), "/proc/self/fd/%d", nHandle);
    const ssize_t nLength = ::readlink(szLink, szPath, sizeof(szPath));
    return nLength > 0 ? std::string(szPath, std::size_t(nLength)) : std::string();
}

template <class Function>
Function Next(const char* pszName)
{
    Function function = nullptr;
    void* pSymbol = ::dlsym(RTLD_NEXT, pszName);
    std::memcpy(&function, &pSymbol, sizeof(function));
    return function;
}

} // namespace

#define VISIBLE extern "C" __attribute__((visibility("default")))

VISIBLE ssize_t write(int nHandle, const void* pData, size_t nSize)
{
    static const auto next = Next<ssize_t (*)(int, const void*, size_t)>("write");
    return Fails("write", PathOf(nHandle)) ? -1 : next(nHandle, pData, nSize);
}

VISIBLE int fsync(int nHandle)
{
    static const auto next = Next<int (*)(int)>("fsync");
    return Fails("fsync", PathOf(nHandle)) ? -1 : next(nHandle);
}

VISIBLE int rename(const char* pszOld, const char* pszNew) noexcept
{
    static const auto next = Next<int (*)(const char*, const char*)>("rename");
    return Fails("rename", pszNew) ? -1 : next(pszOld, pszNew);
}
