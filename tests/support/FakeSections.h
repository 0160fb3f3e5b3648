#pragma once

#include "Journal.h"

#include <LocalConfig/interfaces/IBasicSection.h>

/// A Basic section that notes its calls and keeps one record.
class CFakeBasicSection : public LocalConfigLogical::IBasicSection
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

private:
    CJournal& m_journal;
};
