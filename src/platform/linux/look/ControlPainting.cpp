#include "platform/linux/look/ControlPainting.h"

#include "platform/linux/look/ThemeColors.h"

#include <algorithm>
#include <cmath>

namespace LinuxDesktop::ControlPainting {

namespace {

constexpr qreal smallRadius = 4.0;
constexpr qreal radius = 6.0;
constexpr qreal sheetRadius = 10.0;
constexpr qreal ringWidth = 2.0;
constexpr qreal barThickness = 8.0;

/// The painter for smooth shapes, and as it was before afterwards.
class SmoothPainter {
public:
    explicit SmoothPainter(QPainter& painter) : m_painter(painter)
    {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(Qt::NoBrush);
    }
    ~SmoothPainter() { m_painter.restore(); }
    SmoothPainter(const SmoothPainter&) = delete;
    SmoothPainter& operator=(const SmoothPainter&) = delete;

private:
    QPainter& m_painter;
};

/// Lines of an odd width are sharp when they run through the middles of the pixels.
QRectF outlineOf(const QRect& rect, qreal width)
{
    const qreal inset = width / 2.0;
    return QRectF(rect).adjusted(inset, inset, -inset, -inset);
}

bool isPressed(const QStyleOption& option)
{
    return option.state & QStyle::State_Sunken;
}

bool isHovered(const QStyleOption& option)
{
    return (option.state & QStyle::State_MouseOver) && (option.state & QStyle::State_Enabled);
}

bool isEnabled(const QStyleOption& option)
{
    return option.state & QStyle::State_Enabled;
}

bool hasFocus(const QStyleOption& option)
{
    return option.state & QStyle::State_HasFocus;
}

/// A line round a shape, within it.
void drawOutline(const QRectF& shape, qreal corner, const QPen& pen, QPainter& painter)
{
    const qreal inset = pen.widthF() / 2.0;
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(shape.adjusted(inset, inset, -inset, -inset), corner, corner);
    painter.setPen(Qt::NoPen);
}

/// What has no outline has one in high contrast where it is pointed to or pressed, since between black and white
/// there is no tint.
void drawStrongState(const QStyleOption& option, const QRectF& shape, QPainter& painter)
{
    const QColor& text = option.palette.color(QPalette::Text);
    if (!isEnabled(option))
        drawOutline(shape, radius, brokenLine(option.palette), painter);
    else if (isPressed(option))
        drawOutline(shape, radius, QPen(text, 4.0), painter);
    else if (isHovered(option))
        drawOutline(shape, radius, QPen(text, 2.0), painter);
}

} // namespace

QPen brokenLine(const QPalette& palette)
{
    QPen pen(controlOutline(palette), 1.0);
    pen.setDashPattern({3.0, 3.0});
    return pen;
}

QPen outlineOfControl(const QStyleOption& option)
{
    const QPalette& palette = option.palette;
    const bool isHigh = isHighContrast(palette);
    if (!isEnabled(option))
        return isHigh ? brokenLine(palette) : QPen(dividingLine(palette), 1.0);
    if (isHovered(option) || isPressed(option))
        return {palette.color(QPalette::Highlight), isHigh ? 3.0 : 1.0};
    return {controlOutline(palette), 1.0};
}

void drawSheet(const QRect& rect, const QPalette& palette, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    painter.setPen(dividingLine(palette));
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRoundedRect(outlineOf(rect, 1.0), sheetRadius, sheetRadius);
}

QPainterPath insideOfSheet(const QRect& rect)
{
    QPainterPath inside;
    inside.addRoundedRect(QRectF(rect).adjusted(1, 1, -1, -1), sheetRadius - 1, sheetRadius - 1);
    return inside;
}

void drawCheckBox(const QStyleOption& option, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    const QPalette& palette = option.palette;
    const bool isHigh = isHighContrast(palette);
    const bool on = option.state & QStyle::State_On;
    const QColor& accent = palette.color(QPalette::Highlight);
    const QColor& base = palette.color(QPalette::Base);
    const bool isFilled = on && !(isHigh && (isPressed(option) || !isEnabled(option)));
    QColor fill = isFilled ? accent : base;
    if (!isHigh && isPressed(option))
        fill = mixed(fill, palette.color(QPalette::Text), 0.25F);
    else if (!isHigh && isHovered(option))
        fill = mixed(fill, palette.color(QPalette::Text), on ? 0.14F : 0.06F);
    QPen pen(on || isHovered(option) ? accent : controlOutline(palette), 1.5);
    if (isHigh && !isEnabled(option))
        pen = brokenLine(palette);
    else if (isHigh && isPressed(option))
        pen = QPen(accent, on ? 4.0 : 6.0);
    else if (isHigh && isHovered(option) && !on)
        pen = QPen(accent, 3.0);
    else if (!isEnabled(option) && !on)
        pen.setColor(mixed(base, palette.color(QPalette::Text), 0.36F));
    // One in a row of a view that is selected has the colour of what is behind it.
    if (on && (option.state & QStyle::State_Selected))
        pen.setColor(palette.color(QPalette::HighlightedText));
    const QRectF box(option.rect);
    painter.setBrush(fill);
    painter.drawRoundedRect(box.adjusted(0.75, 0.75, -0.75, -0.75), smallRadius, smallRadius);
    drawOutline(box, smallRadius, pen, painter);
    if (!on)
        return;
    const QColor& mark = isFilled ? palette.color(QPalette::HighlightedText) : controlOutline(palette);
    if (isHigh && isFilled && isHovered(option))
        drawOutline(box.adjusted(2.0, 2.0, -2.0, -2.0), smallRadius - 2.0, QPen(mark, 1.5), painter);
    painter.setPen(QPen(mark, box.width() / 8.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto point = [&](qreal x, qreal y) { return box.topLeft() + QPointF(x * box.width(), y * box.height()); };
    painter.drawPolyline(QPolygonF{{point(0.27, 0.53), point(0.43, 0.68), point(0.73, 0.33)}});
}

QColor buttonText(const QStyleOptionButton& option, bool isPrimary)
{
    const QPalette& palette = option.palette;
    const bool isFilled = isPrimary && isEnabled(option);
    // In high contrast the one that is pressed is the other way round.
    if (isHighContrast(palette) && isPressed(option))
        return palette.color(isFilled ? QPalette::ButtonText : QPalette::Button);
    return palette.color(isFilled ? QPalette::HighlightedText : QPalette::ButtonText);
}

void drawButton(const QStyleOptionButton& option, bool isPrimary, QPainter& painter)
{
    const QPalette& palette = option.palette;
    const bool flat = option.features & QStyleOptionButton::Flat;
    const bool isHigh = isHighContrast(palette);
    if (flat && !isHovered(option) && !isPressed(option) && (!isHigh || isEnabled(option)))
        return;
    const SmoothPainter smooth(painter);
    const bool isFilled = isPrimary && isEnabled(option);
    const bool isInverted = isHigh && isPressed(option);
    QColor fill = palette.color(isFilled ? QPalette::Highlight : flat ? QPalette::Window : QPalette::Button);
    const QColor& text = palette.color(isFilled ? QPalette::WindowText : QPalette::ButtonText);
    if (isInverted)
        fill = isFilled ? palette.color(QPalette::Button) : text;
    else if (!isHigh && isPressed(option))
        fill = mixed(fill, text, isFilled ? 0.3F : 0.16F);
    else if (!isHigh && isHovered(option))
        fill = mixed(fill, text, isFilled ? 0.14F : flat ? 0.08F : 0.06F);
    const QRectF shape(option.rect);
    painter.setBrush(fill);
    painter.drawRoundedRect(isFilled ? shape : shape.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    if (isFilled && isHigh && isHovered(option) && !isPressed(option))
        drawOutline(shape.adjusted(3.0, 3.0, -3.0, -3.0), radius - 3.0,
                    QPen(palette.color(QPalette::HighlightedText), 2.0), painter);
    else if (isInverted ? isFilled : !isFilled && (!flat || isHigh))
        drawOutline(shape, radius, outlineOfControl(option), painter);
}

void drawToolButton(const QStyleOption& option, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    const QPalette& palette = option.palette;
    const bool isOn = option.state & QStyle::State_On;
    if (isHighContrast(palette)) {
        drawStrongState(option, option.rect, painter);
        if (isOn && isEnabled(option)) {
            const QRectF bar(option.rect.left() + radius, option.rect.bottom() - 5, option.rect.width() - 2 * radius,
                             4);
            painter.setBrush(palette.color(QPalette::Highlight));
            painter.drawRoundedRect(bar, 2.0, 2.0);
        }
        return;
    }
    const float share = isPressed(option) ? 0.24F : isOn ? 0.16F : isHovered(option) ? 0.08F : 0.0F;
    if (share <= 0.0F)
        return;
    painter.setBrush(mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), share));
    painter.drawRoundedRect(option.rect, radius, radius);
}

QRect markOfTab(const QRect& tab)
{
    constexpr int thickness = 3;
    return {tab.left() + tabPadding, tab.bottom() - thickness, tab.width() - 2 * tabPadding, thickness};
}

void drawTab(const QStyleOption& option, const QRect& mark, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    const QPalette& palette = option.palette;
    const QRectF shape = QRectF(option.rect).adjusted(2, 4, -2, -4);
    if (isHighContrast(palette)) {
        drawStrongState(option, shape.adjusted(0, 0, 0, -2), painter);
    } else if (isHovered(option) || isPressed(option)) {
        painter.setBrush(mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText),
                               isPressed(option) ? 0.16F : 0.06F));
        painter.drawRoundedRect(shape, radius, radius);
    }
    if (option.state & QStyle::State_Selected) {
        const qreal corner = mark.height() / 2.0;
        painter.setBrush(palette.color(QPalette::Highlight));
        painter.drawRoundedRect(mark, corner, corner);
    }
}

