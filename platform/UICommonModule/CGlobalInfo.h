#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QString>

namespace UICommonMdl
{

/// What all parts of the client share. To be used on the GUI thread.
class UICOMMONMODULE_EXPORT CGlobalInfo
{
public:
    /// The client's language: "en", "zh_CN", "es" or "ar". Until it is set, what Localcfg.ini in the working folder
    /// names under [Language] type (0 "en", 1 "zh_CN", 2 "es", 3 "ar"), read once; anything else counts as "en".
    static QString GetClientStrLanguage();
    static void SetClientStrLanguage(const QString& strLanguage); ///< for what is translated from now on

    /// The folder of the client's skins, translations and data files, without a separator at the end:
    /// $KV_CLIENT_RESOURCES when set, else ../share/local-config-client beside the application's folder when there is
    /// one, else the application's folder.
    static QString GetResourcePath();
};

} // namespace UICommonMdl
