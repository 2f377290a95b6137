#include "extensions/Switch.h"

#include "platform/linux/look/ThemeColors.h"

#include <QPainter>
#include <QSignalBlocker>

namespace ExtensionsTool {

using LinuxDesktop::controlOutline;
using LinuxDesktop::mixed;

namespace {

constexpr QSizeF track(44, 24);
/// Between the track's rim and the knob, and from the track to the ring that shows the focus.
constexpr qreal gap = 3;
constexpr qreal ring = 2;

} // namespace

Switch::Switch(QWidget* parent) : QCheckBox(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Assistive programs may toggle it without a click.
    connect(this, &QCheckBox::toggled, this, [this](bool on) {
        setOn(!on);
        emit asked(on);
    });
}

void Switch::setOn(bool on)
{
    const QSignalBlocker nobodyOperatesIt(this);
    setChecked(on);
}

QSize Switch::sizeHint() const
{
    constexpr qreal around = 2 * (ring + 2);
    return (track + QSizeF(around, around)).toSize();
}

void Switch::nextCheckState()
{
    // Nothing is switched yet, and nobody is to hear that it was.
    emit asked(!isChecked());
}

bool Switch::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

void Switch::enterEvent(QEnterEvent* event)
{
    QCheckBox::enterEvent(event);
    update();
}

void Switch::leaveEvent(QEvent* event)
{
    QCheckBox::leaveEvent(event);
    update();
}

void Switch::paintEvent(QPaintEvent*)
{
    const QColor text = palette().color(QPalette::Text);
    const QColor base = palette().color(QPalette::Base);
    const QColor accent = palette().color(QPalette::Highlight);
    QColor fill = isChecked() ? accent : isEnabled() ? controlOutline(palette()) : mixed(base, text, 0.2F);
    if (isEnabled() && (isDown() || underMouse()))
        fill = mixed(fill, text, isDown() ? 0.2F : 0.08F);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF body(QPointF(), track);
    body.moveCenter(QRectF(rect()).center());
    const qreal radius = body.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(body, radius, radius);

    const qreal extent = body.height() - 2 * gap;
    QRectF knob(body.left() + gap, body.top() + gap, extent, extent);
    const bool knobIsRight = isChecked() != (layoutDirection() == Qt::RightToLeft);
    if (knobIsRight)
        knob.moveRight(body.right() - gap);
    painter.setBrush(isEnabled() ? palette().color(isChecked() ? QPalette::HighlightedText : QPalette::Base)
                                 : mixed(fill, base, 0.6F));
    painter.drawEllipse(knob);

    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        painter.setPen(QPen(accent, ring));
        painter.setBrush(Qt::NoBrush);
        const qreal outside = ring / 2 + 1.5;
        painter.drawRoundedRect(body.adjusted(-outside, -outside, outside, outside), radius + outside,
                                radius + outside);
    }
}

} // namespace ExtensionsTool