void drawItem(const QStyleOptionViewItem& option, QPainter& painter)
{
    const QPalette& palette = option.palette;
    const bool isSelected = option.state & QStyle::State_Selected;
    const SmoothPainter smooth(painter);
    painter.setClipRect(option.rect);
    if (isSelected)
        painter.fillRect(option.rect, palette.color(palette.currentColorGroup(), QPalette::Highlight));
    if (!isHighContrast(palette)) {
        if (isHovered(option)) {
            QColor tint = palette.color(QPalette::Text);
            tint.setAlphaF(0.06F);
            painter.fillRect(option.rect, tint);
        }
        return;
    }
    if (!isHovered(option) && !isSelected)
        return;
    // A row may be of several parts.
    using Position = QStyleOptionViewItem::ViewItemPosition;
    const Position position = option.viewItemPosition;
    const bool leftToRight = option.direction == Qt::LeftToRight;
    const int beyond = 8;
    QRectF shape(option.rect);
    if (position == Position::Middle || position == (leftToRight ? Position::End : Position::Beginning))
        shape.setLeft(shape.left() - beyond);
    if (position == Position::Middle || position == (leftToRight ? Position::Beginning : Position::End))
        shape.setRight(shape.right() + beyond);
    drawOutline(shape, 1.0, QPen(palette.color(QPalette::Text), isSelected ? 3.0 : 1.5), painter);
}

