#include "platform/linux/scenes/PointerShape.h"

#include <QApplication>

namespace LinuxDesktop {

void PointerShape::set(NS::Cursor cursor)
{
    if (m_under)
        m_under->unsetCursor();
    m_under = cursor == NS::Cursor::PointingHand ? QApplication::widgetAt(QCursor::pos()) : nullptr;
    if (m_under)
        m_under->setCursor(Qt::PointingHandCursor);
}

} // namespace LinuxDesktop
