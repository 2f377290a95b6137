#include "extension/actions/window/LongHeading.h"

#include <QPainter>
#include <QTextLayout>
#include <QtMath>

#include <algorithm>

namespace MenuExtension {

LongHeading::LongHeading(QWidget* parent) : QLabel(parent)
{
    setWordWrap(true);
}

int LongHeading::heightForWidth(int width) const
{
    QTextLayout layout(text(), font(), this);
    return layOut(layout, width);
}

QSize LongHeading::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void LongHeading::paintEvent(QPaintEvent*)
{
    QTextLayout layout(text(), font(), this);
    const int spare = height() - layOut(layout, width());
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    layout.draw(&painter, QPointF(0.0, std::max(spare / 2, 0)));
}

int LongHeading::layOut(QTextLayout& layout, int width) const
{
    // The toolkit's own wraps between words alone.
    QTextOption option(alignment());
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    qreal height = 0.0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0.0, height});
        height += line.height();
    }
    layout.endLayout();
    return qCeil(height);
}

} // namespace MenuExtension