void drawLineEdit(const QStyleOption& option, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    const QPalette& palette = option.palette;
    const bool isHigh = isHighContrast(palette);
    // The toolkit calls each field sunken.
    QStyleOption field(option);
    field.state &= ~QStyle::State_Sunken;
    QPen pen = outlineOfControl(field);
    if (hasFocus(option))
        pen = QPen(palette.color(QPalette::Highlight), isHigh ? 3.0 : 2.0);
    else if (isHigh && isHovered(option))
        pen = QPen(controlOutline(palette), 2.0);
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRoundedRect(outlineOf(option.rect, 1.0), radius, radius);
    drawOutline(option.rect, radius, pen, painter);
}

void drawFrame(const QStyleOption& option, QPainter& painter, bool filled)
{
    if (filled) {
        drawSheet(option.rect, option.palette, painter);
        return;
    }
    const SmoothPainter smooth(painter);
    painter.setPen(dividingLine(option.palette));
    painter.drawRoundedRect(outlineOf(option.rect, 1.0), 2.0, 2.0);
}

void drawArrow(const QRect& place, bool down, const QColor& color, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF middle = QRectF(place).center();
    const qreal tip = down ? 2.0 : -2.0;
    painter.drawPolyline(
        QPolygonF{{middle + QPointF(-4.0, -tip), middle + QPointF(0.0, tip), middle + QPointF(4.0, -tip)}});
}

