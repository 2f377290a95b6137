#include "platform/linux/scenes/Accessibility.h"

#include "platform/linux/accessibility/AccessibleGroup.h"
#include "platform/linux/scenes/RowList.h"
#include "platform/linux/scenes/RowWidget.h"

#include <QAbstractButton>
#include <QLabel>

namespace LinuxDesktop {

namespace {

/// A list whose children are its rows in sight, or its words where it has none, without the widgets that only carry
/// them.
class AccessibleRowList : public AccessibleGroup {
public:
    explicit AccessibleRowList(RowList& list) : AccessibleGroup(list, QAccessible::List) {}

protected:
    QList<QWidget*> parts() const override
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

/// A row has its controls alone, which have its title in their names.
class AccessibleRow : public AccessibleGroup {
public:
    explicit AccessibleRow(RowWidget& row) : AccessibleGroup(row, QAccessible::ListItem) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleGroup::state();
        const std::optional<bool> selected = static_cast<const RowWidget*>(widget())->isSelected();
        state.selectable = selected.has_value();
        state.selected = selected.value_or(false);
        return state;
    }

protected:
    QList<QWidget*> parts() const override
    {
        QList<QWidget*> parts;
        for (QAbstractButton* control : static_cast<const RowWidget*>(widget())->controls())
            parts.append(control);
        return parts;
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    if (auto* list = qobject_cast<RowList*>(object))
        return new AccessibleRowList(*list);
    if (auto* row = qobject_cast<RowWidget*>(object))
        return new AccessibleRow(*row);
    return nullptr;
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace LinuxDesktop
