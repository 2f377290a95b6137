#include "extension/actions/duplicates/ItemView.h"

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

} // namespace MenuExtension::Duplicates
