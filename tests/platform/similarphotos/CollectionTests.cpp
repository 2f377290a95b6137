#include "Painting.h"
#include "extension/actions/find-duplicate-photos/Collection.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

using namespace MenuExtension::SimilarPhotos;

/// How much the first of two differs from the second, in a collection that has others too; 1 where nothing was found.
float difference(const Painting& one, const Painting& other)
{
    static const std::vector<Thumb> others = [] {
        std::vector<Thumb> thumbs;
        for (std::uint32_t number = 0; number < 20; ++number)
            thumbs.push_back(Painting::of(500 + number, 80, 60).thumb());
        return thumbs;
    }();
    Collection collection;
    for (std::uint32_t number = 0; number < others.size(); ++number)
        static_cast<void>(collection.add(number, others[number]));
    constexpr std::uint32_t first = 100;
    EXPECT_TRUE(collection.add(first, one.thumb()).empty());
    const auto pairs = collection.add(first + 1, other.thumb());
    for (const auto& pair : pairs) {
        if (pair.one == first)
            return pair.difference;
    }
    return 1;
}

class SamePicture : public testing::TestWithParam<std::uint32_t> {};

TEST_P(SamePicture, IsFoundResized)
{
    const Painting painting = Painting::of(GetParam());
    EXPECT_LT(difference(painting, painting.resized(160, 120)), usualLimit);
    EXPECT_LT(difference(painting, painting.resized(100, 75)), usualLimit);
    EXPECT_LT(difference(painting.resized(48, 36), painting), usualLimit);
}

TEST_P(SamePicture, IsFoundWithTheNoiseOfCompression)
{
    const Painting painting = Painting::of(GetParam());
    EXPECT_LT(difference(painting, painting.noisy(10)), usualLimit);
}

TEST_P(SamePicture, IsFoundTurnedAndMirrored)
{
    const Painting painting = Painting::of(GetParam());
    Painting turned = painting;
    for (int turns = 0; turns < 4; ++turns) {
        EXPECT_LT(difference(painting, turned), usualLimit) << turns;
        EXPECT_LT(difference(painting, turned.mirrored()), usualLimit) << turns;
        turned = turned.turned();
    }
}

TEST_P(SamePicture, IsFoundBrightened)
{
    const Painting painting = Painting::of(GetParam());
    EXPECT_LT(difference(painting, painting.brightened(1.2, 5)), usualLimit);
    EXPECT_LT(difference(painting, painting.brightened(1.35, 15)), usualLimit) << "with much cut off at white";
    EXPECT_LT(difference(painting, painting.brightened(0.7, 0)), usualLimit);
}

TEST_P(SamePicture, IsFoundCut)
{
    const Painting painting = Painting::of(GetParam());
    EXPECT_LT(difference(painting, painting.cut(8, 6, 8, 6)), usualLimit);
    EXPECT_LT(difference(painting, painting.cut(16, 12, 0, 0)), usualLimit);
    EXPECT_LT(difference(painting.cut(16, 12, 16, 12), painting), usualLimit);
}

TEST_P(SamePicture, IsFoundWithABorder)
{
    const Painting painting = Painting::of(GetParam());
    EXPECT_LT(difference(painting, painting.framed(10, {255, 255, 255})), usualLimit);
    EXPECT_LT(difference(painting.framed(20, {0, 0, 0}), painting), usualLimit);
}

TEST_P(SamePicture, IsNotTheNextOfASeries)
{
    const Painting painting = Painting::of(GetParam());
    for (const double shift : {0.012, -0.02, 0.035})
        EXPECT_GT(difference(painting, Painting::of(GetParam(), 320, 240, shift)), usualLimit) << shift;
    const Painting bird = Painting::plain(24, 18, {20, 20, 20});
    EXPECT_GT(difference(painting.with(bird, 100, 60), painting.with(bird, 140, 80)), usualLimit);
    EXPECT_GT(difference(painting, painting.with(bird, 140, 80)), usualLimit);
}

TEST_P(SamePicture, IsNotAnother)
{
    EXPECT_GT(difference(Painting::of(GetParam()), Painting::of(GetParam() + 1000)), usualLimit);
}

TEST_P(SamePicture, IsNotTheOneInOtherColours)
{
    const Painting painting = Painting::of(GetParam());
    EXPECT_GT(difference(painting, painting.withBandsSwapped()), usualLimit);
}

INSTANTIATE_TEST_SUITE_P(Pictures, SamePicture, testing::Range(1U, 5U));

TEST(Collection, ManyCopiesOfOnePictureCostNoMoreThanOne)
{
    Collection collection;
    const Thumb thumb = Painting::of(1).thumb();
    for (std::uint32_t number = 0; number < 500; ++number)
        static_cast<void>(collection.add(number, thumb));
    EXPECT_EQ(collection.index().size(), 1U);
    EXPECT_LE(collection.compared(), 500U);
    const auto groups = collection.resemblances().groups(usualLimit);
    ASSERT_EQ(groups.size(), 1U);
    EXPECT_EQ(groups.front().size(), 500U);
}

TEST(Collection, PicturesOfOneColourAreTheSameOnlyInThatColour)
{
    const auto plain = [](double level) { return Painting::plain(64, 48, {level, level, level}); };
    EXPECT_LT(difference(plain(200), plain(200)), usualLimit);
    EXPECT_GT(difference(plain(200), plain(40)), usualLimit);
}

/// What a collection says of pictures that come in this order: each pair by the pictures' own numbers.
std::vector<Resemblances::Pair> pairsOf(const std::vector<Thumb>& thumbs, const std::vector<std::uint32_t>& order)
{
    Collection collection;
    std::vector<Resemblances::Pair> pairs;
    for (const std::uint32_t number : order) {
        for (Resemblances::Pair pair : collection.add(number, thumbs[number])) {
            if (pair.one > pair.other) {
                std::swap(pair.one, pair.other);
                if (pair.part != Resemblances::Part::Neither)
                    pair.part =
                        pair.part == Resemblances::Part::One ? Resemblances::Part::Other : Resemblances::Part::One;
            }
            pairs.push_back(pair);
        }
    }
    std::ranges::sort(pairs, {}, [](const Resemblances::Pair& pair) { return std::pair(pair.one, pair.other); });
    return pairs;
}

TEST(Collection, WhichPictureIsReadFirstSaysNothing)
{
    const Painting whole = Painting::of(1);
    const std::vector<Thumb> thumbs{whole.thumb(), whole.cut(16, 12, 16, 12).thumb(),
                                    Painting::of(1, 320, 240, 0.012).thumb(),
                                    whole.cut(0, 0, 24, 0).turned().thumb()};
    std::vector<std::uint32_t> order{0, 1, 2, 3};
    const auto expected = pairsOf(thumbs, order);
    ASSERT_GE(expected.size(), 4U);
    while (std::ranges::next_permutation(order).found) {
        const auto pairs = pairsOf(thumbs, order);
        ASSERT_EQ(pairs.size(), expected.size());
        for (std::size_t at = 0; at < pairs.size(); ++at) {
            EXPECT_EQ(pairs[at].one, expected[at].one);
            EXPECT_EQ(pairs[at].other, expected[at].other);
            EXPECT_NEAR(pairs[at].difference, expected[at].difference, 0.002F)
                << pairs[at].one << " and " << pairs[at].other;
            EXPECT_EQ(pairs[at].part, expected[at].part);
        }
    }
}

} // namespace
