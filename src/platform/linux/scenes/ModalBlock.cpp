#include "platform/linux/scenes/ModalBlock.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace LinuxDesktop {

bool isBlockedByPanel(const QWidget& control)
{
    const QWidget* window = control.window();
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [&](const QWidget* panel) {
        if (panel == window || !panel->isVisible())
            return false;
        // Of two panels, the one that belongs to the other is in front.
        if (panel->windowModality() == Qt::ApplicationModal)
            return window->windowModality() != Qt::ApplicationModal && !panel->isAncestorOf(window);
        return panel->windowModality() == Qt::WindowModal && panel->parentWidget() &&
               panel->parentWidget()->window() == window;
    });
}

} // namespace LinuxDesktop
