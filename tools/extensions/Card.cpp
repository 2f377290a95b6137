#include "extensions/Card.h"

#include <QPainter>

namespace ExtensionsTool {

void Card::paintEvent(QPaintEvent*)
{
    constexpr qreal corner = 8;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}

} // namespace ExtensionsTool
