#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QCoreApplication>

namespace UICommonMdl
{

/// What there is to hear sounds with. For the GUI thread.
class UICOMMONMODULE_EXPORT CAudioOutput
{
    Q_DECLARE_TR_FUNCTIONS(CAudioOutput)

public:
    /// Whether a sound would be heard. To be asked before a QSound is made, which waits for ever in its caller's thread
    /// where no sound server answers.
    static bool IsAvailable();

    /// Likewise, for a sound that the user has asked for: tells him in the notification bar when it would not be heard,
    /// but not again until there has been something to hear it with.
    static bool IsAvailableOrTell();
};

} // namespace UICommonMdl
