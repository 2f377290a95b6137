#pragma once

#include <QPalette>
#include <QStyleOptionViewItem>
#include <QWidget>

namespace LinuxDesktop {

/// Draws what is selected in a view without the keyboard focus between the colours of selected and of plain rows,
/// so that of two lists the one which the keys go to stands out.
inline void softenUnfocusedSelection(const QWidget& view, QStyleOptionViewItem& option)
{
    if (view.hasFocus())
        return;
    const QColor strong = option.palette.color(QPalette::Highlight);
    const QColor plain = option.palette.color(QPalette::Base);
    const auto between = [](int a, int b) { return (2 * a + 3 * b) / 5; };
    option.palette.setColor(QPalette::Highlight,
                            QColor(between(strong.red(), plain.red()), between(strong.green(), plain.green()),
                                   between(strong.blue(), plain.blue())));
    option.palette.setColor(QPalette::HighlightedText, option.palette.color(QPalette::Text));
}

} // namespace LinuxDesktop