void drawSlider(const QStyleOptionSlider& option, const QRect& handle, bool showsFocus, QPainter& painter)
{
    constexpr qreal thickness = 4.0;
    const SmoothPainter smooth(painter);
    const QPalette& palette = option.palette;
    const bool isHigh = isHighContrast(palette);
    const bool upright = option.orientation == Qt::Vertical;
    const QRectF whole(option.rect);
    const QPointF middle = QRectF(handle).center();
    QRectF groove = upright ? QRectF(middle.x() - thickness / 2, whole.top(), thickness, whole.height())
                            : QRectF(whole.left(), middle.y() - thickness / 2, whole.width(), thickness);
    painter.setBrush(mixed(palette.color(QPalette::Window), palette.color(QPalette::Text), isHigh ? 1.0F : 0.28F));
    if (isHigh && !isEnabled(option))
        drawOutline(groove, thickness / 2, brokenLine(palette), painter);
    else
        painter.drawRoundedRect(groove, thickness / 2, thickness / 2);
    if (isEnabled(option)) {
        // As far as the value goes.
        if (upright)
            option.upsideDown ? groove.setTop(middle.y()) : groove.setBottom(middle.y());
        else
            option.upsideDown ? groove.setLeft(middle.x()) : groove.setRight(middle.x());
        painter.setBrush(palette.color(QPalette::Highlight));
        painter.drawRoundedRect(groove, thickness / 2, thickness / 2);
    }
    const qreal extent = std::min(handle.width(), handle.height());
    QRectF knob(0, 0, extent, extent);
    knob.moveCenter(middle);
    QColor fill = palette.color(QPalette::Button);
    if (isEnabled(option) && isPressed(option))
        fill = isHigh ? palette.color(QPalette::Text) : mixed(fill, palette.color(QPalette::ButtonText), 0.2F);
    painter.setBrush(fill);
    painter.drawEllipse(knob.adjusted(0.5, 0.5, -0.5, -0.5));
    drawOutline(knob, extent / 2, outlineOfControl(option), painter);
    if (showsFocus)
        drawOutline(knob.adjusted(-focusRoom, -focusRoom, focusRoom, focusRoom) & whole, extent,
                    QPen(palette.color(QPalette::Highlight), ringWidth), painter);
}

void drawFocus(const QStyleOption& option, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    painter.setPen(QPen(option.palette.color(QPalette::Highlight), ringWidth));
    painter.drawRoundedRect(outlineOf(option.rect, ringWidth), smallRadius, smallRadius);
}

void drawFocusAround(const QStyleOption& option, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    painter.setPen(QPen(option.palette.color(QPalette::Highlight), ringWidth));
    const QRect ring = option.rect.adjusted(-focusRoom, -focusRoom, focusRoom, focusRoom);
    const qreal corner = radius + focusRoom - ringWidth / 2.0;
    painter.drawRoundedRect(outlineOf(ring, ringWidth), corner, corner);
}

