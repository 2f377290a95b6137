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

bool hasFocus(const QStyleOption& option)
{
    return option.state & QStyle::State_HasFocus;
}

} // namespace

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
    const bool on = option.state & QStyle::State_On;
    QColor fill = on ? palette.color(QPalette::Highlight) : palette.color(QPalette::Base);
    if (isPressed(option))
        fill = mixed(fill, palette.color(QPalette::Text), 0.15F);
    const bool emphasized = on || isHovered(option);
    painter.setPen(QPen(emphasized ? palette.color(QPalette::Highlight) : controlOutline(palette), 1.5));
    painter.setBrush(fill);
    const QRectF box = outlineOf(option.rect, 1.5);
    painter.drawRoundedRect(box, smallRadius, smallRadius);
    if (!on)
        return;
    painter.setPen(QPen(palette.color(QPalette::HighlightedText), box.width() / 8.0, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    const auto point = [&](qreal x, qreal y) { return box.topLeft() + QPointF(x * box.width(), y * box.height()); };
    painter.drawPolyline(QPolygonF{{point(0.25, 0.53), point(0.43, 0.71), point(0.76, 0.31)}});
}

void drawButton(const QStyleOptionButton& option, bool isPrimary, QPainter& painter)
{
    const QPalette& palette = option.palette;
    const bool flat = option.features & QStyleOptionButton::Flat;
    if (flat && !isHovered(option) && !isPressed(option))
        return;
    const SmoothPainter smooth(painter);
    const bool isFilled = isPrimary && (option.state & QStyle::State_Enabled);
    QColor fill = palette.color(isFilled ? QPalette::Highlight : QPalette::Button);
    const QColor& text = palette.color(isFilled ? QPalette::WindowText : QPalette::ButtonText);
    if (isPressed(option))
        fill = mixed(fill, text, isFilled ? 0.3F : 0.16F);
    else if (isHovered(option))
        fill = mixed(fill, text, isFilled ? 0.14F : 0.06F);
    if (!flat && !isFilled) {
        const QColor outline = isHovered(option) ? palette.color(QPalette::Highlight) : controlOutline(palette);
        painter.setPen(option.state & QStyle::State_Enabled ? outline : dividingLine(palette));
    }
    painter.setBrush(fill);
    painter.drawRoundedRect(isFilled ? QRectF(option.rect) : outlineOf(option.rect, 1.0), radius, radius);
}

void drawToolButton(const QStyleOption& option, QPainter& painter)
{
    const bool isDown = option.state & (QStyle::State_Sunken | QStyle::State_On);
    if (!isDown && !isHovered(option))
        return;
    const SmoothPainter smooth(painter);
    painter.setBrush(mixed(option.palette.color(QPalette::Window), option.palette.color(QPalette::WindowText),
                           isDown ? 0.16F : 0.08F));
    painter.drawRoundedRect(option.rect, radius, radius);
}

void drawTab(const QStyleOption& option, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    const QPalette& palette = option.palette;
    if (isHovered(option)) {
        painter.setBrush(mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.06F));
        painter.drawRoundedRect(QRectF(option.rect).adjusted(2, 4, -2, -4), radius, radius);
    }
    if (option.state & QStyle::State_Selected) {
        constexpr qreal thickness = 3.0;
        const QRectF tab(option.rect);
        painter.setBrush(palette.color(QPalette::Highlight));
        painter.drawRoundedRect(
            QRectF(tab.left() + tabPadding, tab.bottom() - thickness, tab.width() - 2 * tabPadding, thickness),
            thickness / 2.0, thickness / 2.0);
    }
}

void drawLineEdit(const QStyleOption& option, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    const QPalette& palette = option.palette;
    const qreal width = hasFocus(option) ? 2.0 : 1.0;
    painter.setPen(QPen(hasFocus(option) ? palette.color(QPalette::Highlight) : controlOutline(palette), width));
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRoundedRect(outlineOf(option.rect, width), radius, radius);
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

void drawOutline(const QStyleOption& option, const QRect& part, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    painter.setPen(QPen(controlOutline(option.palette), 1.0));
    painter.drawRoundedRect(outlineOf(part, 1.0), smallRadius, smallRadius);
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
    const bool emphasized = isHovered(option) || isPressed(option);
    painter.fillRect(option.rect, emphasized ? mixed(base, palette.color(QPalette::Text), 0.06F) : base);
    const QColor line = dividingLine(palette);
    painter.fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1), line);
    const bool isLast =
        option.position == QStyleOptionHeader::End || option.position == QStyleOptionHeader::OnlyOneSection;
    if (isLast)
        return;
    constexpr int inset = 6;
    const int edge = option.direction == Qt::LeftToRight ? option.rect.right() : option.rect.left();
    painter.fillRect(QRect(edge, option.rect.top() + inset, 1, option.rect.height() - 2 * inset), line);
}

void drawMenuHighlight(const QStyleOption& option, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    painter.setBrush(option.palette.color(QPalette::Highlight));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(2, 1, -2, -2), smallRadius, smallRadius);
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
