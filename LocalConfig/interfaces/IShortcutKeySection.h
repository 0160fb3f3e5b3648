#pragma once

#include <LocalConfig/interfaces/IConfigSection.h>

namespace LocalConfigLogical
{

/// Choice of the keyboard. A default-constructed record holds the built-in default.
struct ShortcutKeyConfigInfo
{
    bool pcKeyboard = true; ///< true PC keyboard, false USB network keyboard with joystick
};

static_assert(sizeof(ShortcutKeyConfigInfo) == 1);

/// Section object of SectionShortcutKey.
class IShortcutKeySection : public IRecordExchange<ShortcutKeyConfigInfo>
{
protected:
    ~IShortcutKeySection() = default;
};

} // namespace LocalConfigLogical
