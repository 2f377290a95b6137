#include "platform/linux/program/WindowSurroundings.h"

#include "platform/linux/accessibility/Accessibility.h"
#include "platform/linux/bus/ActivationToken.h"
#include "platform/linux/look/Appearance.h"
#include "platform/linux/program/ModalFocus.h"
#include "platform/linux/program/Resources.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace LinuxDesktop {

WindowSurroundings::WindowSurroundings(SessionBus& bus, const QString& programs)
    : m_translations(programs), m_appearance(bus, [](const AppearanceWishes& wishes) {
          applyAppearance(wishes.dark ? ColorScheme::Dark : ColorScheme::Light,
                          wishes.highContrast ? Contrast::High : Contrast::Normal,
                          wishes.reducedMotion || wishes.noAnimations ? Motion::Reduced : Motion::Full);
      })
{
    installAccessibleContainers();
    passFocusToModalWindows();
    applyAppearance(ColorScheme::Light);
    // It is drawn in many sizes, which can wait until the window shows.
    QTimer::singleShot(0, this, [programs] { QApplication::setWindowIcon(productIcon(programs)); });
    QCoreApplication::instance()->installEventFilter(this);
}

bool WindowSurroundings::eventFilter(QObject*, QEvent* event)
{
    // The first window is activated with the token, which is used up then.
    if (event->type() == QEvent::Expose) {
        ActivationToken::forget();
        QCoreApplication::instance()->removeEventFilter(this);
    }
    return false;
}

} // namespace LinuxDesktop
