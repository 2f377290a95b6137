#include "extensions/StatusDot.h"

#include "platform/linux/accessibility/Accessibility.h"

#include <QPainter>

namespace ExtensionsTool {

namespace {

constexpr int extent = 9;

} // namespace

StatusDot::StatusDot(QWidget* parent) : QWidget(parent)
{
    setFixedSize(extent, extent);
    LinuxDesktop::setAccessibleRole(*this, QAccessible::NoRole);
}

void StatusDot::setTone(Tone tone)
{
    m_tone = tone;
    update();
}

void StatusDot::paintEvent(QPaintEvent*)
{
    QColor color = palette().color(QPalette::Disabled, QPalette::WindowText);
    if (m_tone == Tone::Good)
        color = QColor(0x2f, 0xa3, 0x61);
    else if (m_tone == Tone::Attention)
        color = QColor(0xe0, 0x8a, 0x12);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(rect());
}

} // namespace ExtensionsTool