void drawHeaderSection(const QStyleOptionHeader& option, QPainter& painter)
{
    const QPalette& palette = option.palette;
    const QColor& base = palette.color(QPalette::Base);
    const bool isHigh = isHighContrast(palette);
    const float share = isHigh ? 0.0F : isPressed(option) ? 0.16F : isHovered(option) ? 0.06F : 0.0F;
    painter.fillRect(option.rect, mixed(base, palette.color(QPalette::Text), share));
    const QColor line = dividingLine(palette);
    const int thickness = isHigh && isPressed(option) ? 5 : isHigh && isHovered(option) ? 3 : 1;
    painter.fillRect(QRect(option.rect.left(), option.rect.bottom() + 1 - thickness, option.rect.width(), thickness),
                     line);
    const bool isLast =
        option.position == QStyleOptionHeader::End || option.position == QStyleOptionHeader::OnlyOneSection;
    if (isLast)
        return;
    constexpr int inset = 6;
    const int edge = option.direction == Qt::LeftToRight ? option.rect.right() : option.rect.left();
    painter.fillRect(QRect(edge, option.rect.top() + inset, 1, option.rect.height() - 2 * inset), line);
}

QColor drawMenuHighlight(const QStyleOption& option, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    const QPalette& palette = option.palette;
    const QRectF shape = QRectF(option.rect).adjusted(2, 1, -2, -2);
    QColor fill = palette.color(QPalette::Highlight);
    if (isPressed(option) && isHighContrast(palette)) {
        drawOutline(shape, smallRadius, QPen(fill, 3.0), painter);
        return palette.color(QPalette::Text);
    }
    if (isPressed(option))
        fill = mixed(fill, palette.color(QPalette::WindowText), 0.25F);
    painter.setBrush(fill);
    painter.drawRoundedRect(shape, smallRadius, smallRadius);
    return palette.color(QPalette::HighlightedText);
}

void drawProgress(const QStyleOptionProgressBar& option, qreal busyWay, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    const QPalette& palette = option.palette;
    const QRectF bar =
        QRectF(option.rect)
            .adjusted(0, (option.rect.height() - barThickness) / 2.0, 0, (barThickness - option.rect.height()) / 2.0);
    const qreal corner = barThickness / 2.0;
    const auto drawPiece = [&](qreal from, qreal length) {
        const qreal left = option.direction == Qt::RightToLeft ? bar.width() - from - length : from;
        painter.drawRoundedRect(QRectF(bar.left() + left, bar.top(), length, barThickness), corner, corner);
    };
    painter.setBrush(dividingLine(palette));
    drawPiece(0, bar.width());
    painter.setBrush(palette.color(QPalette::Highlight));
    if (const qreal whole = qreal(option.maximum) - option.minimum; whole > 0) {
        // Even the first of it is a dot, and not a part of one.
        if (const qreal done = (option.progress - option.minimum) / whole; done > 0)
            drawPiece(0, std::max(barThickness, std::min(done, 1.0) * bar.width()));
    } else {
        const qreal length = bar.width() / 3.0;
        drawPiece((1.0 - std::abs(2.0 * busyWay - 1.0)) * (bar.width() - length), length);
    }
}

void drawScrollHandle(const QStyleOption& option, const QRect& handle, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    const bool emphasized = isHovered(option) || isPressed(option);
    const QPalette& palette = option.palette;
    painter.setBrush(mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), emphasized ? 0.75F : 0.64F));
    const QRectF bar = QRectF(handle).adjusted(2, 2, -2, -2);
    const qreal corner = std::min(bar.width(), bar.height()) / 2.0;
    painter.drawRoundedRect(bar, corner, corner);
}

} // namespace LinuxDesktop::ControlPainting
