#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QTabBar>

namespace LinuxDesktop {

/// A bar of tabs: they alone, without the buttons that scroll the bar, and with which of them is selected.
class AccessibleTabBar : public QAccessibleWidget {
public:
    explicit AccessibleTabBar(QTabBar& bar);
    ~AccessibleTabBar() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text text) const override;

private:
    [[nodiscard]] const QTabBar& bar() const;

    /// By the tab's index. They last as long as the bar.
    mutable QHash<int, QAccessible::Id> m_tabs;
};

} // namespace LinuxDesktop
