#pragma once

#include <QStyledItemDelegate>

namespace LinuxDesktop {

/// Draws rows that can be reached but not selected as what cannot be used.
class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!(index.flags() & Qt::ItemIsSelectable))
            option->state &= ~QStyle::State_Enabled;
    }
};

} // namespace LinuxDesktop
