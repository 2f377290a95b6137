#pragma once

#include <QPalette>
#include <QStyleOptionViewItem>
#include <QWidget>

namespace LinuxDesktop {

/// Draws what is selected in a view between the colours of selected and of plain rows, so that icons, which are made
/// for plain rows, can be seen on it. Weaker without the keyboard focus, so that of two lists the one which the keys
/// go to stands out.
inline void softenSelection(const QWidget& view, QStyleOptionViewItem& option)
{
    const QColor strong = option.palette.color(QPalette::Highlight);
    const QColor plain = option.palette.color(QPalette::Base);
    const int share = view.hasFocus() ? 40 : 15; // percent
    const auto between = [share](int a, int b) { return (share * a + (100 - share) * b) / 100; };
    option.palette.setColor(QPalette::Highlight,
                            QColor(between(strong.red(), plain.red()), between(strong.green(), plain.green()),
                                   between(strong.blue(), plain.blue())));
    option.palette.setColor(QPalette::HighlightedText, option.palette.color(QPalette::Text));
}

} // namespace LinuxDesktop
