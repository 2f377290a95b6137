#pragma once

#include <QSize>

class QWidget;

namespace LinuxDesktop {

/// The largest that a window may be on its screen, without its frame. Main thread.
[[nodiscard]] QSize roomOnScreen(const QWidget& window);

/// Makes a window that has not been shown yet as large as its screen allows at most. Main thread.
void fitToScreen(QWidget& window);

} // namespace LinuxDesktop
