// A disk or a name server that fails, for programs that this library is preloaded into (LD_PRELOAD).
//
// KV_FAULT="<call>:<error>:<text>[:<n>]" makes a call fail for every file whose path contains the text, or only the
// n-th time, counted from 1. A text that ends in "$" must stand at the path's end. Calls: write, fsync, rename, link,
// fchmod, flock. Errors: ENOSPC, EIO, EPERM, ENOLCK.
//
// KV_SILENT_NAME_SERVER="<seconds>" makes the look-up of a host take so long. Its beginning is told on stderr.
// KV_ADDRESSES="<address> <address>..." are the addresses of every host.

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <map>
#include <netdb.h>
#include <sstream>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace
{

std::vector<std::string> Split(const std::string& strText, char chSeparator)
{
    std::vector<std::string> listParts;
    std::istringstream stream(strText);
    for (std::string strPart; std::getline(stream, strPart, chSeparator);)
    {
        listParts.push_back(strPart);
    }
    return listParts;
}

bool Matches(const std::string& strPath, std::string strText)
{
    if (!strText.empty() && strText.back() == '$')
    {
        strText.pop_back();
        return strPath.size() >= strText.size() &&
               strPath.compare(strPath.size() - strText.size(), std::string::npos, strText) == 0;
    }
    return strPath.find(strText) != std::string::npos;
}

int ErrorOf(const std::string& strName)
{
    static const std::map<std::string, int> mapErrors = {
        {"ENOSPC", ENOSPC}, {"EIO", EIO}, {"EPERM", EPERM}, {"ENOLCK", ENOLCK}};
    return mapErrors.at(strName);
}

bool Fails(const char* pszCall, const std::string& strPath)
{
    static std::string strCounted; // the fault whose calls are counted
    static int nCalls = 0;

    const char* pszFault = std::getenv("KV_FAULT");
    const std::vector<std::string> listParts = Split(pszFault ? pszFault : "", ':');
    if (listParts.size() < 3 || listParts[0] != pszCall || !Matches(strPath, listParts[2]))
    {
        return false;
    }
    if (strCounted != pszFault)
    {
        strCounted = pszFault;
        nCalls = 0;
    }
    ++nCalls;
    if (listParts.size() > 3 && nCalls != std::stoi(listParts[3]))
    {
        return false;
    }
    errno = ErrorOf(listParts[1]);
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

VISIBLE int link(const char* pszFile, const char* pszName) noexcept
{
    static const auto next = Next<int (*)(const char*, const char*)>("link");
    return Fails("link", pszName) ? -1 : next(pszFile, pszName);
}

VISIBLE int fchmod(int nHandle, mode_t nMode) noexcept
{
    static const auto next = Next<int (*)(int, mode_t)>("fchmod");
    return Fails("fchmod", PathOf(nHandle)) ? -1 : next(nHandle, nMode);
}

VISIBLE int flock(int nHandle, int nOperation) noexcept
{
    static const auto next = Next<int (*)(int, int)>("flock");
    return Fails("flock", PathOf(nHandle)) ? -1 : next(nHandle, nOperation);
}

VISIBLE int getaddrinfo(const char* pszHost, const char* pszService, const addrinfo* pHints, addrinfo** ppResult)
{
    static const auto next = Next<int (*)(const char*, const char*, const addrinfo*, addrinfo**)>("getaddrinfo");
    if (const char* pszSeconds = std::getenv("KV_SILENT_NAME_SERVER"))
    {
        std::fputs("asking the name server\n", stderr);
        ::sleep(unsigned(std::atoi(pszSeconds)));
        return EAI_AGAIN;
    }
    const char* pszAddresses = std::getenv("KV_ADDRESSES");
    if (!pszAddresses)
    {
        return next(pszHost, pszService, pHints, ppResult);
    }
    int nResult = EAI_NONAME;
    for (const std::string& strAddress : Split(pszAddresses, ' '))
    {
        nResult = next(strAddress.c_str(), pszService, pHints, ppResult);
        while (nResult == 0 && *ppResult)
        {
            ppResult = &(*ppResult)->ai_next;
        }
    }
    return nResult;
}
