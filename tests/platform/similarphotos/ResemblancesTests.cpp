#include "extension/actions/find-duplicate-photos/Resemblances.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace {

using namespace MenuExtension::SimilarPhotos;
using Groups = std::vector<std::vector<std::uint32_t>>;
using Part = Resemblances::Part;

TEST(Resemblances, ThereAreNoGroupsOfNothing)
{
    EXPECT_EQ(Resemblances().groups(1), Groups());
}

TEST(Resemblances, TheLimitDecidesWhatBelongsTogether)
{
    Resemblances resemblances;
    resemblances.add({0, 1, 0.1F});
    resemblances.add({1, 2, 0.3F});
    resemblances.add({5, 4, 0.2F});
    EXPECT_EQ(resemblances.groups(0.05F), Groups());
    EXPECT_EQ(resemblances.groups(0.1F), (Groups{{0, 1}}));
    EXPECT_EQ(resemblances.groups(0.25F), (Groups{{0, 1}, {4, 5}}));
    EXPECT_EQ(resemblances.groups(0.3F), (Groups{{0, 1, 2}, {4, 5}}));
    EXPECT_EQ(resemblances.groups(0.1F), (Groups{{0, 1}})) << "and back";
}

TEST(Resemblances, KeepsFewPairsOfManyAndTheSameGroups)
{
    constexpr std::uint32_t pictures = 120;
    std::mt19937 random(1);
    std::uniform_real_distribution<float> any(0, 1);
    Resemblances resemblances;
    std::vector<Resemblances::Pair> all;
    for (std::uint32_t one = 0; one < pictures; ++one) {
        for (std::uint32_t other = 0; other < one; ++other) {
            all.push_back({other, one, any(random)});
            resemblances.add(all.back());
        }
    }
    EXPECT_LT(resemblances.needed().size(), pictures);
    for (const float limit : {0.001F, 0.005F, 0.01F, 0.02F, 0.05F, 0.5F}) {
        Clusters clusters;
        std::set<std::uint32_t> grouped;
        for (const auto& pair : all) {
            if (pair.difference <= limit) {
                clusters.join(pair.one, pair.other);
                grouped.insert({pair.one, pair.other});
            }
        }
        std::size_t count = 0;
        for (const auto& group : resemblances.groups(limit)) {
            count += group.size();
            for (const std::uint32_t member : group)
                EXPECT_EQ(clusters.of(member), clusters.of(group.front()));
        }
        EXPECT_EQ(count, grouped.size());
    }
}

TEST(Resemblances, APartBelongsToTheWholeThatItIsMostLike)
{
    // 0 and 1 are of a series; 2 was cut out of 0, and 1 shows it too.
    Resemblances resemblances;
    resemblances.add({1, 2, 0.12F, Part::Other});
    EXPECT_EQ(resemblances.groups(0.2F), (Groups{{1, 2}})) << "as far as is known then";
    resemblances.add({0, 2, 0.1F, Part::Other});
    EXPECT_EQ(resemblances.groups(0.2F), (Groups{{0, 2}}));
}

TEST(Resemblances, PartsThatAreTheSameHaveOneWholeTogether)
{
    Resemblances resemblances;
    resemblances.add({2, 3, 0.01F});
    resemblances.add({0, 2, 0.1F, Part::Other});
    resemblances.add({3, 1, 0.11F, Part::One});
    EXPECT_EQ(resemblances.groups(0.2F), (Groups{{0, 2, 3}}));
}

TEST(Resemblances, AWholeMayHaveManyParts)
{
    Resemblances resemblances;
    for (std::uint32_t part = 1; part < 5; ++part)
        resemblances.add({0, part, 0.1F, Part::Other});
    EXPECT_EQ(resemblances.groups(0.2F), (Groups{{0, 1, 2, 3, 4}}));
}

} // namespace
