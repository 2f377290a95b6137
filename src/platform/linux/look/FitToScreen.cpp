#include "platform/linux/look/FitToScreen.h"

#include <QScreen>
#include <QWidget>

namespace LinuxDesktop {

QSize roomOnScreen(const QWidget& window)
{
    // What a window manager's frame takes, which is not known before the window shows.
    constexpr QSize frame(16, 48);
    return window.screen()->availableSize() - frame;
}

void fitToScreen(QWidget& window)
{
    const QSize room = roomOnScreen(window);
    window.setMinimumSize(window.minimumSize().boundedTo(room));
    window.resize(window.size().boundedTo(room));
}

} // namespace LinuxDesktop
