#include "extensions/Switch.h"

#include "platform/linux/look/ControlPainting.h"
#include "platform/linux/look/ThemeColors.h"

#include <QPainter>
#include <QSignalBlocker>

#include <utility>

namespace ExtensionsTool {

using LinuxDesktop::controlOutline;
using LinuxDesktop::mixed;

namespace {

constexpr QSizeF track(44, 24);
/// Between the track's rim and the knob, and from the track to the ring that shows the focus.
constexpr qreal gap = 3;
constexpr qreal ring = 2;
/// How much longer the knob is while it is pressed.
constexpr qreal stretch = 5;

} // namespace

Switch::Switch(QWidget* parent) : QCheckBox(parent), m_movement(*this, [this] { update(); })
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Assistive programs may toggle it without a click.
    connect(this, &QCheckBox::toggled, this, [this](bool on) {
        setOn(!on);
        ask(on);
    });
}

void Switch::setOn(bool on)
{
    const QSignalBlocker nobodyOperatesIt(this);
    const bool changes = on != isChecked();
    setChecked(on);
    if (changes && std::exchange(m_isOperated, false))
        m_movement.begin();
}

QSize Switch::sizeHint() const
{
    constexpr qreal around = 2 * (ring + 2);
    return (track + QSizeF(around, around)).toSize();
}

void Switch::nextCheckState()
{
    // Nothing is switched yet, and nobody is to hear that it was.
    ask(!isChecked());
}

void Switch::ask(bool on)
{
    m_isOperated = true;
    emit asked(on);
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
    const bool isHigh = LinuxDesktop::isHighContrast(palette());
    const bool isHovered = isEnabled() && underMouse();
    const bool isPressed = isEnabled() && isDown();
    // From off to on.
    const qreal way = isChecked() ? m_movement.way() : 1.0 - m_movement.way();
    const auto onTheWay = [way](const QColor& off, const QColor& on) {
        return mixed(off, on, static_cast<float>(way));
    };
    QColor fill = onTheWay(isEnabled() ? controlOutline(palette()) : mixed(base, text, 0.2F), accent);
    if (isPressed || isHovered)
        fill = mixed(fill, text, isPressed ? 0.35F : 0.2F);
    // What cannot be used is hollow where a grey would not tell it.
    const bool isHollow = isHigh && !isEnabled();

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF body(QPointF(), track);
    body.moveCenter(QRectF(rect()).center());
    const qreal radius = body.height() / 2;
    painter.setPen(isHollow ? LinuxDesktop::ControlPainting::brokenLine(palette()) : QPen(Qt::NoPen));
    painter.setBrush(isHollow ? base : fill);
    painter.drawRoundedRect(isHollow ? body.adjusted(0.5, 0.5, -0.5, -0.5) : body, radius, radius);

    // The knob gives way below the finger, and comes towards a pointer where a tint would not be seen.
    const qreal rim = isHigh && (isHovered || isPressed) ? gap - 2 : gap;
    const qreal extent = body.height() - 2 * rim;
    const qreal length = isPressed ? extent + stretch : extent;
    const qreal passage = body.width() - 2 * rim - length;
    const qreal passed = layoutDirection() == Qt::RightToLeft ? 1.0 - way : way;
    painter.setPen(Qt::NoPen);
    painter.setBrush(isHollow      ? text
                     : isEnabled() ? onTheWay(base, palette().color(QPalette::HighlightedText))
                                   : mixed(fill, base, 0.6F));
    painter.drawRoundedRect(QRectF(body.left() + rim + passed * passage, body.top() + rim, length, extent),
                            extent / 2, extent / 2);

    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        painter.setPen(QPen(accent, ring));
        painter.setBrush(Qt::NoBrush);
        const qreal outside = ring / 2 + 1.5;
        painter.drawRoundedRect(body.adjusted(-outside, -outside, outside, outside), radius + outside,
                                radius + outside);
    }
}

} // namespace ExtensionsTool
