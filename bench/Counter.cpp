#include "Counter.h"

#include <linux/perf_event.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <valgrind/callgrind.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <spawn.h>

namespace
{

constexpr double g_dMillion = 1e6;

int OpenProcessorCounter()
{
    perf_event_attr attributes;
    std::memset(&attributes, 0, sizeof attributes);
    attributes.size = sizeof attributes;
    attributes.type = PERF_TYPE_HARDWARE;
    attributes.config = PERF_COUNT_HW_INSTRUCTIONS;
    attributes.disabled = 1;
    attributes.inherit = 1; // of the processes that are started, too
    attributes.exclude_kernel = 1;
    attributes.exclude_hv = 1;
    return int(syscall(SYS_perf_event_open, &attributes, 0, -1, -1, 0));
}

/// The sum of a file that callgrind has written.
double ReadDump(const std::string& strFile)
{
    std::ifstream file(strFile);
    for (std::string strLine; std::getline(file, strLine);)
    {
        for (const char* pszKey : {"summary: ", "totals: "})
        {
            if (strLine.rfind(pszKey, 0) == 0)
            {
                return std::strtod(strLine.c_str() + std::strlen(pszKey), nullptr) / g_dMillion;
            }
        }
    }
    std::fprintf(stderr, "bench-rows: no sum in %s\n", strFile.c_str());
    std::exit(2);
}

void Run(std::vector<std::string> listArguments)
{
    std::vector<char*> listPointers;
    for (std::string& strArgument : listArguments)
    {
        listPointers.push_back(strArgument.data());
    }
    listPointers.push_back(nullptr);
    pid_t nProcess = 0;
    int nStatus = 1;
    if (posix_spawnp(&nProcess, listPointers[0], nullptr, nullptr, listPointers.data(), environ) != 0 ||
        waitpid(nProcess, &nStatus, 0) != nProcess || nStatus != 0)
    {
        std::fprintf(stderr, "bench-rows: %s failed\n", listPointers[0]);
        std::exit(2);
    }
}

} // namespace

CCounter::CCounter()
{
    const char* pszDumpFile = std::getenv("BENCH_DUMP_FILE");
    if (RUNNING_ON_VALGRIND && pszDumpFile)
    {
        m_eKind = Callgrind;
        m_strDumpFile = pszDumpFile;
        return;
    }
    m_nEvent = OpenProcessorCounter();
    m_eKind = m_nEvent >= 0 ? Processor : Time;
}

CCounter::~CCounter()
{
    if (m_nEvent >= 0)
    {
        close(m_nEvent);
    }
}

const char* CCounter::GetSource() const
{
    return m_eKind == Processor   ? "the processor's counter"
           : m_eKind == Callgrind ? "callgrind"
                                  : "the clock, because nothing counts instructions here";
}

double CCounter::Count(const std::function<void()>& action)
{
    switch (m_eKind)
    {
    case Processor:
        return CountProcessor(action);
    case Callgrind:
        return CountCallgrind(action);
    case Time:
        break;
    }
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double CCounter::CountProcessor(const std::function<void()>& action) const
{
    std::uint64_t nInstructions = 0;
    ioctl(m_nEvent, PERF_EVENT_IOC_RESET, 0);
    ioctl(m_nEvent, PERF_EVENT_IOC_ENABLE, 0);
    action();
    ioctl(m_nEvent, PERF_EVENT_IOC_DISABLE, 0);
    if (read(m_nEvent, &nInstructions, sizeof nInstructions) != sizeof nInstructions)
    {
        std::perror("bench-rows");
        std::exit(2);
    }
    return double(nInstructions) / g_dMillion;
}

double CCounter::CountCallgrind(const std::function<void()>& action)
{
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
    action();
    CALLGRIND_DUMP_STATS;
    CALLGRIND_STOP_INSTRUMENTATION;
    const std::string strFile = m_strDumpFile + '.' + std::to_string(++m_nDumps);
    const double dSum = ReadDump(strFile);
    if (!std::getenv("BENCH_KEEP_DUMPS"))
    {
        std::remove(strFile.c_str());
    }
    return dSum;
}

double CCounter::CountProcess(std::vector<std::string> listArguments)
{
    if (m_eKind != Callgrind)
    {
        return Count([&listArguments] { Run(std::move(listArguments)); });
    }
    const std::string strFile = m_strDumpFile + ".process";
    listArguments.insert(listArguments.begin(),
                         {"valgrind", "--quiet", "--tool=callgrind", "--callgrind-out-file=" + strFile});
    Run(std::move(listArguments));
    return ReadDump(strFile);
}
