#pragma once

class QWidget;

namespace LinuxDesktop {

/// Makes a window that has not been shown yet as large as its screen allows at most. Main thread.
void fitToScreen(QWidget& window);

} // namespace LinuxDesktop
