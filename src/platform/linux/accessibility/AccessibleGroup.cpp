#include "platform/linux/accessibility/AccessibleGroup.h"

#include "platform/linux/accessibility/Accessibility.h"

#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>

namespace LinuxDesktop {

namespace {

bool isPart(const QWidget& widget)
{
    return !widget.isWindow() && !widget.isHidden() && accessibleRole(widget) != QAccessible::NoRole &&
           !qobject_cast<const QMenu*>(&widget);
}

/// The tab that shows the page; null for what is no page.
QAccessibleInterface* tabOf(QWidget& page)
{
    QWidget* stack = page.parentWidget();
    const auto* tabs = stack ? qobject_cast<QTabWidget*>(stack->parentWidget()) : nullptr;
    QAccessibleInterface* bar = tabs ? QAccessible::queryAccessibleInterface(tabs->tabBar()) : nullptr;
    return bar ? bar->child(tabs->indexOf(&page)) : nullptr;
}

} // namespace

AccessibleGroup::AccessibleGroup(QWidget& widget, QAccessible::Role role) : QAccessibleWidget(&widget, role) {}

QAccessibleInterface* AccessibleGroup::parent() const
{
    // Of a list that shows its rows itself nobody is told the viewport.
    QWidget* viewport = widget()->parentWidget();
    auto* area = viewport ? qobject_cast<QAbstractScrollArea*>(viewport->parentWidget()) : nullptr;
    const bool isInList = area && area->viewport() == viewport && !qobject_cast<QScrollArea*>(area);
    return isInList ? QAccessible::queryAccessibleInterface(area) : QAccessibleWidget::parent();
}

int AccessibleGroup::childCount() const
{
    return static_cast<int>(parts().size());
}

QAccessibleInterface* AccessibleGroup::child(int index) const
{
    return QAccessible::queryAccessibleInterface(parts().value(index));
}

int AccessibleGroup::indexOfChild(const QAccessibleInterface* child) const
{
    return child ? static_cast<int>(parts().indexOf(qobject_cast<QWidget*>(child->object()))) : -1;
}

QString AccessibleGroup::text(QAccessible::Text text) const
{
    if (text != QAccessible::Name || !widget()->accessibleName().isEmpty())
        return QAccessibleWidget::text(text);
    if (const QLabel* named = heading())
        return named->text();
    const QAccessibleInterface* tab = tabOf(*widget());
    return tab ? tab->text(text) : QAccessibleWidget::text(text);
}

QAccessible::Role AccessibleGroup::role() const
{
    if (const auto said = accessibleRole(*widget()))
        return *said;
    const QAccessible::Role role = QAccessibleWidget::role();
    return role == QAccessible::Grouping && widget()->isWindow() ? QAccessible::Window : role;
}

QAccessible::State AccessibleGroup::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    // Then that one has the keyboard.
    if (widget()->focusProxy()) {
        state.focusable = false;
        state.focused = false;
    }
    return state;
}

QList<QPair<QAccessibleInterface*, QAccessible::Relation>>
AccessibleGroup::relations(QAccessible::Relation match) const
{
    auto found = QAccessibleWidget::relations(match);
    if (match & QAccessible::Label) {
        QLabel* named = heading();
        QAccessibleInterface* label = named ? QAccessible::queryAccessibleInterface(named) : tabOf(*widget());
        if (label)
            found.append({label, QAccessible::Label});
    }
    // There is no relation for a description.
    if (QWidget* subject = match & QAccessible::Labelled ? subjectOf(*widget()) : nullptr)
        found.append({QAccessible::queryAccessibleInterface(subject), QAccessible::Labelled});
    return found;
}

QLabel* AccessibleGroup::heading() const
{
    // A window has its title, and a widget that was given a name has that.
    if (!widget()->accessibleName().isEmpty() || (widget()->isWindow() && role() != QAccessible::AlertMessage))
        return nullptr;
    for (auto* label : widget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
        if (accessibleRole(*label) == QAccessible::Heading && !label->isHidden())
            return label;
    }
    return nullptr;
}

QList<QWidget*> AccessibleGroup::parts() const
{
    // Scrolling by a bar is nothing to those who read.
    if (const auto* area = qobject_cast<QScrollArea*>(widget()))
        return {area->viewport()};
    QList<QWidget*> parts;
    for (auto* each : widget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!isPart(*each))
            continue;
        // A tab widget makes its bar after its pages.
        if (qobject_cast<QTabBar*>(each))
            parts.prepend(each);
        else
            parts.append(each);
    }
    return parts;
}

} // namespace LinuxDesktop
