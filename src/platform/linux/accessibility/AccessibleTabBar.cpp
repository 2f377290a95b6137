#include "platform/linux/accessibility/AccessibleTabBar.h"

#include <QPointer>

namespace LinuxDesktop {

namespace {

QString titleOf(const QTabBar& bar, int index)
{
    const QString name = bar.accessibleTabName(index);
    return name.isEmpty() ? bar.tabText(index).remove(u'&') : name;
}

class AccessibleTab : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleTab(QTabBar& bar, int index) : m_bar(&bar), m_index(index) {}

    [[nodiscard]] int index() const { return m_index; }

    bool isValid() const override { return m_bar && m_index < m_bar->count(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return isValid() ? m_bar->window()->windowHandle() : nullptr; }
    QAccessible::Role role() const override { return QAccessible::PageTab; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_bar); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text text) const override
    {
        if (!isValid())
            return {};
        if (text == QAccessible::Name)
            return titleOf(*m_bar, m_index);
        return text == QAccessible::Description ? m_bar->tabToolTip(m_index) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override
    {
        const QRect place = isValid() ? m_bar->tabRect(m_index) : QRect();
        return place.isEmpty() ? QRect() : QRect(m_bar->mapToGlobal(place.topLeft()), place.size());
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid)
            return state;
        state = parent()->state();
        state.disabled = state.disabled || !m_bar->isTabEnabled(m_index);
        state.selectable = true;
        state.selected = m_index == m_bar->currentIndex();
        state.focusable = true;
        state.focused = state.selected && m_bar->hasFocus();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override
    {
        if (!isValid())
            return;
        m_bar->setCurrentIndex(m_index);
        if (action == setFocusAction())
            m_bar->setFocus(Qt::OtherFocusReason);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<QTabBar> m_bar;
    int m_index;
};

} // namespace

AccessibleTabBar::AccessibleTabBar(QTabBar& bar) : QAccessibleWidget(&bar, QAccessible::PageTabList) {}

AccessibleTabBar::~AccessibleTabBar()
{
    for (const QAccessible::Id tab : std::as_const(m_tabs))
        QAccessible::deleteAccessibleInterface(tab);
}

const QTabBar& AccessibleTabBar::bar() const
{
    return *static_cast<QTabBar*>(widget());
}

int AccessibleTabBar::childCount() const
{
    return bar().count();
}

QAccessibleInterface* AccessibleTabBar::child(int index) const
{
    if (index < 0 || index >= bar().count())
        return nullptr;
    QAccessible::Id& tab = m_tabs[index];
    if (!tab)
        tab = QAccessible::registerAccessibleInterface(new AccessibleTab(*static_cast<QTabBar*>(widget()), index));
    return QAccessible::accessibleInterface(tab);
}

int AccessibleTabBar::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* tab = dynamic_cast<const AccessibleTab*>(child);
    return tab ? tab->index() : -1;
}

QString AccessibleTabBar::text(QAccessible::Text text) const
{
    const QString given = QAccessibleWidget::text(text);
    return text == QAccessible::Name && given.isEmpty() ? titleOf(bar(), bar().currentIndex()) : given;
}

} // namespace LinuxDesktop
