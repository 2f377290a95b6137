#include "Painting.h"
#include "extension/actions/find-duplicate-photos/Signature.h"
#include "extension/actions/find-duplicate-photos/Thumb.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace MenuExtension::SimilarPhotos;

TEST(Thumb, ComesBackFromItsBytes)
{
    const Thumb thumb = Painting::of(1).thumb();
    const auto read = thumbFrom(bytesOf(thumb));
    ASSERT_TRUE(read);
    EXPECT_EQ(bytesOf(*read), bytesOf(thumb));
}

TEST(Thumb, OtherBytesAreNone)
{
    EXPECT_FALSE(thumbFrom(""));
    EXPECT_FALSE(thumbFrom(std::string(thumbBytes - 1, '\1')));
    EXPECT_FALSE(thumbFrom(std::string(thumbBytes, '\xff'))) << "no numbers";
    Thumb thumb = Painting::of(1).thumb();
    thumb.aspect = 0;
    EXPECT_FALSE(thumbFrom(bytesOf(thumb)));
    thumb.aspect = std::numeric_limits<float>::infinity();
    EXPECT_FALSE(thumbFrom(bytesOf(thumb)));
}

TEST(Thumb, PicturesOfAnySizeHaveOne)
{
    for (const auto& [width, height] : {std::pair(1, 1), {1, 300}, {300, 1}, {31, 33}, {320, 7}}) {
        const Thumb thumb = Painting::of(2, width, height).thumb();
        EXPECT_TRUE(thumbFrom(bytesOf(thumb))) << width << " by " << height;
        EXPECT_FLOAT_EQ(thumb.aspect, static_cast<float>(width) / static_cast<float>(height));
    }
}

TEST(Signature, TurnsAsThePictureDoes)
{
    const Painting painting = Painting::of(3, 256, 256);
    const Signature signature = signatureOf(painting.thumb());
    const auto expectNear = [&](const Painting& changed, Symmetry symmetry) {
        EXPECT_LT(distance(signatureOf(changed.thumb()), turned(signature, symmetry)), 0.02);
        EXPECT_GT(distance(signatureOf(changed.thumb()), signature), 0.2);
    };
    expectNear(painting.mirrored(), {.mirroredAcross = true});
    expectNear(painting.turned(), {.mirroredAcross = true, .transposed = true});
    expectNear(painting.turned().turned(), {.mirroredAcross = true, .mirroredDown = true});
    expectNear(painting.turned().turned().turned(), {.mirroredDown = true, .transposed = true});
    expectNear(painting.turned().mirrored(), {.transposed = true});
}

TEST(Signature, OtherPicturesAreFarAway)
{
    const Signature signature = signatureOf(Painting::of(4).thumb());
    for (std::uint32_t number = 5; number < 25; ++number)
        EXPECT_GT(distance(signatureOf(Painting::of(number).thumb()), signature), 0.4) << number;
}

TEST(Signature, OfPicturesOfOneColourTellsTheColour)
{
    const auto of = [](const std::array<double, 3>& color) {
        return signatureOf(Painting::plain(64, 64, color).thumb());
    };
    EXPECT_LT(distance(of({250, 250, 250}), of({249, 250, 251})), 0.1);
    EXPECT_GT(distance(of({250, 250, 250}), of({5, 5, 5})), 1);
    EXPECT_GT(distance(of({200, 20, 20}), of({20, 20, 200})), 1);
}

} // namespace
