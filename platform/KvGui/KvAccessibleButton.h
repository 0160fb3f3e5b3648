#pragma once

namespace KVGUI
{

/// Has screen readers press check boxes and radio buttons as the mouse does. Qt's own way changes the state alone, and
/// who waits for a click never hears of it.
void PressButtonsByScreenReader();

} // namespace KVGUI
