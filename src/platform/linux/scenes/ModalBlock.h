#pragma once

class QWidget;

namespace LinuxDesktop {

/// Whether a sheet or a modal panel is in front of the control's window. The pointer and the keyboard do not reach
/// the control then, but assistive programs do. Main thread.
[[nodiscard]] bool isBlockedByPanel(const QWidget& control);

} // namespace LinuxDesktop
