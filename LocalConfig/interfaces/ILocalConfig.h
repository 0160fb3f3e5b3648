#pragma once

#include <LocalConfig/interfaces/ReservedSlots.h>

namespace LocalConfigLogical
{

class IConfigSection;

/// Selects a section object. Not the index of the navigation list.
enum SectionType : int
{
    SectionBasic = 1,
    SectionVideo,
    SectionPlayback,
    SectionSnapshot,
    SectionRecord,
    SectionAlarm,
    SectionShortcutKey,
    SectionTvWall,
    SectionSecurity = 9
};

/// The host's configuration service.
class ILocalConfig
{
public:
    LOCALCONFIG_RESERVED_SLOTS_2(0, 1)

    /// Slot 2. The section object of a SectionType, owned by the host; null when the host has none, in which case
    /// that page refuses to save. Called once per page, at the dialog's first show, on the GUI thread.
    virtual IConfigSection* GetSection(int nSectionType) = 0;

    LOCALCONFIG_RESERVED_SLOTS_2(3, 4)

    /// Slot 5. Persists all sections. Called on the GUI thread once every page has stored its record.
    /// \return 1 on success, any other value is an error code that UICommonMdl::CErrorCode describes.
    virtual int SaveAll() = 0;

protected:
    ~ILocalConfig() = default;
};

} // namespace LocalConfigLogical
