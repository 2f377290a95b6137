#include "WholePlatform.h"

#include "showcase/PromotedApplications.h"
#include "showcase/PromotionOrders.h"

#include <map>
#include <set>
#include <vector>

namespace {

using ShowcaseNeeds = WholePlatform;

TEST_F(ShowcaseNeeds, EachOfTheNineOrdersIsAsLikelyAsTheOthers)
{
    constexpr int draws = 90'000;
    constexpr double expected = draws / 9.0;
    // Eight degrees of freedom: even draws come out above it once in a thousand million runs, a draw that prefers one
    // order by a tenth always.
    constexpr double bound = 58.3;

    std::map<std::vector<int>, int> counts;
    for (int draw = 0; draw < draws; ++draw)
        ++counts[drawPromotionOrder()];

    double chiSquared = 0.0;
    for (const auto& [order, count] : counts)
        chiSquared += (count - expected) * (count - expected) / expected;
    EXPECT_EQ(counts.size(), promotionOrders.size());
    EXPECT_LT(chiSquared, bound);
}

TEST_F(ShowcaseNeeds, ADrawIsBelowItsBoundAndReachesEveryNumber)
{
    for (const std::uint32_t bound : {1U, 2U, 9U, 17U}) {
        std::set<std::uint32_t> drawn;
        for (int draw = 0; draw < 2000; ++draw)
            drawn.insert(platform.arc4random_uniform(bound));
        EXPECT_EQ(drawn.size(), bound);
        EXPECT_EQ(*drawn.rbegin(), bound - 1);
    }
}

TEST_F(ShowcaseNeeds, AFileOrFolderExistsAndAnythingElseDoesNot)
{
    EXPECT_TRUE(platform.fileExistsAtPath("/"));
    EXPECT_TRUE(platform.fileExistsAtPath("/proc/self/status"));
    EXPECT_FALSE(platform.fileExistsAtPath("/Applications/No such application.app"));
    EXPECT_FALSE(platform.fileExistsAtPath("/proc/self/status/below a file"));
    EXPECT_FALSE(platform.fileExistsAtPath(""));
}

} // namespace
