#pragma once

namespace LinuxDesktop {

enum class ColorScheme { Light, Dark };
enum class Contrast { Normal, High };
enum class Motion { Full, Reduced };

/// The look where the desktop brings none of its own: colours, font, icon theme. A desktop whose own style runs
/// keeps its colours. Call after the QApplication is made and whenever the desktop wishes otherwise. Main thread.
void applyAppearance(ColorScheme scheme, Contrast contrast = Contrast::Normal, Motion motion = Motion::Full);

} // namespace LinuxDesktop
