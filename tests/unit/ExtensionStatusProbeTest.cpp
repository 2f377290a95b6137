#include "onboarding/ExtensionStatusProbe.h"

#include "settings/Deployment.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

using Lines = std::vector<std::string>;
using Results = std::vector<bool>;

const std::string extension(Deployment::extensionIdentifier);

NS::RunningApplication accessory(std::optional<std::string> identifier)
{
    return {NS::ActivationPolicy::Accessory, std::move(identifier)};
}

/// A screen that writes down what each update finds.
struct Screen {
    explicit Screen(Results& updates) : probe([this, &updates] { updates.push_back(probe.isextensionrunning); }) {}

    ExtensionStatusProbe probe;
};

class StatusProbe : public testing::Test {
protected:
    [[nodiscard]] std::vector<NS::RunningApplication>& running() { return platform.sharedWorkspace().running; }
    [[nodiscard]] ExtensionStatusProbe& probe() const { return screen->probe; }

    void schedule() { probe().schedule(screen); }
    void appear() { probe().startPolling(screen); }
    void disappear() { probe().stopPolling(); }
    Results resultsOf(const std::vector<NS::RunningApplication>& applications)
    {
        running() = applications;
        updates.clear();
        schedule();
        platform.runQueues();
        return updates;
    }

    FakePlatform platform;
    Results updates;
    std::shared_ptr<Screen> screen = std::make_shared<Screen>(updates);
};

// One probe.

