#pragma once

#include <KvGui/KvGuiExport.h>

class QWidget;

namespace KVGUI
{

/// Texts that screen readers tell at once, wherever the focus is.
class KVGUI_EXPORT KvAlert
{
public:
    /// Shows a widget as an alert. One that is shown already is told again, which is for a text that is new. The alert
    /// says the widget's accessible name or, for a label without one, its text.
    static void Show(QWidget* pWidget);
};

} // namespace KVGUI
