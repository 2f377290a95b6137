#include "extension/actions/find-duplicate-photos/NeighbourIndex.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {

using namespace MenuExtension::SimilarPhotos;

/// In clusters, as pictures of a holiday are.
std::vector<Signature> randomSignatures(std::size_t count, std::uint32_t seed)
{
    std::mt19937 random(seed);
    std::normal_distribution<float> normal(0, 1);
    std::vector<Signature> signatures;
    for (std::size_t number = 0; number < count; ++number) {
        Signature signature;
        const bool isLikeAnother = number > 0 && random() % 3 == 0;
        const Signature& other = isLikeAnother ? signatures[random() % number] : signature;
        for (std::size_t at = 0; at < Signature::dimensions; ++at)
            signature.values[at] = isLikeAnother ? other.values[at] + 0.02F * normal(random) : 0.2F * normal(random);
        signatures.push_back(signature);
    }
    return signatures;
}

using Numbers = std::vector<std::uint32_t>;

Numbers found(const NeighbourIndex& index, const Signature& centre, float radius)
{
    Numbers numbers;
    for (const auto& neighbour : index.within(centre, radius))
        numbers.push_back(neighbour.number);
    std::ranges::sort(numbers);
    return numbers;
}

TEST(NeighbourIndex, FindsWhatLookingAtAllFinds)
{
    for (const std::size_t count : {0, 1, 2, 15, 16, 17, 63, 64, 65, 700}) {
        const auto signatures = randomSignatures(count, static_cast<std::uint32_t>(count));
        NeighbourIndex index;
        for (std::uint32_t number = 0; number < count; ++number)
            index.add(number + 1000, signatures[number]);
        EXPECT_EQ(index.size(), count);
        for (const Signature& centre : randomSignatures(20, 99)) {
            for (const float radius : {0.0F, 0.1F, 0.5F, 1.2F, 5.0F}) {
                Numbers expected;
                for (std::uint32_t number = 0; number < count; ++number) {
                    if (distance(centre, signatures[number]) <= radius)
                        expected.push_back(number + 1000);
                }
                EXPECT_EQ(found(index, centre, radius), expected) << count << " points, radius " << radius;
            }
        }
    }
}

TEST(NeighbourIndex, FindsEachPointWhileItGrows)
{
    const auto signatures = randomSignatures(400, 5);
    NeighbourIndex index;
    for (std::uint32_t number = 0; number < signatures.size(); ++number) {
        index.add(number, signatures[number]);
        for (const std::uint32_t earlier : {0U, number / 2, number})
            EXPECT_TRUE(std::ranges::binary_search(found(index, signatures[earlier], 0), earlier));
    }
}

TEST(NeighbourIndex, ManyPointsAtOnePlaceAreAllFound)
{
    NeighbourIndex index;
    const Signature signature = randomSignatures(1, 3).front();
    for (std::uint32_t number = 0; number < 300; ++number)
        index.add(number, signature);
    EXPECT_EQ(index.within(signature, 0).size(), 300U);
}

TEST(NeighbourIndex, LooksAtFewOfMany)
{
    constexpr std::size_t count = 20'000;
    const auto signatures = randomSignatures(count, 11);
    NeighbourIndex index;
    for (std::uint32_t number = 0; number < count; ++number)
        index.add(number, signatures[number]);
    const std::uint64_t before = index.measured();
    constexpr std::size_t searches = 200;
    for (std::size_t search = 0; search < searches; ++search)
        static_cast<void>(index.within(signatures[search * 100], 0.1F));
    EXPECT_LT(index.measured() - before, searches * count / 4);
}

} // namespace
