#pragma once

#include "Journal.h"

#include <LocalConfig/interfaces/IAlarmSection.h>
#include <LocalConfig/interfaces/IBasicSection.h>

#include <functional>

/// A section that notes its calls and keeps one record.
template <class Interface, class Record>
class CFakeSection final : public Interface
{
public:
    explicit CFakeSection(CJournal& journal)
        : m_journal(journal)
    {}

    int SetConfig(const Record& record) override
    {
        m_journal.Note(QStringLiteral("SetConfig"));
        if (m_nResult == 0)
        {
            m_record = record;
        }
        return m_nResult;
    }

    void GetConfig(Record& record) override
    {
        m_journal.Note(QStringLiteral("GetConfig"));
        record = m_record;
    }

    Record m_record;
    int m_nResult = 0;

private:
    CJournal& m_journal;
};

/// A Basic section that notes its calls and keeps one record.
class CFakeBasicSection final : public LocalConfigLogical::IBasicSection
{
public:
    explicit CFakeBasicSection(CJournal& journal)
        : m_journal(journal)
    {}

    void SetAutoRunState(bool bAutoRun) override
    {
        m_journal.Note(QStringLiteral("SetAutoRunState %1").arg(bAutoRun ? "true" : "false"));
    }

    int SetConfig(const LocalConfigLogical::BasicConfigInfo& record) override
    {
        m_journal.Note(QStringLiteral("SetConfig"));
        if (m_onSetConfig)
        {
            m_onSetConfig();
        }
        if (m_nResult == 0)
        {
            m_record = record;
        }
        return m_nResult;
    }

    void GetConfig(LocalConfigLogical::BasicConfigInfo& record) override
    {
        m_journal.Note(QStringLiteral("GetConfig"));
        record = m_record;
    }

    LocalConfigLogical::BasicConfigInfo m_record;
    int m_nResult = 0;
    std::function<void()> m_onSetConfig;

private:
    CJournal& m_journal;
};

/// An Alarm section that notes its calls and keeps one record.
class CFakeAlarmSection final : public LocalConfigLogical::IAlarmSection
{
public:
    explicit CFakeAlarmSection(CJournal& journal)
        : m_journal(journal)
    {}

    int SetConfig(const LocalConfigLogical::AlarmConfigInfo& record, bool bPersist) override
    {
        m_journal.Note(QStringLiteral("SetConfig %1").arg(bPersist ? "true" : "false"));
        if (m_nResult == 0)
        {
            m_record = record;
        }
        return m_nResult;
    }

    void GetConfig(LocalConfigLogical::AlarmConfigInfo& record) override
    {
        m_journal.Note(QStringLiteral("GetConfig"));
        record = m_record;
    }

    void ResetConfig(bool bUseDefaults) override
    {
        m_journal.Note(QStringLiteral("ResetConfig %1").arg(bUseDefaults ? "true" : "false"));
    }

    void PrepareSave() override { m_journal.Note(QStringLiteral("PrepareSave")); }

    LocalConfigLogical::AlarmConfigInfo m_record;
    int m_nResult = 0;

private:
    CJournal& m_journal;
};
