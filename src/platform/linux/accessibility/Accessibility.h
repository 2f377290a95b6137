#pragma once

#include <QAccessible>
#include <QString>
#include <QWidget>

#include <optional>

namespace LinuxDesktop {

// What assistive programs are told of widgets beside what the toolkit tells. Main thread.

/// Makes containers groups, windows frames, and tells which tab is selected. Call it once there is an application.
void installAccessibleContainers();

/// Says what a widget is where its class does not: a heading, an alert, a list. NoRole is decoration, which is not
/// told of. A group and an alert are named by the first heading right in them.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);
/// Nothing where it was not said.
[[nodiscard]] std::optional<QAccessible::Role> accessibleRole(const QWidget& widget);

/// As the toolkit's own, but tells of a change only where there is one.
void setAccessibleName(QWidget& widget, const QString& name);
void setAccessibleDescription(QWidget& widget, const QString& description);

/// Ties words, a label or what has a name, to what they are about. Both live in one window.
void tieWords(QWidget& words, QWidget& subject);
/// Null for what is tied to nothing.
[[nodiscard]] QWidget* subjectOf(const QWidget& words);
/// Describes a subject by all the words that are tied to it and not hidden, in the order in which they were tied.
/// Call it when some of them have changed.
void describeByWords(QWidget& subject);

/// Has words said to those who do not see that something in the window has changed. Nothing while it is not on view.
void announce(QWidget& about, const QString& words);

} // namespace LinuxDesktop
