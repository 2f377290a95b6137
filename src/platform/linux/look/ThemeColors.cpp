#include "platform/linux/look/ThemeColors.h"

#include <array>
#include <cstdlib>

namespace LinuxDesktop {

namespace {

struct RoleColor {
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
    QRgb lightDisabled;
    QRgb darkDisabled;
};

constexpr std::array colors{
    RoleColor{QPalette::Window, 0xfff5f6f8, 0xff1f2124, 0xfff5f6f8, 0xff1f2124},
    RoleColor{QPalette::WindowText, 0xff1c1e21, 0xffe9eaec, 0xff676c73, 0xff979da5},
    RoleColor{QPalette::Base, 0xffffffff, 0xff292c30, 0xfff5f6f8, 0xff24272a},
    RoleColor{QPalette::AlternateBase, 0xfff9fafb, 0xff2e3135, 0xfff5f6f8, 0xff24272a},
    RoleColor{QPalette::Text, 0xff1c1e21, 0xffe9eaec, 0xff676c73, 0xff979da5},
    RoleColor{QPalette::PlaceholderText, 0xff5f656d, 0xffa3a9b1, 0xff676c73, 0xff979da5},
    RoleColor{QPalette::Button, 0xfffdfdfe, 0xff34383d, 0xfff0f1f3, 0xff2a2d31},
    RoleColor{QPalette::ButtonText, 0xff1c1e21, 0xffe9eaec, 0xff676c73, 0xff979da5},
    RoleColor{QPalette::BrightText, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff},
    RoleColor{QPalette::Light, 0xffffffff, 0xff464b52, 0xffffffff, 0xff3a3e44},
    RoleColor{QPalette::Midlight, 0xfff0f1f4, 0xff3a3e44, 0xfff0f1f4, 0xff34383d},
    RoleColor{QPalette::Mid, 0xffd5d8dd, 0xff191b1d, 0xffdfe2e6, 0xff191b1d},
    RoleColor{QPalette::Dark, 0xffa9aeb6, 0xff141517, 0xffc4c8ce, 0xff141517},
    RoleColor{QPalette::Shadow, 0xff70757c, 0xff0b0c0d, 0xff9a9fa6, 0xff0b0c0d},
    RoleColor{QPalette::Highlight, 0xff2563c9, 0xff82aef8, 0xffb9c4d6, 0xff44505f},
    RoleColor{QPalette::HighlightedText, 0xffffffff, 0xff0f1722, 0xff1c1e21, 0xffe9eaec},
    RoleColor{QPalette::Link, 0xff1f5bbd, 0xff8ab4f5, 0xff676c73, 0xff979da5},
    RoleColor{QPalette::LinkVisited, 0xff6b4ba8, 0xffb79df0, 0xff676c73, 0xff979da5},
    RoleColor{QPalette::ToolTipBase, 0xff2b2e33, 0xff3d4248, 0xff2b2e33, 0xff3d4248},
    RoleColor{QPalette::ToolTipText, 0xfff4f5f7, 0xfff4f5f7, 0xfff4f5f7, 0xfff4f5f7},
};

/// The same with nothing between black and white that a text or a line would have to be made out against. What is
/// disabled is told by its grey, which can still be read.
constexpr std::array highContrastColors{
    RoleColor{QPalette::Window, 0xffffffff, 0xff000000, 0xffffffff, 0xff000000},
    RoleColor{QPalette::WindowText, 0xff000000, 0xffffffff, 0xff4d4d4d, 0xffb3b3b3},
    RoleColor{QPalette::Base, 0xffffffff, 0xff000000, 0xffffffff, 0xff000000},
    RoleColor{QPalette::AlternateBase, 0xffffffff, 0xff000000, 0xffffffff, 0xff000000},
    RoleColor{QPalette::Text, 0xff000000, 0xffffffff, 0xff4d4d4d, 0xffb3b3b3},
    RoleColor{QPalette::PlaceholderText, 0xff333333, 0xffd6d6d6, 0xff4d4d4d, 0xffb3b3b3},
    RoleColor{QPalette::Button, 0xffffffff, 0xff000000, 0xffffffff, 0xff000000},
    RoleColor{QPalette::ButtonText, 0xff000000, 0xffffffff, 0xff4d4d4d, 0xffb3b3b3},
    RoleColor{QPalette::BrightText, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff},
    RoleColor{QPalette::Light, 0xffffffff, 0xff8c8c8c, 0xffffffff, 0xff8c8c8c},
    RoleColor{QPalette::Midlight, 0xffe0e0e0, 0xff666666, 0xffe0e0e0, 0xff666666},
    RoleColor{QPalette::Mid, 0xff595959, 0xffb3b3b3, 0xff595959, 0xffb3b3b3},
    RoleColor{QPalette::Dark, 0xff404040, 0xff404040, 0xff404040, 0xff404040},
    RoleColor{QPalette::Shadow, 0xff000000, 0xff000000, 0xff000000, 0xff000000},
    RoleColor{QPalette::Highlight, 0xff00379e, 0xff8fc1ff, 0xff9aa7bd, 0xff3f4d60},
    RoleColor{QPalette::HighlightedText, 0xffffffff, 0xff000000, 0xff000000, 0xffffffff},
    RoleColor{QPalette::Link, 0xff00379e, 0xff9ecbff, 0xff4d4d4d, 0xffb3b3b3},
    RoleColor{QPalette::LinkVisited, 0xff551a8b, 0xffd9b8ff, 0xff4d4d4d, 0xffb3b3b3},
    RoleColor{QPalette::ToolTipBase, 0xff000000, 0xffffffff, 0xff000000, 0xffffffff},
    RoleColor{QPalette::ToolTipText, 0xffffffff, 0xff000000, 0xffffffff, 0xff000000},
};

} // namespace

QPalette themePalette(ColorScheme scheme, Contrast contrast)
{
    const bool dark = scheme == ColorScheme::Dark;
    QPalette palette;
    for (const RoleColor& color : contrast == Contrast::High ? highContrastColors : colors) {
        palette.setColor(QPalette::All, color.role, QColor::fromRgb(dark ? color.dark : color.light));
        palette.setColor(QPalette::Disabled, color.role,
                         QColor::fromRgb(dark ? color.darkDisabled : color.lightDisabled));
    }
    return palette;
}

bool isHighContrast(const QPalette& palette)
{
    constexpr int nearlyAll = 240;
    return std::abs(qGray(palette.color(QPalette::Active, QPalette::WindowText).rgb()) -
                    qGray(palette.color(QPalette::Active, QPalette::Window).rgb())) >= nearlyAll;
}

QColor controlOutline(const QPalette& palette)
{
    return mixed(palette.color(QPalette::Base), palette.color(QPalette::Text),
                 isHighContrast(palette) ? 1.0F : 0.64F);
}

QColor dividingLine(const QPalette& palette)
{
    return mixed(palette.color(QPalette::Window), palette.color(QPalette::Text),
                 isHighContrast(palette) ? 0.6F : 0.16F);
}

QColor warningText(const QPalette& palette)
{
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    if (dark)
        return QColor::fromRgb(0xfff0b24a);
    return QColor::fromRgb(isHighContrast(palette) ? 0xff6e3f00 : 0xff8f5200);
}

QColor mixed(const QColor& one, const QColor& other, float share)
{
    const auto mix = [share](float from, float to) { return from + (to - from) * share; };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

} // namespace LinuxDesktop
