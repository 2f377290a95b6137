#pragma once

#include "platform/linux/look/Appearance.h"

#include <QColor>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>

/// Relative luminance, as the Web Content Accessibility Guidelines 2.1 define it.
inline double luminance(const QColor& color)
{
    const auto linear = [](float channel) {
        const auto value = static_cast<double>(channel);
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// From 1 to 21, by the same guidelines.
inline double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// What a test that is given both is called after.
inline std::string
nameOfScheme(const testing::TestParamInfo<std::tuple<LinuxDesktop::ColorScheme, LinuxDesktop::Contrast>>& tested)
{
    const bool isLight = std::get<0>(tested.param) == LinuxDesktop::ColorScheme::Light;
    const bool isHigh = std::get<1>(tested.param) == LinuxDesktop::Contrast::High;
    return std::string(isLight ? "Light" : "Dark") + (isHigh ? "WithHighContrast" : "");
}
