#include "platform/linux/scenes/Accessibility.h"

#include "platform/linux/scenes/CardWidget.h"
#include "platform/linux/scenes/CollectionGrid.h"
#include "platform/linux/scenes/RowList.h"
#include "platform/linux/scenes/RowWidget.h"

#include <QAccessibleWidget>

namespace LinuxDesktop {

namespace {

/// A list whose children are its rows in sight, or its words where it has none, without the widgets that only carry
/// them.
class AccessibleRowList : public QAccessibleWidget {
public:
    explicit AccessibleRowList(RowList& list) : QAccessibleWidget(&list, QAccessible::List) {}

    int childCount() const override { return static_cast<int>(parts().size()); }

    QAccessibleInterface* child(int index) const override
    {
        const auto shown = parts();
        return index >= 0 && index < shown.size() ? QAccessible::queryAccessibleInterface(shown.at(index)) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child ? static_cast<int>(parts().indexOf(qobject_cast<QWidget*>(child->object()))) : -1;
    }

private:
    QList<QWidget*> parts() const
    {
        const auto& list = *static_cast<RowList*>(widget());
        QList<QWidget*> parts;
        for (RowWidget* row : list.rowsInSight())
            parts.append(row);
        if (list.emptyLabel().isVisible())
            parts.append(&list.emptyLabel());
        return parts;
    }
};

class AccessibleRow : public QAccessibleWidget {
public:
    explicit AccessibleRow(RowWidget& row) : QAccessibleWidget(&row, QAccessible::ListItem) {}

    QAccessibleInterface* parent() const override
    {
        // The row's widget lies in the list's viewport.
        QWidget* viewport = widget()->parentWidget();
        return viewport ? QAccessible::queryAccessibleInterface(viewport->parentWidget()) : nullptr;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const std::optional<bool> selected = static_cast<const RowWidget*>(widget())->isSelected();
        state.selectable = selected.has_value();
        state.selected = selected.value_or(false);
        return state;
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    if (auto* list = qobject_cast<RowList*>(object))
        return new AccessibleRowList(*list);
    if (auto* row = qobject_cast<RowWidget*>(object))
        return new AccessibleRow(*row);
    if (qobject_cast<CollectionGrid*>(object) || qobject_cast<CardWidget*>(object))
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Grouping);
    return nullptr;
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace LinuxDesktop
