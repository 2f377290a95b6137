#include "platform/linux/look/ThemeColors.h"
#include "platform/look/Contrast.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

using namespace LinuxDesktop;

class Theme : public testing::TestWithParam<std::tuple<ColorScheme, Contrast>> {
protected:
    void expectContrast(const char* what, const QColor& one, const QColor& other) const
    {
        EXPECT_GE(contrast(one, other), required)
            << what << ": " << one.name().toStdString() << " on " << other.name().toStdString();
    }

    QPalette palette = themePalette(std::get<ColorScheme>(GetParam()), std::get<Contrast>(GetParam()));
    const bool isHigh = std::get<Contrast>(GetParam()) == Contrast::High;
    const double required = isHigh ? 7.0 : 4.5;
};

TEST_P(Theme, EveryTextStandsOutFromWhatIsBehindIt)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const auto color = [&](QPalette::ColorRole role) { return palette.color(group, role); };
        expectContrast("text on the window", color(QPalette::WindowText), color(QPalette::Window));
        expectContrast("text in a card", color(QPalette::WindowText), color(QPalette::Base));
        expectContrast("text in a list", color(QPalette::Text), color(QPalette::Base));
        expectContrast("text in every other row", color(QPalette::Text), color(QPalette::AlternateBase));
        expectContrast("a button's title", color(QPalette::ButtonText), color(QPalette::Button));
        expectContrast("secondary text on the window", color(QPalette::PlaceholderText), color(QPalette::Window));
        expectContrast("secondary text in a card", color(QPalette::PlaceholderText), color(QPalette::Base));
        expectContrast("a warning in a card", warningText(palette), color(QPalette::Base));
        expectContrast("a tool tip", color(QPalette::ToolTipText), color(QPalette::ToolTipBase));
        expectContrast("a link on the window", color(QPalette::Link), color(QPalette::Window));
        expectContrast("a visited link on the window", color(QPalette::LinkVisited), color(QPalette::Window));
        expectContrast("a selected text", color(QPalette::HighlightedText), color(QPalette::Highlight));
    }
}

TEST_P(Theme, TextsStandOutFromWhatIsHoveredPressedOrSelectedToo)
{
    const auto color = [&](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
    for (const float share : {0.06F, 0.16F})
        expectContrast("a hovered or pressed button's title", color(QPalette::ButtonText),
                       mixed(color(QPalette::Button), color(QPalette::ButtonText), share));
    expectContrast("a hovered row", color(QPalette::Text),
                   mixed(color(QPalette::Base), color(QPalette::Text), 0.05F));
    expectContrast("a selected row", color(QPalette::Text),
                   mixed(color(QPalette::Base), color(QPalette::Highlight), 0.16F));
    expectContrast("a link in a card", color(QPalette::Link), color(QPalette::Base));
}

TEST_P(Theme, EveryControlStandsOutFromWhatIsBehindIt)
{
    const auto color = [&](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
    for (const QPalette::ColorRole behind : {QPalette::Window, QPalette::Base}) {
        expectContrast("a control's outline", controlOutline(palette), color(behind));
        expectContrast("a focus ring, a checked box, the selected tab's mark", color(QPalette::Highlight),
                       color(behind));
    }
    expectContrast("a focus ring around a button", color(QPalette::Highlight), color(QPalette::Button));
    expectContrast("a button's outline", controlOutline(palette), color(QPalette::Button));
    expectContrast("the knob of a switch that is off", color(QPalette::Base), controlOutline(palette));
    expectContrast("a check mark, a selected text", color(QPalette::HighlightedText), color(QPalette::Highlight));
}

TEST_P(Theme, LinesThatOnlyDivideAreSeenWhereContrastIsHigh)
{
    EXPECT_EQ(isHighContrast(palette), isHigh);
    for (const QPalette::ColorRole behind : {QPalette::Window, QPalette::Base})
        EXPECT_EQ(contrast(dividingLine(palette), palette.color(behind)) >= 4.5, isHigh);
}

INSTANTIATE_TEST_SUITE_P(Each, Theme,
                         testing::Combine(testing::Values(ColorScheme::Light, ColorScheme::Dark),
                                          testing::Values(Contrast::Normal, Contrast::High)),
                         nameOfScheme);

} // namespace
