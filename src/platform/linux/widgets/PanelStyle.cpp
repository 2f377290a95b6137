#include "platform/linux/widgets/PanelStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace LinuxDesktop {

namespace {

constexpr int boxExtent = 18;
constexpr qreal cornerRadius = 4.0;

QColor mixed(const QColor& one, const QColor& other, float share)
{
    const auto mix = [share](float from, float to) { return from + (to - from) * share; };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

void drawCheckBox(const QStyleOption& option, QPainter& painter)
{
    const QPalette& palette = option.palette;
    const bool on = option.state & QStyle::State_On;
    const bool hovered = option.state & (QStyle::State_MouseOver | QStyle::State_HasFocus);
    QColor fill = on ? palette.color(QPalette::Highlight) : palette.color(QPalette::Base);
    if (option.state & QStyle::State_Sunken)
        fill = mixed(fill, palette.color(QPalette::Text), 0.15F);
    const QColor outline = on || hovered
                               ? palette.color(QPalette::Highlight)
                               : mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.55F);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(outline, 1.5));
    painter.setBrush(fill);
    const QRectF box = QRectF(option.rect).adjusted(0.75, 0.75, -0.75, -0.75);
    painter.drawRoundedRect(box, cornerRadius, cornerRadius);
    if (on) {
        painter.setPen(QPen(palette.color(QPalette::HighlightedText), box.width() / 8.0, Qt::SolidLine, Qt::RoundCap,
                            Qt::RoundJoin));
        const auto point = [&](qreal x, qreal y) { return box.topLeft() + QPointF(x * box.width(), y * box.height()); };
        painter.drawPolyline(QPolygonF{{point(0.25, 0.53), point(0.43, 0.71), point(0.76, 0.31)}});
    }
    painter.restore();
}

void drawFocus(const QStyleOption& option, QPainter& painter)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(option.palette.color(QPalette::Highlight), 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    painter.restore();
}

} // namespace

PanelStyle::PanelStyle() : QProxyStyle(QStringLiteral("fusion")) {}

void PanelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    switch (element) {
    case PE_IndicatorCheckBox:
        drawCheckBox(*option, *painter);
        break;
    case PE_FrameFocusRect:
        drawFocus(*option, *painter);
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

QSize PanelStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_PushButton:
        return size + QSize(16, 4);
    case CT_ItemViewItem:
    case CT_LineEdit:
        return size + QSize(0, 6);
    case CT_MenuBarItem:
    case CT_MenuItem:
    case CT_TabBarTab:
        return size + QSize(8, 4);
    default:
        return size;
    }
}

int PanelStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    if (metric == PM_IndicatorWidth || metric == PM_IndicatorHeight)
        return boxExtent;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

} // namespace LinuxDesktop
