#pragma once

class QWidget;

namespace LinuxDesktop {

/// The sheet or modal panel that has the keyboard in the place of the window; null where the window itself has it.
/// Main thread.
[[nodiscard]] QWidget* panelInFrontOf(const QWidget& window);

/// Whether a sheet or a modal panel is in front of the control's window. The pointer and the keyboard do not reach
/// the control then, but assistive programs do. Main thread.
[[nodiscard]] bool isBlockedByPanel(const QWidget& control);

} // namespace LinuxDesktop
