#include "onboarding/firstRunvc.h"

#include "ApplicationTest.h"
#include "app/mainStartWindow.h"
#include "support/FakeButton.h"
#include "support/FatalLine.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Lines = std::vector<std::string>;
using Paths = std::vector<std::string>;
using Flags = std::vector<std::int64_t>;

/// The screen that the start window shows at the first launch.
class FirstRun : public ApplicationTest {
protected:
    /// Launches, and lets the first probe finish; the log begins then.
    void open(bool extensionRuns = false)
    {
        platform.sharedWorkspace().setExtensionRuns(extensionRuns);
        launch();
        screen = registry.controller<firstRunvc>("firstRunvc");
        platform.runQueues();
        platform.calls.clear();
    }
    /// One more of them than the window's.
    [[nodiscard]] std::shared_ptr<firstRunvc> openAnother()
    {
        return std::dynamic_pointer_cast<firstRunvc>(
            platform.storyboard->instantiateControllerWithIdentifier("firstRunvc"));
    }

    /// A probe after the extension was switched on or off.
    void probe(bool extensionRuns)
    {
        platform.sharedWorkspace().setExtensionRuns(extensionRuns);
        screen->checkIsextensionrunning();
        platform.runQueues();
    }

    [[nodiscard]] FakeButton& preferences() const { return sceneOf(*screen).view<FakeButton>("btnpreferences"); }
    [[nodiscard]] FakeButton& userFolder() const { return sceneOf(*screen).view<FakeButton>("btnuserfolder"); }

    void confirm(const Paths& paths)
    {
        platform.openPanel.urls.clear();
        for (const std::string& path : paths)
            platform.openPanel.urls.push_back(NS::URL::fileURLWithPath(path));
        platform.openPanel.answerSheet(NS::ModalResponseOK);
    }
    void choose(const Paths& paths)
    {
        userFolder().click();
        confirm(paths);
    }

    void expectStored(const NS::Value::Array& paths, const NS::Value::Array& flags) const
    {
        EXPECT_EQ(platform.suite, (NS::Value::Dictionary{{"foldersArray", paths}, {"foldersArraystate", flags}}));
    }
    void expectSteps(bool first, bool second) const
    {
        EXPECT_EQ(screen->firststepDone, first);
        EXPECT_EQ(screen->secondStepDone, second);
        EXPECT_EQ(preferences().isEnabled(), !first);
        EXPECT_EQ(userFolder().isEnabled(), !second);
    }
    void expectNotFinished() const
    {
        EXPECT_TRUE(platform.standard.empty());
        EXPECT_TRUE(platform.clock.pendingDelays().empty());
    }
    [[nodiscard]] Lines alertsRun() const { return platform.calls.containing(".runModal"); }

    std::shared_ptr<firstRunvc> screen;
};

const Lines finish{R"(standard.setObject_forKey("firstRun"))", "platform.performAfterDelay(0.2)"};

// Making the screen.

