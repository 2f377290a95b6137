#include "platform/linux/scenes/Accessibility.h"

#include "platform/linux/accessibility/AccessibleGroup.h"
#include "platform/linux/scenes/MenuButton.h"
#include "platform/linux/scenes/RowList.h"
#include "platform/linux/scenes/RowWidget.h"

#include <QAccessibleWidget>
#include <QMenu>

namespace LinuxDesktop {

namespace {

/// A list whose children are its rows in sight, without the widget that only carries them.
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
        for (QWidget* stop : static_cast<const RowWidget*>(widget())->stops()) {
            if (stop != widget())
                parts.append(stop);
        }
        return parts;
    }
};

/// A button whose child is its menu while that is open. By the toolkit's word a menu belongs to nobody.
class AccessibleMenuButton : public QAccessibleWidget {
public:
    explicit AccessibleMenuButton(MenuButton& button) : QAccessibleWidget(&button, QAccessible::ButtonMenu) {}

    int childCount() const override { return menu() ? 1 : 0; }

    QAccessibleInterface* child(int index) const override
    {
        return index == 0 && menu() ? QAccessible::queryAccessibleInterface(menu()) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child && child->object() == menu() ? 0 : -1;
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString& name) override
    {
        if (name == pressAction())
            // Who asked is not kept waiting until the menu has gone.
            QMetaObject::invokeMethod(widget(), "showMenu", Qt::QueuedConnection);
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QMenu* menu() const
    {
        QMenu* menu = static_cast<MenuButton*>(widget())->menu();
        return menu && menu->isVisible() ? menu : nullptr;
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    if (auto* list = qobject_cast<RowList*>(object))
        return new AccessibleRowList(*list);
    if (auto* row = qobject_cast<RowWidget*>(object))
        return new AccessibleRow(*row);
    if (auto* button = qobject_cast<MenuButton*>(object))
        return new AccessibleMenuButton(*button);
    return nullptr;
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace LinuxDesktop
