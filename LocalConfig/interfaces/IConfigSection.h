#pragma once

#include <LocalConfig/interfaces/ReservedSlots.h>

namespace LocalConfigLogical
{

/// Base of every section object. Slots 0 to 2 are the host's own; each section interface goes on from slot 3.
///
/// A section object belongs to the host and must outlive the dialog's use of it, that is until
/// LocalConfig::CLocalConfig::UnInitUI. All calls arrive on the GUI thread.
class IConfigSection
{
public:
    LOCALCONFIG_RESERVED_SLOTS_2(0, 1)
    LOCALCONFIG_RESERVED_SLOT(2)

protected:
    ~IConfigSection() = default;
};

/// The two operations that most sections consist of.
template <class Record>
class IRecordExchange : public IConfigSection
{
public:
    /// Slot 3. Stores the record in the section; ILocalConfig::SaveAll persists it.
    /// \return 0 when stored; any other value refuses the save and is passed back to the dialog.
    virtual int SetConfig(const Record& record) = 0;

    /// Slot 4. Overwrites \a record, which holds the built-in defaults, with the current values. A section that
    /// knows only some of the fields leaves the others as they are.
    virtual void GetConfig(Record& record) = 0;

protected:
    ~IRecordExchange() = default;
};

} // namespace LocalConfigLogical