TEST_F(FirstRun, BeginsWithNothingDone)
{
    const firstRunvc made(registry);

    EXPECT_FALSE(made.btnuserfolder);
    EXPECT_FALSE(made.btnpreferences);
    EXPECT_TRUE(made.arrurl.empty());
    EXPECT_TRUE(made.arrstate.empty());
    EXPECT_EQ(made.userdefaultskey, "foldersArray");
    EXPECT_EQ(made.userdefaultsstate, "foldersArraystate");
    EXPECT_FALSE(made.probe.timer);
    EXPECT_FALSE(made.probe.isextensionrunning);
    EXPECT_FALSE(made.firststepDone);
    EXPECT_FALSE(made.secondStepDone);
    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(FirstRun, LoadingSchedulesOneProbeAndDoesNothingElse)
{
    screen = openAnother();

    EXPECT_EQ(platform.calls.lines(), (Lines{R"(storyboard.instantiateControllerWithIdentifier("firstRunvc"))",
                                             "platform.dispatchToGlobalQueue"}));
    EXPECT_EQ(platform.globalQueue.size(), 1U);
}

// The first step.

TEST_F(FirstRun, AnExtensionThatIsOnWhenTheScreenLoadsDisablesTheFirstButtonByItself)
{
    open(true);

    expectSteps(true, false);
    expectNotFinished();
}

TEST_F(FirstRun, AnExtensionThatIsOffLeavesTheFirstButtonEnabled)
{
    open(false);

    expectSteps(false, false);
    expectNotFinished();
}

TEST_F(FirstRun, TheFirstStepIsUndoneWhenTheExtensionIsSwitchedOff)
{
    open(true);

    probe(false);
    expectSteps(false, false);

    probe(true);
    expectSteps(true, false);
}

TEST_F(FirstRun, EachUpdateSetsTheFirstButtonAlone)
{
    open();

    probe(true);
    probe(false);

    EXPECT_EQ(platform.calls.startingWith("firstRunvc."),
              (Lines{"firstRunvc.btnpreferences.setEnabled(false)", "firstRunvc.btnpreferences.setEnabled(true)"}));
}

TEST_F(FirstRun, TheFirstButtonOpensTheExtensionsPaneWhetherThatWorksOrNot)
{
    open();
    for (const bool opens : {true, false}) {
        platform.sharedWorkspace().opens = opens;
        platform.calls.clear();

        preferences().click();

        EXPECT_EQ(platform.calls.lines(),
                  (Lines{R"(workspace.openURL("/System/Library/PreferencePanes/Extensions.prefPane"))"}));
    }
    expectSteps(false, false);
}

TEST_F(FirstRun, WhileItShowsItProbesEveryFiveSeconds)
{
    open();

    screen->viewWillAppear();
    EXPECT_EQ(platform.calls.lines(), (Lines{"platform.scheduledTimerWithTimeInterval(5)"}));
    platform.clock.advance(4.75);
    EXPECT_EQ(platform.globalQueue.size(), 0U);
    platform.clock.advance(0.25);
    EXPECT_EQ(platform.globalQueue.size(), 1U);

    screen->viewWillDisappear();
    platform.clock.advance(60.0);
    EXPECT_EQ(platform.globalQueue.size(), 1U);
}

// The second step.

TEST_F(FirstRun, ThePanelIsSetUpInThisOrderAndAttachedToTheStartWindow)
{
    open();

    userFolder().click();

    EXPECT_EQ(
        platform.calls.lines(),
        (Lines{R"(platform.makeOpenPanel("storable paths"))", "panel#1.setShowsHiddenFiles(false)",
               "panel#1.setCanChooseFiles(false)", "panel#1.setCanChooseDirectories(true)",
               "panel#1.setTreatsFilePackagesAsDirectories(false)", "panel#1.setAllowsMultipleSelection(true)",
               R"(panel#1.setDirectoryURL("/"))", "platform.userName", R"(panel#1.setAllowedFileTypes(["pat"]))",
               "panel#1.setAllowsOtherFileTypes(false)", R"(panel#1.setPrompt("Grant Access"))",
               R"(panel#1.beginSheetModalForWindow_completionHandler("mainStartWindow.window"))"}));
    expectSteps(false, false);
}

TEST_F(FirstRun, AnyAnswerButOKHasNoEffect)
{
    open();
    platform.openPanel.urls = {NS::URL::fileURLWithPath("/a")};
    for (const int response : {0, -1000, 2, -1}) {
        userFolder().click();
        platform.calls.clear();

        platform.openPanel.answerSheet(response);

        EXPECT_TRUE(platform.calls.lines().empty());
    }
    expectSteps(false, false);
}

TEST_F(FirstRun, ChosenFoldersAreStoredInThePanelsOrderEachActive)
{
    open();

    choose({"/c", "/a", "/b"});

    EXPECT_EQ(screen->arrurl, (Paths{"/c", "/a", "/b"}));
    EXPECT_EQ(screen->arrstate, (Flags{1, 1, 1}));
    expectStored({"/c", "/a", "/b"}, {1, 1, 1});
    expectSteps(false, true);
    expectNotFinished();
}

TEST_F(FirstRun, AChoiceWritesThePathsThenTheFlagsThroughAFreshHandleThenDisablesItsButton)
{
    open();
    for (const char* suite : {"suite#2", "suite#3"}) {
        userFolder().click();
        platform.calls.clear();
        const std::string handle = suite;

        confirm({"/a"});

        EXPECT_EQ(platform.calls.startingWithAnyOf({"platform.", "suite#", "firstRunvc.", "finderSync."}),
                  (Lines{opensSharedSuite, handle + R"(.setObject_forKey("foldersArray"))", handle + ".synchronize",
                         handle + R"(.setObject_forKey("foldersArraystate"))", handle + ".synchronize",
                         "firstRunvc.btnuserfolder.setEnabled(false)"}));
    }
}

TEST_F(FirstRun, AChoiceIsStoredUnderTheKeysOfTheTwoFields)
{
    open();
    screen->userdefaultskey = "paths";
    screen->userdefaultsstate = "flags";

    choose({"/a"});

    EXPECT_EQ(platform.suite,
              (NS::Value::Dictionary{{"paths", NS::Value::Array{"/a"}}, {"flags", NS::Value::Array{1}}}));
}

TEST_F(FirstRun, AChoiceIsNeitherPrintedNorBookmarkedNorPublished)
{
    open();
    testing::internal::CaptureStdout();

    choose({"/a"});

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_TRUE(platform.calls.containing("bookmark").empty());
    EXPECT_FALSE(platform.defaultController().published);
    EXPECT_FALSE(platform.suite.contains("allBookmark"));
}

TEST_F(FirstRun, AFolderThatIsChosenTwiceIsKeptOnce)
{
    open();

    choose({"/a", "/b", "/a"});
    choose({"/b", "/c"});

    EXPECT_EQ(screen->arrurl, (Paths{"/a", "/b", "/c"}));
    EXPECT_EQ(screen->arrstate, (Flags{1, 1, 1}));
    expectStored({"/a", "/b", "/c"}, {1, 1, 1});
}

TEST_F(FirstRun, FoldersAreTheSameWhenTheirPathsAreCanonicallyEquivalent)
{
    open();

    choose({"/caf\u00e9", "/cafe\u0301", "/Caf\u00e9", "/caf\u00e9 "});

    EXPECT_EQ(screen->arrurl, (Paths{"/caf\u00e9", "/Caf\u00e9", "/caf\u00e9 "}));
    EXPECT_EQ(screen->arrstate.size(), 3U);
}

TEST_F(FirstRun, ChoosingOnlyKnownFoldersWritesTheListAgain)
{
    open();
    choose({"/a"});
    platform.suite.clear();

    choose({"/a"});

    expectStored({"/a"}, {1});
}

TEST_F(FirstRun, AChoiceReplacesWhateverTheSuiteHeld)
{
    platform.suite = {{"foldersArray", NS::Value::Array{"/old", "/a"}}, {"foldersArraystate", "spoilt"}};
    open();

    choose({"/a"});

    expectStored({"/a"}, {1});
}

TEST_F(FirstRun, AConfirmedPanelWithoutFoldersChangesNothing)
{
    open();
    userFolder().click();
    platform.calls.clear();

    confirm({});

    EXPECT_EQ(platform.calls.lines(), (Lines{"panel#1.URLs"}));
    expectSteps(false, false);
}

TEST_F(FirstRun, AConfirmedPanelWithoutFoldersAfterAChoiceWritesTheListAgain)
{
    open();
    choose({"/a"});
    platform.suite.clear();

    choose({});

    expectStored({"/a"}, {1});
}

TEST_F(FirstRun, WithoutASuiteTheSecondStepCountsAndTheFirstRunCanEnd)
{
    platform.suiteCanBeRead = false;
    open(true);

    choose({"/a"});

    expectSteps(true, true);
    EXPECT_TRUE(platform.suite.empty());
    EXPECT_EQ(platform.standard, (NS::Value::Dictionary{{"firstRun", true}}));
}

// The end.

TEST_F(FirstRun, EndsWithTheChoiceWhenTheExtensionIsOn)
{
    open(true);
    userFolder().click();
    platform.calls.clear();

    confirm({"/a"});

    EXPECT_EQ(platform.calls.startingWithAnyOf({"firstRunvc.", "standard.", "platform.performAfterDelay"}),
              (Lines{"firstRunvc.btnuserfolder.setEnabled(false)", finish[0], finish[1]}));
    EXPECT_EQ(platform.standard, (NS::Value::Dictionary{{"firstRun", true}}));
}

TEST_F(FirstRun, EndsWithinFiveSecondsOfTheExtensionsStartAfterTheChoice)
{
    open();
    screen->viewWillAppear();
    platform.clock.advance(2.0);
    choose({"/a"});
    platform.sharedWorkspace().setExtensionRuns(true);
    expectNotFinished();
    platform.calls.clear();

    platform.clock.advance(3.0);
    platform.runQueues();

    EXPECT_EQ(platform.calls.startingWithAnyOf({"firstRunvc.", "standard.", "platform.performAfterDelay"}),
              (Lines{"firstRunvc.btnpreferences.setEnabled(false)", finish[0], finish[1]}));
    screen->viewWillDisappear();
}

TEST_F(FirstRun, DoesNotEndWhenTheExtensionIsOffAgainByTheTimeOfTheChoice)
{
    open(true);
    probe(false);

    choose({"/a"});

    expectSteps(false, true);
    expectNotFinished();
}

TEST_F(FirstRun, ShowsTheAlertExactlyAFifthOfASecondLaterThenQuits)
{
    open(true);
    choose({"/a"});
    platform.calls.clear();

    EXPECT_EQ(platform.clock.pendingDelays(), (std::vector{0.2}));
    platform.clock.advance(0.199);
    EXPECT_TRUE(platform.calls.lines().empty());
    platform.clock.advance(0.002);

    EXPECT_EQ(
        platform.calls.lines(),
        (Lines{
            "platform.makeAlert", "alert#1.setAlertStyle(0)",
            R"(alert#1.setMessageText("You have succeessfully enabled Orvik Menu and can see the Orvik Menu items in the Context Menu on right click for selected folders. You can change these settings in the app anytime."))",
            R"(alert#1.addButtonWithTitle("OK"))", "alert#1.runModal", "application.terminate"}));
}

TEST_F(FirstRun, QuitsOnlyWhenTheAlertWasAnswered)
{
    open(true);
    choose({"/a"});
    bool seen = false;
    platform.whileAlertIsModal = [&] {
        seen = true;
        EXPECT_TRUE(platform.calls.startingWith("application.terminate").empty());
    };

    platform.clock.advance(0.2);

    EXPECT_TRUE(seen);
    EXPECT_EQ(platform.calls.startingWith("application.terminate").size(), 1U);
}

TEST_F(FirstRun, AfterTheEndTheNextLaunchShowsTheTabs)
{
    open(true);
    choose({"/a"});
    platform.clock.advance(0.2);
    EXPECT_EQ(platform.standard, (NS::Value::Dictionary{{"firstRun", true}}));
    platform.calls.clear();

    ControllerRegistry nextRegistry;
    platform.storyboard->addScene("mainStartWindow", [&](FakeScene& scene) {
        scene.add<FakeWindow>("window");
        return std::make_shared<mainStartWindow>(nextRegistry);
    });
    AppDelegate(nextRegistry).applicationWillFinishLaunching();

    EXPECT_EQ(platform.calls.startingWith("mainStartWindow.window.setContentViewController"),
              (Lines{R"(mainStartWindow.window.setContentViewController("tabviewcontroller"))"}));
}

TEST_F(FirstRun, TheEndIsNotCalledOffWhenTheExtensionStops)
{
    open(true);
    choose({"/a"});

    probe(false);
    platform.clock.advance(0.2);

    EXPECT_EQ(alertsRun().size(), 1U);
}

TEST_F(FirstRun, AProbeBetweenTheEndAndTheAlertSchedulesASecondAlert)
{
    open(true);
    choose({"/a"});
    platform.clock.advance(0.1);
    platform.calls.clear();

    probe(true);
    EXPECT_EQ(platform.calls.startingWithAnyOf({"standard.", "platform.performAfterDelay"}), finish);
    EXPECT_EQ(platform.clock.pendingDelays().size(), 2U);
    platform.clock.advance(0.15);
    EXPECT_EQ(alertsRun(), (Lines{"alert#1.runModal"}));
    platform.clock.advance(0.1);

    EXPECT_EQ(alertsRun(), (Lines{"alert#1.runModal", "alert#2.runModal"}));
    EXPECT_EQ(platform.calls.startingWith("application.terminate").size(), 2U);
}

TEST_F(FirstRun, ASecondChoiceAfterTheEndSchedulesASecondAlert)
{
    open(true);
    choose({"/a"});

    choose({"/b"});
    platform.clock.advance(0.2);

    EXPECT_EQ(alertsRun().size(), 2U);
    expectStored({"/a", "/b"}, {1, 1});
}

// How long the screen lives.

TEST_F(FirstRun, LetGoWithThePanelUpItLivesUntilTheAnswer)
{
    open();
    screen = openAnother();
    platform.runQueues();
    userFolder().click();
    const std::weak_ptr<firstRunvc> left = std::exchange(screen, nullptr);
    ASSERT_FALSE(left.expired());

    confirm({"/a"});

    expectStored({"/a"}, {1});
    EXPECT_TRUE(left.expired());
}

TEST_F(FirstRun, LetGoBeforeItsAlertItLivesUntilTheAlertWasAnswered)
{
    open(true);
    screen = openAnother();
    platform.runQueues();
    choose({"/a"});
    const std::weak_ptr<firstRunvc> left = std::exchange(screen, nullptr);
    ASSERT_FALSE(left.expired());

    platform.clock.advance(0.2);

    EXPECT_EQ(alertsRun().size(), 1U);
    EXPECT_TRUE(left.expired());
}

TEST_F(FirstRun, LetGoWithAProbeInFlightItLivesUntilItsUpdate)
{
    std::weak_ptr<firstRunvc> left = openAnother();
    ASSERT_FALSE(left.expired());

    platform.runQueues();

    EXPECT_EQ(platform.calls.startingWith("firstRunvc."), (Lines{"firstRunvc.btnpreferences.setEnabled(true)"}));
    EXPECT_TRUE(left.expired());
}

// What stops the program.

using FirstRunDeathTest = FirstRun;

TEST_F(FirstRunDeathTest, WithoutTheFirstButtonAnUpdateIsFatal)
{
    open();
    sceneOf(*screen).remove("btnpreferences");

    EXPECT_DEATH(probe(true), fatalLine(R"(the outlet "btnpreferences" is empty)"));
    EXPECT_DEATH(probe(false), fatalLine(R"(the outlet "btnpreferences" is empty)"));
}

TEST_F(FirstRunDeathTest, WithoutTheSecondButtonAChoiceStopsAfterItWasStored)
{
    open(true);
    userFolder().click();
    sceneOf(*screen).remove("btnuserfolder");

    EXPECT_DEATH(
        {
            platform.calls.echoOnStandardError();
            confirm({"/a"});
        },
        fatalLineAfter("suite#2.synchronize", R"(the outlet "btnuserfolder" is empty)"));
}

TEST_F(FirstRunDeathTest, WithoutAStartWindowThePanelIsFatal)
{
    open();
    sceneOf(*registry.controller<NS::WindowController>("mainStartWindow")).remove("window");

    EXPECT_DEATH(userFolder().click(), fatalLine(R"(the outlet "window" is empty)"));
}

} // namespace
