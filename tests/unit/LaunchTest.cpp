#include "ApplicationTest.h"

#include "app/tabviewcontroller.h"
#include "support/FakeButton.h"
#include "support/FakeTabView.h"
#include "support/FatalLine.h"

#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class Launch : public ApplicationTest {
protected:
    void expectNormalLaunch() const
    {
        EXPECT_EQ(platform.calls.startingWith("application."), (Lines{"application.setActivationPolicy(0)"}));
        EXPECT_EQ(platform.calls.startingWith("mainStartWindow.window.makeKeyAndOrderFront").size(), 1U);
        EXPECT_TRUE(platform.clock.pendingDelays().empty());
    }
    void expectNoWindow() const
    {
        EXPECT_TRUE(platform.calls.startingWith("application.setActivationPolicy").empty());
        EXPECT_TRUE(platform.calls.startingWithAnyOf({"storyboard.", "mainStartWindow."}).empty());
        EXPECT_TRUE(platform.calls.startingWith("center.").empty());
    }
    [[nodiscard]] Lines panels() const { return platform.calls.startingWith("platform.makeOpenPanel"); }
};

TEST_F(Launch, WithoutARequestTheApplicationBecomesRegularBeforeItsWindowIsMade)
{
    launch();

    expectNormalLaunch();
    const Lines made = platform.calls.startingWithAnyOf({"application.", "storyboard.instantiate"});
    ASSERT_GE(made.size(), 2U);
    EXPECT_EQ(made[0], "application.setActivationPolicy(0)");
    EXPECT_EQ(made[1], R"(storyboard.instantiateControllerWithIdentifier("mainStartWindow"))");
}

TEST_F(Launch, WithoutASuiteIsANormalLaunch)
{
    leaveMailRequest(5.0);
    platform.suiteCanBeRead = false;

    launch();

    expectNormalLaunch();
    EXPECT_TRUE(panels().empty());
}

TEST_F(Launch, WithAStaleRequestRemovesItAndIsNormal)
{
    leaveMailRequest(20.0);

    launch();

    expectNormalLaunch();
    EXPECT_FALSE(mailRequestIsStored());
    EXPECT_TRUE(panels().empty());
}

TEST_F(Launch, WithARequestThatHasNoDateRemovesItAndIsNormal)
{
    platform.suite.insert_or_assign("mailAttachPath", "/home/user/report.txt");

    launch();

    expectNormalLaunch();
    EXPECT_FALSE(mailRequestIsStored());
    EXPECT_TRUE(panels().empty());
}

TEST_F(Launch, WithAFreshRequestHandsItOverWithoutAnyWindow)
{
    leaveMailRequest(19.9);

    launch();

    expectNoWindow();
    EXPECT_EQ(panels().size(), 1U);
    EXPECT_EQ(platform.calls.startingWith("mail."), (Lines{R"(mail.performWithItems(["/home/user/chosen.txt"]))"}));
    EXPECT_TRUE(platform.calls.startingWith("application.").empty());
}

TEST_F(Launch, AfterAHandOffQuitsExactlyTwentySecondsLater)
{
    leaveMailRequest(5.0);
    launch();
    EXPECT_EQ(platform.clock.pendingDelays(), (std::vector{20.0}));

    platform.clock.advance(19.5);
    EXPECT_TRUE(platform.calls.startingWith("application.").empty());

    platform.clock.advance(0.5);
    EXPECT_EQ(platform.calls.startingWith("application."), (Lines{"application.terminate"}));
}

TEST_F(Launch, ANotificationDuringTheTwentySecondsIsNotHandled)
{
    leaveMailRequest(5.0);
    launch();

    leaveMailRequest(0.0);
    postFromExtension("AttachFileToMail");
    postFromExtension("ShowUtilityKit");

    expectNoWindow();
    EXPECT_EQ(panels().size(), 1U);
    EXPECT_TRUE(mailRequestIsStored());
}

TEST_F(Launch, QuitsAtOnceWhenTheUserCancelsTheHandOff)
{
    leaveMailRequest(5.0);
    platform.openPanel.response = 0;

    launch();

    expectNoWindow();
    EXPECT_EQ(platform.calls.startingWith("application."), (Lines{"application.terminate"}));
    EXPECT_TRUE(platform.clock.pendingDelays().empty());
}

TEST_F(Launch, QuitsAtOnceWhenTheHandOffIsConfirmedWithoutAnItem)
{
    leaveMailRequest(5.0);
    platform.openPanel.url = std::nullopt;

    launch();

    expectNoWindow();
    EXPECT_EQ(platform.calls.startingWith("application."), (Lines{"application.terminate"}));
}

TEST_F(Launch, IsNormalAfterAnyOtherAnswerOfThePanel)
{
    leaveMailRequest(5.0);
    platform.openPanel.response = -1000;

    launch();

    expectNormalLaunch();
    EXPECT_FALSE(mailRequestIsStored());
    EXPECT_TRUE(platform.calls.startingWith("mail.").empty());
}

