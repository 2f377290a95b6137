#include "extension/actions/duplicates/GroupDelegate.h"

#include "extension/actions/duplicates/GroupListModel.h"
#include "platform/linux/look/ControlPainting.h"

#include <QPainter>
#include <QStyle>

namespace MenuExtension::Duplicates {

namespace {

constexpr int around = 10;
constexpr int betweenLines = 3;
constexpr int betweenTexts = 12;

/// A line with one text at its beginning, cut where it is too long, and one at its end.
void drawLine(QPainter& painter, const QStyleOptionViewItem& option, const QRect& line, const QString& beginning,
              const QString& end)
{
    const QFontMetrics metrics = painter.fontMetrics();
    const int endWidth = metrics.horizontalAdvance(end);
    const QRect rest = QStyle::visualRect(option.direction, line,
                                          line.adjusted(0, 0, endWidth > 0 ? -endWidth - betweenTexts : 0, 0));
    const Qt::Alignment side = QStyle::visualAlignment(option.direction, Qt::AlignLeading) | Qt::AlignAbsolute;
    const Qt::Alignment otherSide = QStyle::visualAlignment(option.direction, Qt::AlignTrailing) | Qt::AlignAbsolute;
    painter.drawText(rest, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine,
                     metrics.elidedText(beginning, Qt::ElideMiddle, rest.width()));
    painter.drawText(line, static_cast<int>(otherSide | Qt::AlignVCenter) | Qt::TextSingleLine, end);
}

} // namespace

void GroupDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->save();
    const bool isSelected = option.state & QStyle::State_Selected;
    option.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
    const int height = option.fontMetrics.height();
    QRect line = option.rect.adjusted(around, around - 2, -around, 0);
    line.setHeight(height);
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(option.font);
    drawLine(*painter, option, line, index.data(Qt::DisplayRole).toString(),
             index.data(GroupListModel::SavingRole).toString());
    line.translate(0, height + betweenLines);
    if (!isSelected)
        painter->setPen(option.palette.color(QPalette::PlaceholderText));
    drawLine(*painter, option, line, index.data(GroupListModel::ExplanationRole).toString(),
             index.data(GroupListModel::ChosenRole).toString());
    painter->restore();
    if ((option.state & QStyle::State_HasFocus) && !isSelected)
        LinuxDesktop::ControlPainting::drawFocus(option, *painter);
}

QSize GroupDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {option.fontMetrics.averageCharWidth() * 24,
            2 * option.fontMetrics.height() + betweenLines + 2 * around - 4};
}

} // namespace MenuExtension::Duplicates
