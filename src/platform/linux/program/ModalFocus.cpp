#include "platform/linux/program/ModalFocus.h"

#include <QGuiApplication>
#include <QWindow>

namespace LinuxDesktop {

namespace {

bool isBlocked(const QWindow& window, const QWindow& modal)
{
    // Menus and tool tips are nobody's to block.
    if ((window.type() != Qt::Window && window.type() != Qt::Dialog) || modal.isAncestorOf(&window))
        return false;
    return modal.modality() == Qt::ApplicationModal || window.isAncestorOf(&modal);
}

} // namespace

void passFocusToModalWindows()
{
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, qGuiApp, [](const QWindow* window) {
        QWindow* const modal = QGuiApplication::modalWindow();
        if (window && modal && modal != window && isBlocked(*window, *modal))
            modal->requestActivate();
    });
}

} // namespace LinuxDesktop
