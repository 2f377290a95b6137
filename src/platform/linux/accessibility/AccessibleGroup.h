#pragma once

#include <QAccessibleWidget>

class QLabel;

namespace LinuxDesktop {

/// A container: what shows in it and is not decoration, in the order in which it is read. Its name is the one that it
/// was given, its window's title, its tab's, or the heading right in it.
class AccessibleGroup : public QAccessibleWidget {
public:
    /// `role` is what the widget is where nobody says otherwise; a group that is a window is a frame.
    AccessibleGroup(QWidget& widget, QAccessible::Role role);

    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text text) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(QAccessible::Relation match) const override;

    /// The heading that gives the group its name; null for none.
    [[nodiscard]] QLabel* heading() const;

protected:
    [[nodiscard]] virtual QList<QWidget*> parts() const;
};

} // namespace LinuxDesktop
