#include "platform/linux/look/Card.h"

#include "platform/linux/look/ThemeColors.h"

#include <QPainter>

namespace LinuxDesktop {

void Card::paintEvent(QPaintEvent*)
{
    constexpr qreal corner = 10.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(dividingLine(palette()));
    painter.setBrush(palette().color(QPalette::Base));
    // Whole pixels, each line in the middle of its own.
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}

} // namespace LinuxDesktop
