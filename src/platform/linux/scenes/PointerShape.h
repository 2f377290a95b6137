#pragma once

#include "platform/Cursor.h"

#include <QPointer>
#include <QWidget>

namespace LinuxDesktop {

/// The pointer's shape over this program's widgets. Main thread.
class PointerShape {
public:
    /// The hand is for the widget that the pointer is over, whether its window is active or not; the arrow takes it
    /// back.
    void set(NS::Cursor cursor);

private:
    QPointer<QWidget> m_under;
};

} // namespace LinuxDesktop
