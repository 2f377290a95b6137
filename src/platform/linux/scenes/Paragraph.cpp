#include "platform/linux/scenes/Paragraph.h"

#include "platform/linux/accessibility/Accessibility.h"

#include <QPainter>
#include <QTextLayout>

namespace LinuxDesktop {

Paragraph::Paragraph(QWidget* parent) : Label(parent)
{
    setWordWrap(true);
    setAccessibleRole(*this, QAccessible::Paragraph);
}

bool Paragraph::isCut() const
{
    return heightForWidth(width()) > height();
}

void Paragraph::paintCut(QPainter& painter)
{
    painter.setPen(palette().color(foregroundRole()));
    const QRect room = contentsRect();
    const QString whole = text();
    QTextLayout layout(whole, font());
    layout.setTextOption(QTextOption(alignment()));
    layout.beginLayout();
    qreal top = 0.0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(room.width());
        line.setPosition({0.0, top});
        top += line.height();
        if (top + line.height() <= room.height())
            continue;
        // No line fits below this one, so it ends with what is left.
        const QString rest = fontMetrics().elidedText(whole.mid(line.textStart()), Qt::ElideRight, room.width());
        painter.drawText(QRectF(room.left(), room.top() + line.y(), room.width(), line.height()),
                         static_cast<int>((alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignTop), rest);
        break;
    }
    layout.endLayout();
    for (int line = 0; line + 1 < layout.lineCount(); ++line)
        layout.lineAt(line).draw(&painter, room.topLeft());
}

} // namespace LinuxDesktop
