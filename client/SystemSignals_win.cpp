#include "SystemSignals.h"

#include <QGuiApplication>

#include <mutex>
#include <windows.h>

namespace LocalConfigClient
{

namespace
{

std::mutex g_mutex;
SystemSignals* g_pOwner = nullptr; // null before and after the watch, and once it has been told

/// Runs in a thread of the system's.
BOOL WINAPI OnConsole(DWORD nEvent)
{
    {
        const std::lock_guard<std::mutex> locker(g_mutex);
        if (!g_pOwner)
        {
            return FALSE; // the second time the system ends the program
        }
        QMetaObject::invokeMethod(g_pOwner, &SystemSignals::SignalEnd, Qt::QueuedConnection);
        g_pOwner = nullptr;
    }
    if (nEvent == CTRL_CLOSE_EVENT || nEvent == CTRL_LOGOFF_EVENT || nEvent == CTRL_SHUTDOWN_EVENT)
    {
        ::Sleep(INFINITE); // once this returns, the system ends the program; it is to end by itself meanwhile
    }
    return TRUE;
}

} // namespace

class SystemSignals::Watch
{
public:
    explicit Watch(SystemSignals& owner)
    {
        const std::lock_guard<std::mutex> locker(g_mutex);
        g_pOwner = &owner;
        ::SetConsoleCtrlHandler(&OnConsole, TRUE);
    }

    ~Watch()
    {
        ::SetConsoleCtrlHandler(&OnConsole, FALSE);
        const std::lock_guard<std::mutex> locker(g_mutex);
        g_pOwner = nullptr;
    }

    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
};

SystemSignals::SystemSignals()
    : m_pWatch(std::make_unique<Watch>(*this))
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &SystemSignals::SignalEnd);
}

SystemSignals::~SystemSignals() = default;

void SystemSignals::SurviveFileSizeLimit()
{
    // There is no such limit.
}

} // namespace LocalConfigClient
