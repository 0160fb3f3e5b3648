#pragma once

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <functional>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

/// A fork of this process that runs a piece of work under the eyes of this one: its system calls are counted, and at
/// any of them it can be killed or told that the call has failed. Linux on x86-64 alone.
///
/// What the work has done is told by numbers in memory that both share, since a killed child returns nothing.
class CTracedChild
{
public:
    /// What the work may write and this process reads. All zero at first.
    struct Shared
    {
        volatile int nAcknowledged;
        volatile int nResult;
    };

    CTracedChild()
        : m_pShared(static_cast<Shared*>(
              ::mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)))
    {}
    ~CTracedChild() { ::munmap(m_pShared, sizeof(Shared)); }
    CTracedChild(const CTracedChild&) = delete;
    CTracedChild& operator=(const CTracedChild&) = delete;

    const Shared& GetShared() const { return *m_pShared; }

    /// Called at each stop. nStop counts from 0: even ones stand before a call, odd ones behind it.
    /// \return what to do
    enum Action
    {
        GoOn,
        Kill,
        Fail ///< with the error that SetError names; before a call only
    };
    using Watcher = std::function<Action(int nStop, long nCall)>;

    void SetError(int nError) { m_nError = nError; }

    /// Runs the work in a child until it ends or is killed.
    /// \return whether it came to its own end
    bool Run(const std::function<void(Shared&)>& work, const Watcher& watcher)
    {
        m_pShared->nAcknowledged = 0;
        m_pShared->nResult = 0;
        const pid_t nChild = ::fork();
        if (nChild == 0)
        {
            ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            ::raise(SIGSTOP);
            work(*m_pShared);
            ::_exit(0);
        }
        int nStatus = 0;
        ::waitpid(nChild, &nStatus, 0);
        ::ptrace(PTRACE_SETOPTIONS, nChild, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
        return Follow(nChild, watcher);
    }

private:
    static bool IsCallStop(int nStatus) { return WIFSTOPPED(nStatus) && WSTOPSIG(nStatus) == (SIGTRAP | 0x80); }

    bool Follow(pid_t nChild, const Watcher& watcher)
    {
        int nSignal = 0;
        bool bFailing = false;
        for (int nStop = 0;;)
        {
            ::ptrace(PTRACE_SYSCALL, nChild, nullptr, nSignal);
            nSignal = 0;
            int nStatus = 0;
            if (::waitpid(nChild, &nStatus, 0) != nChild || !WIFSTOPPED(nStatus))
            {
                return WIFEXITED(nStatus);
            }
            if (!IsCallStop(nStatus))
            {
                nSignal = WSTOPSIG(nStatus); // the child's own, such as one that a size limit sends
                continue;
            }
            user_regs_struct registers{};
            ::ptrace(PTRACE_GETREGS, nChild, nullptr, &registers);
            if (bFailing)
            {
                registers.rax = static_cast<unsigned long long>(-static_cast<long long>(m_nError));
                ::ptrace(PTRACE_SETREGS, nChild, nullptr, &registers);
                bFailing = false;
            }
            const Action eAction = watcher(nStop++, long(registers.orig_rax));
            if (eAction == Kill)
            {
                ::kill(nChild, SIGKILL);
                ::waitpid(nChild, &nStatus, 0);
                return false;
            }
            if (eAction == Fail)
            {
                registers.orig_rax = static_cast<unsigned long long>(-1); // no such call, so nothing is done
                ::ptrace(PTRACE_SETREGS, nChild, nullptr, &registers);
                bFailing = true;
            }
        }
    }

    Shared* m_pShared;
    int m_nError = EIO;
};
