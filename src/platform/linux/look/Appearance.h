#pragma once

namespace LinuxDesktop {

enum class ColorScheme { Light, Dark };

/// The look where the desktop brings none of its own: colours, font, icon theme. A desktop whose own style runs
/// keeps its colours. Call after the QApplication is made and whenever the colour scheme changes. Main thread.
void applyAppearance(ColorScheme scheme);

} // namespace LinuxDesktop
