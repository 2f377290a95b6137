#include "extension/actions/duplicates/ItemView.h"

#include <QAccessible>
#include <QKeyEvent>

namespace MenuExtension::Duplicates {

ItemView::ItemView(QWidget* parent) : QTreeView(parent)
{
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideMiddle);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    // Tab goes on to the next control.
    setTabKeyNavigation(false);
}

void ItemView::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex box = currentIndex().siblingAtColumn(0);
    if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier || !box.isValid()) {
        QTreeView::keyPressEvent(event);
        return;
    }
    const bool isChecked = box.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model()->setData(box, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

/// The toolkit tells assistive programs of no box in a list that is checked.
void ItemView::dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles)
{
    QTreeView::dataChanged(first, last, roles);
    if (!QAccessible::isActive() || !roles.contains(Qt::CheckStateRole))
        return;
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(this);
    QAccessible::State changed;
    changed.checked = true;
    for (int row = first.row(); row <= last.row(); ++row) {
        if (QAccessibleInterface* const cell = list->tableInterface()->cellAt(row, first.column())) {
            QAccessibleStateChangeEvent event(cell, changed);
            QAccessible::updateAccessibility(&event);
        }
    }
}

} // namespace MenuExtension::Duplicates
