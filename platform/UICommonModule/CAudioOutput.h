#pragma once

#include <UICommonModule/UICommonModuleExport.h>

namespace UICommonMdl
{

/// What there is to hear sounds with. For the GUI thread.
class UICOMMONMODULE_EXPORT CAudioOutput
{
public:
    /// Whether a sound would be heard. To be asked before a QSound is made, which waits for ever in its caller's thread
    /// where no sound server answers.
    static bool IsAvailable();
};

} // namespace UICommonMdl