TEST_F(Launch, StopsBeforeAnyWindowWhenAnotherProcessHasBecomeTheApplication)
{
    platform.sharedApplication().runsAlready = true;

    launch();

    EXPECT_EQ(platform.calls.startingWith("application."), (Lines{"application.setActivationPolicy(0)"}));
    EXPECT_TRUE(platform.calls.startingWithAnyOf({"storyboard.", "mainStartWindow.", "center."}).empty());
}

TEST_F(Launch, TheStepsThatFollowItDoNothing)
{
    launch();
    platform.calls.clear();

    delegate.applicationDidFinishLaunching();
    delegate.applicationWillTerminate();

    EXPECT_EQ(platform.calls.lines(), Lines{});
}

using LaunchDeathTest = Launch;

TEST_F(LaunchDeathTest, AHandOffWithoutAMailServiceIsFatal)
{
    leaveMailRequest(5.0);
    platform.hasMailService = false;

    EXPECT_DEATH(launch(), fatalLine("there is no service to compose an e-mail with"));
}

// A second start, which the running application is told of.

TEST_F(Launch, ASecondStartLetsTheRunningApplicationHandleTheRequest)
{
    launch();
    leaveMailRequest(5.0);

    delegate.applicationShouldHandleReopen_hasVisibleWindows(true);

    EXPECT_EQ(platform.calls.startingWith("mail.").size(), 1U);
    EXPECT_FALSE(mailRequestIsStored());
    expectNormalLaunch();
}

TEST_F(Launch, ASecondStartWithoutARequestChangesNothing)
{
    launch();
    platform.calls.clear();

    delegate.applicationShouldHandleReopen_hasVisibleWindows(true);

    EXPECT_TRUE(panels().empty());
    EXPECT_TRUE(platform.calls.startingWithAnyOf({"application.", "storyboard."}).empty());
}

TEST_F(Launch, ACancelledHandOffAfterASecondStartDoesNotQuit)
{
    launch();
    leaveMailRequest(5.0);
    platform.openPanel.response = 0;

    delegate.applicationShouldHandleReopen_hasVisibleWindows(true);

    EXPECT_EQ(panels().size(), 1U);
    EXPECT_TRUE(platform.calls.startingWith("application.terminate").empty());
}

// The About item of the menu.

class AboutMenuItem : public ApplicationTest {
protected:
    void chooseAbout()
    {
        FakeScene menu(platform.calls, "menu");
        auto& item = menu.addSending<FakeButton>("menuItem_aboutCLicked:", "about");
        menu.connectTo(delegate);
        item.click();
    }
    [[nodiscard]] const FakeTabView& tabs()
    {
        return sceneOf(*registry.controller<NS::ViewController>("tabviewcontroller")).view<FakeTabView>("tabView");
    }
};

TEST_F(AboutMenuItem, SelectsTheFourthTabAndShowsNothing)
{
    platform.standard.insert_or_assign("firstRun", true);
    launch();
    platform.calls.clear();

    chooseAbout();

    EXPECT_EQ(platform.calls.lines(), (Lines{"tabviewcontroller.tabView.selectTabViewItemAtIndex(3)"}));
    EXPECT_EQ(tabs().selected(), 3);
}

TEST_F(AboutMenuItem, DuringTheFirstRunSelectsTheTabOffScreenAndShowsNothing)
{
    launch();
    const auto onScreen = windowOf("mainStartWindow").content();
    platform.calls.clear();

    chooseAbout();

    EXPECT_EQ(platform.calls.lines(), (Lines{R"(storyboard.instantiateControllerWithIdentifier("tabviewcontroller"))",
                                             "tabviewcontroller.tabView.selectTabViewItemAtIndex(3)"}));
    EXPECT_EQ(windowOf("mainStartWindow").content(), onScreen);
    EXPECT_EQ(sceneOf(*onScreen).name(), "firstRunvc");
}

TEST_F(AboutMenuItem, ChosenTwiceUsesTheSameTabs)
{
    chooseAbout();
    chooseAbout();

    EXPECT_EQ(platform.calls.startingWith("storyboard.instantiate").size(), 1U);
    EXPECT_EQ(platform.calls.startingWith("tabviewcontroller.tabView.select").size(), 2U);
}

using AboutMenuItemDeathTest = AboutMenuItem;

TEST_F(AboutMenuItemDeathTest, ATabsSceneWithoutATabViewIsFatal)
{
    platform.storyboard->addScene("tabviewcontroller",
                                  [](FakeScene&) { return std::make_shared<tabviewcontroller>(); });

    EXPECT_DEATH(chooseAbout(), fatalLine(R"(the outlet "tabView" is empty)"));
}

} // namespace
