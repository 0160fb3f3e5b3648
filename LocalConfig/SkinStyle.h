#pragma once

class QWidget;

namespace LocalConfig
{

/// Gives a widget the style sheet that the current skin keeps for it in the folder "LocalConfig", in a file named
/// after its object name. A skin without such a file leaves the widget as it is.
void ApplySkinStyle(QWidget* pWidget);

} // namespace LocalConfig
