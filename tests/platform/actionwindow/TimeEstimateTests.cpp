#include "extension/actions/window/TimeEstimate.h"

#include <gtest/gtest.h>

namespace MenuExtension {

namespace {

using namespace std::chrono_literals;

constexpr TimeEstimate::Clock::time_point start{};

TEST(TimeEstimate, SaysNothingBeforeItKnowsEnough)
{
    TimeEstimate estimate(start);
    EXPECT_EQ(estimate.remaining(), std::nullopt);
    estimate.advance(10, 100, start + 1s);
    EXPECT_EQ(estimate.remaining(), std::nullopt);
    estimate.advance(20, 100, start + 2s);
    EXPECT_EQ(estimate.remaining(), 8s);
}

TEST(TimeEstimate, OfSteadyWorkIsWhatIsLeftAtThatSpeed)
{
    TimeEstimate estimate(start);
    for (int tenth = 1; tenth <= 300; ++tenth)
        estimate.advance(static_cast<std::uint64_t>(tenth) * 100, 60000, start + tenth * 100ms);
    EXPECT_EQ(estimate.remaining(), 30s);
}

TEST(TimeEstimate, FollowsASpeedThatChanges)
{
    TimeEstimate estimate(start);
    for (int second = 1; second <= 10; ++second)
        estimate.advance(static_cast<std::uint64_t>(second) * 100, 10000, start + second * 1s);
    for (int second = 1; second <= 30; ++second)
        estimate.advance(1000 + static_cast<std::uint64_t>(second) * 10, 10000, start + 10s + second * 1s);
    // 8,700 are left, at 10 a second now; at the mean of all it would be 267 seconds.
    EXPECT_GT(estimate.remaining(), 800s);
    EXPECT_LE(estimate.remaining(), 870s);
}

TEST(TimeEstimate, DoesNotGuessWhereNothingMoves)
{
    TimeEstimate estimate(start);
    estimate.advance(0, 100, start + 3s);
    EXPECT_EQ(estimate.remaining(), std::nullopt);
}

TEST(TimeEstimate, ManyCallsInNoTimeAreOne)
{
    TimeEstimate estimate(start);
    for (std::uint64_t call = 0; call <= 1000; ++call)
        estimate.advance(call, 2000, start + 1s);
    for (std::uint64_t call = 1000; call <= 1500; ++call)
        estimate.advance(call, 2000, start + 3s);
    ASSERT_TRUE(estimate.remaining());
    EXPECT_GE(*estimate.remaining(), 2s);
    EXPECT_LE(*estimate.remaining(), 8s);
}

TEST(TimeEstimate, NoLongerSpeaksOfWorkThatIsDone)
{
    TimeEstimate estimate(start);
    estimate.advance(50, 100, start + 2s);
    estimate.advance(100, 100, start + 4s);
    EXPECT_EQ(estimate.remaining(), 0s);
    // There was less to do than it seemed.
    estimate.advance(120, 100, start + 5s);
    EXPECT_EQ(estimate.remaining(), std::nullopt);
}

} // namespace

} // namespace MenuExtension
