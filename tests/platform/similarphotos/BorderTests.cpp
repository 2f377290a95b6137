#include "Painting.h"
#include "extension/actions/find-duplicate-photos/Border.h"

#include <gtest/gtest.h>

namespace {

using namespace MenuExtension::SimilarPhotos;

constexpr std::array<double, 3> white{255, 255, 255};

TEST(Border, APictureWithoutOneStaysWhole)
{
    EXPECT_EQ(withoutBorder(Painting::of(1).pixels()), (Part{0, 0, 320, 240}));
}

TEST(Border, AFrameOfOneColourIsNoPartOfThePicture)
{
    for (const std::array<double, 3>& color : {white, {0, 0, 0}, {90, 20, 30}}) {
        const auto framed = Painting::of(2).framed(12, color).noisy(1);
        const Part part = withoutBorder(framed.pixels());
        EXPECT_NEAR(part.left, 12, 2);
        EXPECT_NEAR(part.top, 12, 2);
        EXPECT_NEAR(part.right, 332, 2);
        EXPECT_NEAR(part.bottom, 252, 2);
    }
}

TEST(Border, BarsAtTwoSidesAreBorders)
{
    const auto barred = Painting::plain(320, 300, {0, 0, 0}).with(Painting::of(3), 0, 30);
    const Part part = withoutBorder(barred.pixels());
    EXPECT_EQ(part.left, 0);
    EXPECT_EQ(part.right, 320);
    EXPECT_NEAR(part.top, 30, 2);
    EXPECT_NEAR(part.bottom, 270, 2);
}

TEST(Border, AnEvenSkyIsNone)
{
    const auto sky = Painting::of(4).with(Painting::plain(320, 40, {120, 160, 240}), 0, 0);
    EXPECT_EQ(withoutBorder(sky.pixels()), (Part{0, 0, 320, 240}));
}

TEST(Border, APictureOfOneColourStaysWhole)
{
    EXPECT_EQ(withoutBorder(Painting::plain(64, 48, white).pixels()), (Part{0, 0, 64, 48}));
}

TEST(Border, TheSmallestPicturesAreLookedAtToo)
{
    for (const int side : {1, 2, 15, 16, 17}) {
        const Part part = withoutBorder(Painting::of(5, side, side).pixels());
        EXPECT_LT(part.left, part.right);
        EXPECT_LT(part.top, part.bottom);
    }
}

} // namespace
