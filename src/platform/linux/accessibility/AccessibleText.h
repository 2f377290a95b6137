#pragma once

#include "platform/linux/accessibility/AccessibleGroup.h"

class QLabel;

namespace LinuxDesktop {

/// A text that cannot be changed, or a picture in its place. It is tied to the group that it is the heading of, or to
/// its subject.
class AccessibleText : public AccessibleGroup {
public:
    explicit AccessibleText(QLabel& label);

    QString text(QAccessible::Text text) const override;
    QAccessible::Role role() const override;
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(QAccessible::Relation match) const override;

private:
    [[nodiscard]] const QLabel& label() const;
};

} // namespace LinuxDesktop
