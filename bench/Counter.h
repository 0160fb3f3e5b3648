#pragma once

#include <functional>
#include <string>
#include <vector>

/// Counts what the machine does: instructions in user mode where it can be had, from the processor's counter or from
/// callgrind, else time.
class CCounter
{
public:
    enum Kind
    {
        Processor,
        Callgrind,
        Time
    };

    CCounter();
    ~CCounter();
    CCounter(const CCounter&) = delete;
    CCounter& operator=(const CCounter&) = delete;

    Kind GetKind() const { return m_eKind; }

    /// Counts of callgrind are the same in every round.
    bool IsExact() const { return m_eKind == Callgrind; }
    const char* GetUnit() const { return m_eKind == Time ? "ms" : "million instructions"; }
    const char* GetSource() const;

    double Count(const std::function<void()>& action);

    /// A process from its start to its end.
    double CountProcess(std::vector<std::string> listArguments);

private:
    double CountProcessor(const std::function<void()>& action) const;
    double CountCallgrind(const std::function<void()>& action);

    Kind m_eKind = Time;
    int m_nEvent = -1;
    int m_nDumps = 0;
    std::string m_strDumpFile;
};
