#pragma once

#include <QString>

#include <initializer_list>

class QLabel;
class QLineEdit;
class QPushButton;
class QSplitter;
class QWidget;

namespace MenuExtension {

// What the windows of actions are made of, alike in all of them. Main thread.

/// What a window or a page of it is about, in letters that say so; readers of the screen are told that it is a
/// heading.
[[nodiscard]] QLabel* makeHeading(QWidget* parent);
/// The same in more lines than one where it is long, as the names in it may be.
[[nodiscard]] QLabel* makeLongHeading(QWidget* parent);
/// A text that is shown as it is.
[[nodiscard]] QLabel* makeText(QWidget* parent);
/// The same in more lines than one where it is long.
[[nodiscard]] QLabel* makeParagraph(QWidget* parent);
/// A text beside or below what it explains.
[[nodiscard]] QLabel* makeNote(QWidget* parent);
/// The same, of a file's name or path: cut in its middle where the room is short, and then the whole is its tool tip.
[[nodiscard]] QLabel* makeNameNote(QWidget* parent);

/// A button that Return presses as Space does. The one that a person most likely wants `isPrimary`.
[[nodiscard]] QPushButton* makeButton(const QString& title, QWidget* parent, bool isPrimary = false);

/// A line that what is shown is looked through by, with a button that empties it. `hint` is shown while it is empty.
[[nodiscard]] QLineEdit* makeSearch(const QString& name, const QString& hint, QWidget* parent);

/// Siblings are read in this order, whichever was made first.
void readInOrder(std::initializer_list<QWidget*> siblings);

/// Two widgets side by side, between which the person divides the room.
[[nodiscard]] QSplitter* makeSplitter(QWidget* first, QWidget* second, QWidget* parent);

/// Escape, Ctrl+W and Ctrl+Q close it.
void closeByKeyboard(QWidget& window);

} // namespace MenuExtension
