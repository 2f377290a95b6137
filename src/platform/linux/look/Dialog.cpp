#include "platform/linux/look/Dialog.h"

#include <QWindow>

namespace LinuxDesktop {

void Dialog::done(int result)
{
    // Only the window that has the keyboard may say who is next.
    if (QWindow* const parent = isActiveWindow() ? windowHandle()->transientParent() : nullptr)
        parent->requestActivate();
    QDialog::done(result);
}

} // namespace LinuxDesktop
