#pragma once

#include <QStyledItemDelegate>

namespace MenuExtension::Duplicates {

/// Draws a group: its name and what it would save, and under that how many there are. Main thread.
class GroupDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace MenuExtension::Duplicates
