#include "extensions/InformationRow.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace ExtensionsTool {

InformationRow::InformationRow(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::TabFocus);
}

void InformationRow::paintEvent(QPaintEvent*)
{
    if (!hasFocus())
        return;
    QPainter painter(this);
    QStyleOptionFocusRect ring;
    ring.initFrom(this);
    ring.rect.adjust(4, 1, -4, -1);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, this);
}

} // namespace ExtensionsTool
