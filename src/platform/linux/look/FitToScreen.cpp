#include "platform/linux/look/FitToScreen.h"

#include <QScreen>
#include <QWidget>

namespace LinuxDesktop {

void fitToScreen(QWidget& window)
{
    // What a window manager's frame takes, which is not known before the window shows.
    constexpr QSize frame(16, 48);
    const QSize room = window.screen()->availableSize() - frame;
    window.setMinimumSize(window.minimumSize().boundedTo(room));
    window.resize(window.size().boundedTo(room));
}

} // namespace LinuxDesktop
