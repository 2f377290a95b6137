#include "tests/platform/look/Contrast.h"
#include "tests/platform/look/Controls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace {

using namespace LinuxDesktop;

int distance(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

class ControlStates : public testing::TestWithParam<std::tuple<ColorScheme, Contrast>> {
protected:
    ControlStates() { applyAppearance(std::get<ColorScheme>(GetParam()), contrastWished, Motion::Reduced); }

    /// How many pixels tell one picture from the other: those that are clearly another colour; where contrast is to
    /// be high those alone that stand out from each other as what is to be told apart without a text has to.
    [[nodiscard]] int tellingPixels(const QImage& one, const QImage& other) const
    {
        int count = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                const QRgb here = one.pixel(x, y);
                const QRgb there = other.pixel(x, y);
                const bool tells =
                    contrastWished == Contrast::High ? contrast(here, there) >= 3.0 : distance(here, there) >= 10;
                count += tells ? 1 : 0;
            }
        }
        return count;
    }

    const Contrast contrastWished = std::get<Contrast>(GetParam());
};

TEST_P(ControlStates, NoTwoStatesOfAControlLookTheSame)
{
    constexpr int enough = 30;
    for (const Control& control : controls()) {
        std::vector<QImage> pictures;
        for (const ControlState state : control.states) {
            pictures.push_back(pictureOf(control, state));
            ASSERT_FALSE(pictures.back().isNull()) << control.name.toStdString();
            ASSERT_EQ(pictures.back().size(), pictures.front().size()) << control.name.toStdString();
        }
        for (std::size_t one = 0; one < pictures.size(); ++one) {
            for (std::size_t other = one + 1; other < pictures.size(); ++other)
                EXPECT_GE(tellingPixels(pictures[one], pictures[other]), enough)
                    << control.name.toStdString() << ": " << nameOf(control.states[one]).toStdString() << " and "
                    << nameOf(control.states[other]).toStdString();
        }
    }
}

TEST_P(ControlStates, AControlLooksTheSameWheneverItIsInAState)
{
    for (const Control& control : controls()) {
        for (const ControlState state : control.states)
            EXPECT_EQ(pictureOf(control, state), pictureOf(control, state))
                << control.name.toStdString() << ": " << nameOf(state).toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Each, ControlStates,
                         testing::Combine(testing::Values(ColorScheme::Light, ColorScheme::Dark),
                                          testing::Values(Contrast::Normal, Contrast::High)),
                         nameOfScheme);

} // namespace
