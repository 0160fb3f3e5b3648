#pragma once

#include <LocalConfig/interfaces/IConfigSection.h>
#include <LocalConfig/pages/IConfigPage.h>

#include <utility>

namespace LocalConfig
{

/// The half of the page contract that does not depend on the page: holding its section object.
template <class Section, class Record>
class CSectionPage : public IConfigPage
{
public:
    int SetConfigSection(Section* pSection)
    {
        if (!pSection)
        {
            return -1;
        }
        m_pSection = pSection;
        LoadConfig(false);
        return 0;
    }

    int SetSection(LocalConfigLogical::IConfigSection* pSection) override
    {
        return SetConfigSection(static_cast<Section*>(pSection));
    }

    void UnInit() override { m_pSection = nullptr; }

    std::function<void()> TakeRefusal() override { return std::exchange(m_refusal, nullptr); }

protected:
    /// The section's current values over the built-in defaults; the defaults alone when asked for or without a section.
    Record GetRecord(bool bDefault = false) const
    {
        Record record;
        if (m_pSection && !bDefault)
        {
            m_pSection->GetConfig(record);
        }
        return record;
    }

    std::function<void()> m_refusal; ///< what leads to the field that the last save has refused
    Section* m_pSection = nullptr;   ///< the host's; null before SetConfigSection and after UnInit
};

} // namespace LocalConfig
