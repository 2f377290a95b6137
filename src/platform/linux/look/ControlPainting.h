#pragma once

#include <QPainter>
#include <QStyleOption>

/// How the panel's style draws controls, from the palette of the option.
namespace LinuxDesktop::ControlPainting {

void drawCheckBox(const QStyleOption& option, QPainter& painter);
void drawButton(const QStyleOptionButton& option, QPainter& painter);
void drawTab(const QStyleOption& option, QPainter& painter);
void drawLineEdit(const QStyleOption& option, QPainter& painter);
/// The frame around a list or a group of controls; `filled` with the base colour.
void drawFrame(const QStyleOption& option, QPainter& painter, bool filled);
/// The outline of a part of a control.
void drawOutline(const QStyleOption& option, const QRect& part, QPainter& painter);
void drawFocus(const QStyleOption& option, QPainter& painter);
/// Behind the title of a list's column.
void drawHeaderSection(const QStyleOptionHeader& option, QPainter& painter);
void drawMenuBar(const QStyleOption& option, QPainter& painter);
/// Behind a menu's or a menu bar's item that is pointed to.
void drawMenuHighlight(const QStyleOption& option, QPainter& painter);
/// A bar of work without its words. Where the end is not known a piece goes to and fro as `busyWay` goes from 0 to 1.
void drawProgress(const QStyleOptionProgressBar& option, qreal busyWay, QPainter& painter);
void drawScrollHandle(const QStyleOption& option, const QRect& handle, QPainter& painter);

} // namespace LinuxDesktop::ControlPainting
