#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QPalette>
#include <QString>

class QWidget;

/// Skins. To be used on the GUI thread.
namespace Pxa
{

/// A path inside the current skin; an empty file gives the path of the folder, ending in "/".
UICOMMONMODULE_EXPORT QString GetSkinPath(const QString& strFolder, const QString& strFile);

/// Reads a style sheet. A file that has not changed since (in size and time) is read once. Where the application is
/// laid out from right to left, left and right are exchanged in what Qt does not mirror itself: margins, paddings,
/// borders of one side, gradients. Its font sizes, which go with texts of 13 pixels, grow with larger ones of the
/// application.
/// \return false when the file cannot be read; \a strOut is then as it was
UICOMMONMODULE_EXPORT bool loadStyleSheet(const QString& strPath, QString& strOut);

/// The colours of the current skin, for what no style sheet reaches; the application's own where the skin has none.
UICOMMONMODULE_EXPORT QPalette GetPalette();

/// The current skin, "DustyBlue" or "White". Until it is set, what Localcfg.ini in the working folder names under
/// [Skin] version, read once; anything else counts as "DustyBlue". Style sheets reach the files of the current skin
/// with the prefix "skin:", as in url(skin:public/check.svg).
UICOMMONMODULE_EXPORT QString GetSkin();

/// For the client's start; an unknown name counts as "DustyBlue".
UICOMMONMODULE_EXPORT void SetSkin(const QString& strSkin);

/// What any control may need.
class UICOMMONMODULE_EXPORT QCommon
{
public:
    /// Gives a control (button, label, edit, combo or group box) its own text as tool tip when the text is wider than
    /// the control, and takes that tool tip away again once it is not.
    static void AddToolTipByControlWidth(QWidget* pControl);
};

} // namespace Pxa
