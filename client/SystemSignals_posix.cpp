#include "SystemSignals.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace LocalConfigClient
{

namespace
{

constexpr std::array<int, 3> g_arrSignals = {SIGTERM, SIGINT, SIGHUP};

std::atomic<int> g_nWakeUp{-1}; // the pipe's end that the handler writes to
static_assert(std::atomic<int>::is_always_lock_free, "for a signal handler");

void OnSignal(int /*nSignal*/)
{
    const int nError = errno;
    const ssize_t nWritten = ::write(g_nWakeUp, "", 1);
    static_cast<void>(nWritten); // a pipe that is full wakes up, too
    errno = nError;
}

} // namespace

/// A handler may do next to nothing, so it only writes to a pipe that the event loop reads.
class SystemSignals::Watch
{
public:
    explicit Watch(SystemSignals& owner)
    {
        if (::pipe2(m_arrPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        {
            return; // the signals do then what they do by default
        }
        m_pNotifier = std::make_unique<QSocketNotifier>(m_arrPipe[0], QSocketNotifier::Read);
        QObject::connect(m_pNotifier.get(), &QSocketNotifier::activated, &owner, [this, &owner] {
            m_pNotifier->setEnabled(false);
            emit owner.SignalEnd();
        });
        g_nWakeUp = m_arrPipe[1];
        for (std::size_t n = 0; n < g_arrSignals.size(); ++n)
        {
            Take(g_arrSignals[n], m_arrOld[n]);
        }
    }

    ~Watch()
    {
        if (!m_pNotifier)
        {
            return;
        }
        for (std::size_t n = 0; n < g_arrSignals.size(); ++n)
        {
            ::sigaction(g_arrSignals[n], &m_arrOld[n], nullptr);
        }
        g_nWakeUp = -1;
        ::close(m_arrPipe[0]);
        ::close(m_arrPipe[1]);
    }

    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

private:
    /// A signal that is ignored, as by nohup, stays so.
    static void Take(int nSignal, struct sigaction& old)
    {
        struct sigaction action = {};
        action.sa_handler = OnSignal;
        action.sa_flags = SA_RESTART | SA_RESETHAND; // the second one finds the default again
        sigemptyset(&action.sa_mask);
        ::sigaction(nSignal, nullptr, &old);
        if (old.sa_handler != SIG_IGN)
        {
            ::sigaction(nSignal, &action, nullptr);
        }
    }

    std::array<int, 2> m_arrPipe = {-1, -1};
    std::array<struct sigaction, 3> m_arrOld = {};
    std::unique_ptr<QSocketNotifier> m_pNotifier;
};

SystemSignals::SystemSignals()
    : m_pWatch(std::make_unique<Watch>(*this))
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &SystemSignals::SignalEnd);
}

SystemSignals::~SystemSignals() = default;

void SystemSignals::SurviveFileSizeLimit()
{
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace LocalConfigClient
