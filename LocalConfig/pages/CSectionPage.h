#pragma once

#include <LocalConfig/interfaces/IConfigSection.h>
#include <LocalConfig/pages/IConfigPage.h>

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

    Section* m_pSection = nullptr; ///< the host's; null before SetConfigSection and after UnInit
};

} // namespace LocalConfig
