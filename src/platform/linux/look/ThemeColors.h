#pragma once

#include "platform/linux/look/Appearance.h"

#include <QColor>
#include <QPalette>

namespace LinuxDesktop {

/// The panel's own colours. Texts, and the outlines that controls are told by, stand out from what is behind them by
/// 4.5 to 1 at least, in light and in dark; where contrast is to be high by 7 to 1, disabled texts too.
[[nodiscard]] QPalette themePalette(ColorScheme scheme, Contrast contrast = Contrast::Normal);

/// Whether the palette, which may be the desktop's, has nothing but black on white or white on black.
[[nodiscard]] bool isHighContrast(const QPalette& palette);
/// The outline of a control, by the palette that it is drawn with.
[[nodiscard]] QColor controlOutline(const QPalette& palette);
/// A line that only divides; one that cannot be missed in a palette of high contrast.
[[nodiscard]] QColor dividingLine(const QPalette& palette);
/// Of words that tell of something that is wrong.
[[nodiscard]] QColor warningText(const QPalette& palette);
/// One colour with a share of another in it, from 0 to 1.
[[nodiscard]] QColor mixed(const QColor& one, const QColor& other, float share);

} // namespace LinuxDesktop
