#include "platform/linux/scenes/ModalBlock.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace LinuxDesktop {

namespace {

bool blocks(const QWidget& panel, const QWidget& window)
{
    if (&panel == &window || !panel.isVisible())
        return false;
    // Of two panels, the one that belongs to the other is in front.
    if (panel.windowModality() == Qt::ApplicationModal)
        return window.windowModality() != Qt::ApplicationModal && !panel.isAncestorOf(&window);
    return panel.windowModality() == Qt::WindowModal && panel.parentWidget() &&
           panel.parentWidget()->window() == &window;
}

} // namespace

QWidget* panelInFrontOf(const QWidget& window)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto blocking = [&](const QWidget& blocked) -> QWidget* {
        const auto found =
            std::ranges::find_if(windows, [&](const QWidget* panel) { return blocks(*panel, blocked); });
        return found == windows.end() ? nullptr : *found;
    };
    QWidget* front = blocking(window);
    // A panel may be blocked in its turn.
    while (QWidget* further = front ? blocking(*front) : nullptr)
        front = further;
    return front;
}

bool isBlockedByPanel(const QWidget& control)
{
    return panelInFrontOf(*control.window());
}

} // namespace LinuxDesktop