TEST_F(StatusProbe, BeginsWithoutATimerAndWithTheExtensionNotRunning)
{
    EXPECT_FALSE(probe().isextensionrunning);
    EXPECT_FALSE(probe().timer);
    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(StatusProbe, SchedulingReturnsAtOnceAndLooksAtNothing)
{
    schedule();

    EXPECT_EQ(platform.calls.lines(), (Lines{"platform.dispatchToGlobalQueue"}));
}

TEST_F(StatusProbe, LooksInTheBackgroundThenUpdatesOnTheMainThread)
{
    running() = {accessory(extension)};
    schedule();
    platform.calls.clear();

    platform.globalQueue.run();
    EXPECT_EQ(platform.calls.lines(), (Lines{"workspace.runningApplications", "platform.dispatchToMainQueue"}));
    EXPECT_TRUE(probe().isextensionrunning);
    EXPECT_TRUE(updates.empty());
    platform.calls.clear();

    platform.mainQueue.run();
    EXPECT_EQ(updates, (Results{true}));
    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(StatusProbe, WithNothingRunningAnswersNoAndUpdates)
{
    EXPECT_EQ(resultsOf({}), (Results{false}));
}

TEST_F(StatusProbe, WithoutTheExtensionAnswersNoAndUpdates)
{
    EXPECT_EQ(resultsOf({accessory(std::string(Deployment::applicationIdentifier)),
                         accessory("org.example.findersyncextension"), accessory(""), accessory(extension + '2'),
                         accessory(extension.substr(0, extension.size() - 1))}),
              (Results{false}));
}

TEST_F(StatusProbe, FindsTheExtensionAmongOthers)
{
    EXPECT_EQ(resultsOf({accessory("org.example.One"), accessory(extension), accessory("org.example.Two")}),
              (Results{true}));
}

TEST_F(StatusProbe, ComparesIdentifiersWithoutRegardToCase)
{
    std::string otherCase = extension;
    for (char& letter : otherCase) {
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
        EXPECT_EQ(resultsOf({accessory(otherCase)}), (Results{true}));
    }
}

TEST_F(StatusProbe, LooksAtNoApplicationOfAnotherPolicy)
{
    EXPECT_EQ(resultsOf({{NS::ActivationPolicy::Regular, extension}, {NS::ActivationPolicy::Prohibited, extension}}),
              (Results{false}));
    EXPECT_EQ(resultsOf({{NS::ActivationPolicy::Regular, extension}, accessory(extension)}), (Results{true}));
}

TEST_F(StatusProbe, SeveralOfTheExtensionAreAsGoodAsOne)
{
    EXPECT_EQ(resultsOf({accessory(extension), accessory(extension), accessory(extension)}), (Results{true}));
}

TEST_F(StatusProbe, PassesOverApplicationsWithoutAnIdentifier)
{
    EXPECT_EQ(resultsOf({accessory(std::nullopt), accessory(std::nullopt), accessory(extension)}), (Results{true}));
    EXPECT_EQ(resultsOf({accessory(std::nullopt)}), (Results{false}));
}

TEST_F(StatusProbe, EachProbeAnswersForItsOwnMoment)
{
    EXPECT_EQ(resultsOf({accessory(extension)}), (Results{true}));
    EXPECT_EQ(resultsOf({}), (Results{false}));
    EXPECT_EQ(resultsOf({accessory(extension)}), (Results{true}));
}

TEST_F(StatusProbe, TheAnswerIsNoWhileItLooks)
{
    EXPECT_EQ(resultsOf({accessory(extension)}), (Results{true}));
    std::optional<bool> meanwhile;
    platform.sharedWorkspace().whileListing = [&] { meanwhile = probe().isextensionrunning; };

    schedule();
    EXPECT_TRUE(probe().isextensionrunning);
    platform.runQueues();

    EXPECT_EQ(meanwhile, false);
    EXPECT_TRUE(probe().isextensionrunning);
}

TEST_F(StatusProbe, TwoThatOverlapCauseOneUpdateEachWithTheirOwnResults)
{
    running() = {accessory(extension)};
    schedule();
    platform.globalQueue.push([this] { running().clear(); });
    schedule();

    platform.globalQueue.run();
    EXPECT_TRUE(updates.empty());
    platform.mainQueue.run();

    EXPECT_EQ(updates, (Results{true, false}));
    EXPECT_FALSE(probe().isextensionrunning);
}

TEST_F(StatusProbe, AnUpdateTellsOfItsProbeThoughAnotherLooksMeanwhile)
{
    running() = {accessory(extension)};
    schedule();
    platform.globalQueue.run();
    schedule();
    platform.sharedWorkspace().whileListing = [this] { platform.mainQueue.run(); };

    platform.runQueues();

    EXPECT_EQ(updates, (Results{true, true}));
}

// Polling.

TEST_F(StatusProbe, AppearingStartsATimerOfFiveSecondsAndSchedulesNoProbe)
{
    appear();

    EXPECT_EQ(platform.calls.lines(), (Lines{"platform.scheduledTimerWithTimeInterval(5)"}));
    EXPECT_TRUE(probe().timer);
}

TEST_F(StatusProbe, ProbesEveryFiveSecondsFromFiveSecondsAfterAppearing)
{
    appear();

    platform.clock.advance(4.75);
    EXPECT_EQ(platform.globalQueue.size(), 0U);
    platform.clock.advance(0.25);
    EXPECT_EQ(platform.globalQueue.size(), 1U);
    platform.clock.advance(4.75);
    EXPECT_EQ(platform.globalQueue.size(), 1U);
    platform.clock.advance(0.25);
    EXPECT_EQ(platform.globalQueue.size(), 2U);
    platform.clock.advance(50.0);
    EXPECT_EQ(platform.globalQueue.size(), 12U);
}

TEST_F(StatusProbe, DisappearingStopsTheTimerAndKeepsTheDeadOne)
{
    appear();
    const auto timer = probe().timer;
    platform.clock.advance(5.0);

    disappear();
    platform.clock.advance(60.0);

    EXPECT_EQ(platform.globalQueue.size(), 1U);
    EXPECT_EQ(probe().timer, timer);
}

TEST_F(StatusProbe, AProbeThatWasScheduledBeforeDisappearingStillUpdates)
{
    running() = {accessory(extension)};
    appear();
    platform.clock.advance(5.0);

    disappear();
    platform.runQueues();

    EXPECT_EQ(updates, (Results{true}));
}

TEST_F(StatusProbe, DisappearingWithoutATimerDoesNothing)
{
    disappear();
    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(StatusProbe, DisappearingTwiceIsAsGoodAsOnce)
{
    appear();
    disappear();
    disappear();

    platform.clock.advance(60.0);

    EXPECT_EQ(platform.globalQueue.size(), 0U);
}

TEST_F(StatusProbe, AppearingAgainStartsANewTimer)
{
    appear();
    platform.clock.advance(3.0);
    disappear();
    const auto first = probe().timer;

    appear();

    EXPECT_NE(probe().timer, first);
    platform.clock.advance(4.75);
    EXPECT_EQ(platform.globalQueue.size(), 0U);
    platform.clock.advance(0.25);
    EXPECT_EQ(platform.globalQueue.size(), 1U);
}

TEST_F(StatusProbe, AppearingTwiceDropsTheOlderTimerWhichRunsOn)
{
    appear();
    platform.clock.advance(2.0);
    appear();

    platform.clock.advance(5.0);
    EXPECT_EQ(platform.globalQueue.size(), 2U);

    disappear();
    platform.clock.advance(5.0);
    EXPECT_EQ(platform.globalQueue.size(), 3U);
}

// How long the screen lives.

TEST_F(StatusProbe, AScreenThatIsLetGoLivesUntilItsProbeHasUpdatedIt)
{
    running() = {accessory(extension)};
    schedule();
    const std::weak_ptr<Screen> left = std::exchange(screen, nullptr);

    EXPECT_FALSE(left.expired());
    platform.globalQueue.run();
    EXPECT_FALSE(left.expired());
    platform.mainQueue.run();

    EXPECT_TRUE(left.expired());
    EXPECT_EQ(updates, (Results{true}));
}

TEST_F(StatusProbe, TheBackgroundKeepsNothingOfAScreenThatItHandedToTheMainThread)
{
    schedule();
    const std::weak_ptr<Screen> left = std::exchange(screen, nullptr);
    // Runs while the background has not yet let go of the probe's own work.
    platform.globalQueue.push([&] {
        platform.mainQueue.run();
        EXPECT_TRUE(left.expired());
    });

    platform.globalQueue.run();

    EXPECT_EQ(updates.size(), 1U);
}

TEST_F(StatusProbe, ARunningTimerKeepsTheScreenAndAStoppedOneDoesNot)
{
    appear();
    const std::weak_ptr<Screen> left = std::exchange(screen, nullptr);
    platform.clock.advance(5.0);
    platform.runQueues();
    ASSERT_FALSE(left.expired());
    EXPECT_EQ(updates.size(), 1U);

    left.lock()->probe.stopPolling();

    EXPECT_TRUE(left.expired());
}

} // namespace
