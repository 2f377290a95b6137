#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QStyleOption>

/// How the panel's style draws controls, from the palette of the option.
namespace LinuxDesktop::ControlPainting {

/// The room that a control leaves for the ring which shows that it has the keyboard.
inline constexpr int focusRoom = 4;
/// Between a tab's edge and its text.
inline constexpr int tabPadding = 8;

/// A sheet with round corners, for what belongs together.
void drawSheet(const QRect& rect, const QPalette& palette, QPainter& painter);
/// What lies within a sheet, for what is painted up to its edge.
[[nodiscard]] QPainterPath insideOfSheet(const QRect& rect);

/// The line round a control that is told by one. Where contrast is high it is thick where the control is pointed to
/// or pressed, and broken where it cannot be used: neither a tint nor a grey tells that.
[[nodiscard]] QPen outlineOfControl(const QStyleOption& option);
[[nodiscard]] QPen brokenLine(const QPalette& palette);

void drawCheckBox(const QStyleOption& option, QPainter& painter);
/// `isPrimary` for the one that a person most likely wants.
void drawButton(const QStyleOptionButton& option, bool isPrimary, QPainter& painter);
[[nodiscard]] QColor buttonText(const QStyleOptionButton& option, bool isPrimary);
/// A button that is nothing but its picture.
void drawToolButton(const QStyleOption& option, QPainter& painter);
/// Where the mark of the selected tab is.
[[nodiscard]] QRect markOfTab(const QRect& tab);
/// `mark` is drawn with the selected tab only, wherever it is on its way.
void drawTab(const QStyleOption& option, const QRect& mark, QPainter& painter);
/// Behind what a view shows of an item.
void drawItem(const QStyleOptionViewItem& option, QPainter& painter);
void drawLineEdit(const QStyleOption& option, QPainter& painter);
/// The frame around a list or a group of controls; `filled` with the base colour.
void drawFrame(const QStyleOption& option, QPainter& painter, bool filled);
/// An arrow up or down in the middle of a place.
void drawArrow(const QRect& place, bool down, const QColor& color, QPainter& painter);
/// `showsFocus` for a ring around the knob.
void drawSlider(const QStyleOptionSlider& option, const QRect& handle, bool showsFocus, QPainter& painter);
/// A ring inside the option's rectangle.
void drawFocus(const QStyleOption& option, QPainter& painter);
/// A ring around a control that leaves `focusRoom` for it.
void drawFocusAround(const QStyleOption& option, QPainter& painter);
/// Behind the title of a list's column.
void drawHeaderSection(const QStyleOptionHeader& option, QPainter& painter);
/// Behind a menu's item that is pointed to; answers the colour of its text.
QColor drawMenuHighlight(const QStyleOption& option, QPainter& painter);
/// A bar of work without its words. Where the end is not known a piece goes to and fro as `busyWay` goes from 0 to 1.
void drawProgress(const QStyleOptionProgressBar& option, qreal busyWay, QPainter& painter);
void drawScrollHandle(const QStyleOption& option, const QRect& handle, QPainter& painter);

} // namespace LinuxDesktop::ControlPainting
