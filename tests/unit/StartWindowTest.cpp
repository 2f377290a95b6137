#include "ApplicationTest.h"

#include "app/mainStartWindow.h"
#include "platform/TabViewController.h"
#include "support/FatalLine.h"

#include <memory>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class StartWindow : public ApplicationTest {
protected:
    [[nodiscard]] std::string contentOf(std::string_view identifier)
    {
        return sceneOf(*windowOf(identifier).content()).name();
    }
    [[nodiscard]] Lines panels() const { return platform.calls.startingWith("platform.makeOpenPanel"); }

    /// The same storyboard without one scene.
    void dropScene(std::string_view identifier) { platform.storyboard->removeScene(identifier); }
};

TEST_F(StartWindow, ChoosesItsContentThenShowsThenListens)
{
    platform.standard.insert_or_assign("firstRun", true);

    launch();

    EXPECT_EQ(platform.calls.startingWithAnyOf({"standard.", "mainStartWindow.", "center."}),
              (Lines{
                  R"(standard.objectForKey("firstRun"))",
                  R"(mainStartWindow.window.setContentViewController("tabviewcontroller"))",
                  R"(mainStartWindow.window.makeKeyAndOrderFront)",
                  observes("AttachFileToMail"),
                  observes("ShowUtilityKit"),
              }));
}

// Its content.

TEST_F(StartWindow, ShowsTheFirstRunScreenWhenNothingIsStored)
{
    launch();

    EXPECT_EQ(contentOf("mainStartWindow"), "firstRunvc");
    EXPECT_TRUE(platform.calls.containing(R"(instantiateControllerWithIdentifier("tabviewcontroller"))").empty());
}

TEST_F(StartWindow, DoesNotWriteWhetherTheFirstRunIsOver)
{
    launch();

    EXPECT_TRUE(platform.standard.empty());
    EXPECT_EQ(platform.calls.startingWith("standard.").size(), 1U);
}

TEST_F(StartWindow, AFirstRunStoredInTheSuiteDoesNotCount)
{
    platform.suite.insert_or_assign("firstRun", true);

    launch();

    EXPECT_EQ(contentOf("mainStartWindow"), "firstRunvc");
}

struct StoredFirstRun {
    const char* name;
    NS::Value value;
};

class AnyStoredFirstRun : public StartWindow, public testing::WithParamInterface<StoredFirstRun> {};

TEST_P(AnyStoredFirstRun, ShowsTheTabs)
{
    platform.standard.insert_or_assign("firstRun", GetParam().value);

    launch();

    EXPECT_EQ(contentOf("mainStartWindow"), "tabviewcontroller");
    EXPECT_TRUE(platform.calls.containing(R"(instantiateControllerWithIdentifier("firstRunvc"))").empty());
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, AnyStoredFirstRun,
    testing::ValuesIn(std::vector<StoredFirstRun>{
        {"True", true}, {"False", false}, {"AString", "no"}, {"Zero", 0}, {"AnEmptyArray", NS::Value::Array{}}}),
    [](const auto& tested) { return tested.param.name; });

// Requests to send by mail while the application runs.

TEST_F(StartWindow, AMailRequestIsHandledWithoutQuittingOrComingToTheFront)
{
    launch();
    platform.calls.clear();
    leaveMailRequest(5.0);

    postFromExtension("AttachFileToMail");

    EXPECT_EQ(platform.calls.startingWith("mail."), (Lines{R"(mail.performWithItems(["/home/user/chosen.txt"]))"}));
    EXPECT_FALSE(mailRequestIsStored());
    EXPECT_TRUE(platform.calls.startingWithAnyOf({"application.", "mainStartWindow."}).empty());
    EXPECT_TRUE(platform.clock.pendingDelays().empty());
}

TEST_F(StartWindow, ACancelledMailRequestDoesNotQuit)
{
    launch();
    leaveMailRequest(5.0);
    platform.openPanel.response = 0;

    postFromExtension("AttachFileToMail");

    EXPECT_EQ(panels().size(), 1U);
    EXPECT_TRUE(platform.calls.startingWith("application.terminate").empty());
    EXPECT_TRUE(platform.clock.pendingDelays().empty());
}

TEST_F(StartWindow, AStaleMailRequestIsRemovedOnTheNextNotification)
{
    launch();
    leaveMailRequest(3600.0);

    postFromExtension("AttachFileToMail");

    EXPECT_FALSE(mailRequestIsStored());
    EXPECT_TRUE(panels().empty());
}

TEST_F(StartWindow, TwoNotificationsForOneMailRequestOpenOnePanel)
{
    launch();
    leaveMailRequest(5.0);

    postFromExtension("AttachFileToMail");
    postFromExtension("AttachFileToMail");

    EXPECT_EQ(panels().size(), 1U);
}

TEST_F(StartWindow, ASecondNotificationWhileThePanelIsOpenOpensNoSecondPanel)
{
    launch();
    leaveMailRequest(5.0);
    platform.openPanel.whileOpen = [this] { postFromExtension("AttachFileToMail"); };
    platform.calls.clear();

    postFromExtension("AttachFileToMail");

    EXPECT_EQ(panels().size(), 1U);
    EXPECT_EQ(platform.calls.startingWith("platform.userDefaultsWithSuiteName").size(), 2U);
}

TEST_F(StartWindow, EachMailRequestReadsThroughAFreshHandle)
{
    launch();
    platform.calls.clear();

    postFromExtension("AttachFileToMail");
    postFromExtension("AttachFileToMail");

    EXPECT_EQ(platform.calls.containing(R"(objectForKey("mailAttachPath"))"),
              (Lines{
                  R"(suite#2.objectForKey("mailAttachPath"))",
                  R"(suite#3.objectForKey("mailAttachPath"))",
              }));
}

// Who is listened to.

TEST_F(StartWindow, NotificationsOfOtherSendersAreIgnored)
{
    launch();
    leaveMailRequest(5.0);
    platform.calls.clear();

    for (const std::string& sender : otherSenders()) {
        platform.defaultCenter().post("AttachFileToMail", sender);
        platform.defaultCenter().post("ShowUtilityKit", sender);
    }

    EXPECT_TRUE(platform.calls.lines().empty());
    EXPECT_TRUE(mailRequestIsStored());
}

TEST_F(StartWindow, NotificationsOfOtherNamesAreIgnored)
{
    launch();
    leaveMailRequest(5.0);
    platform.calls.clear();

    for (const char* name : {"", "attachfiletomail", "AttachFileToMail2", "showUtilityKit", "ReloadCustomFolders"})
        postFromExtension(name);

    EXPECT_TRUE(platform.calls.lines().empty());
}

// The window of the other applications.

TEST_F(StartWindow, ShowUtilityKitMakesTheWindowFillsItShowsItAndComesToTheFront)
{
    launch();
    platform.calls.clear();

    postFromExtension("ShowUtilityKit");

    EXPECT_EQ(
        platform.calls.startingWithAnyOf({"storyboard.", "UtilityKitWindow.", "application."}),
        (Lines{R"(storyboard.instantiateControllerWithIdentifier("UtilityKitWindow"))",
               R"(storyboard.instantiateControllerWithIdentifier("utilityKitvc"))",
               R"(UtilityKitWindow.window.setContentViewController("utilityKitvc"))",
               R"(UtilityKitWindow.window.makeKeyAndOrderFront)", R"(application.activateIgnoringOtherApps(true))"}));
}

TEST_F(StartWindow, ShowUtilityKitTwiceShowsAndActivatesTheSameWindowTwice)
{
    launch();
    postFromExtension("ShowUtilityKit");
    const FakeWindow* first = &windowOf("UtilityKitWindow");
    platform.calls.clear();

    postFromExtension("ShowUtilityKit");

    EXPECT_EQ(&windowOf("UtilityKitWindow"), first);
    EXPECT_EQ(platform.calls.lines(),
              (Lines{"UtilityKitWindow.window.makeKeyAndOrderFront", "application.activateIgnoringOtherApps(true)"}));
}

TEST_F(StartWindow, ShowUtilityKitLeavesTheStartWindowAsItIs)
{
    launch();
    platform.calls.clear();

    postFromExtension("ShowUtilityKit");

    EXPECT_TRUE(platform.calls.startingWith("mainStartWindow.").empty());
    EXPECT_EQ(contentOf("mainStartWindow"), "firstRunvc");
    EXPECT_EQ(contentOf("UtilityKitWindow"), "utilityKitvc");
}

// Closing.

TEST_F(StartWindow, ClosingItQuits)
{
    launch();
    platform.calls.clear();

    windowOf("mainStartWindow").close();

    EXPECT_EQ(platform.calls.lines(), (Lines{"application.terminate"}));
}

TEST_F(StartWindow, ClosingItQuitsAlsoWhileTheOtherWindowIsOpen)
{
    launch();
    postFromExtension("ShowUtilityKit");
    platform.calls.clear();

    windowOf("mainStartWindow").close();

    EXPECT_EQ(platform.calls.lines(), (Lines{"application.terminate"}));
}

TEST_F(StartWindow, ClosingTheOtherWindowDoesNotQuit)
{
    launch();
    postFromExtension("ShowUtilityKit");
    platform.calls.clear();

    windowOf("UtilityKitWindow").close();

    EXPECT_TRUE(platform.calls.lines().empty());
}

// Scenes that cannot be.

using StartWindowDeathTest = StartWindow;

TEST_F(StartWindowDeathTest, AMissingStartWindowSceneIsFatal)
{
    dropScene("mainStartWindow");
    EXPECT_DEATH(launch(), fatalLine(R"(the storyboard has no scene "mainStartWindow")"));
}

TEST_F(StartWindowDeathTest, AStartWindowSceneOfAnotherClassIsFatal)
{
    platform.storyboard->addScene("mainStartWindow",
                                  [](FakeScene&) { return std::make_shared<NS::ViewController>(); });
    EXPECT_DEATH(launch(), fatalLine(R"(the scene "mainStartWindow" is of the wrong class)"));
}

TEST_F(StartWindowDeathTest, AStartWindowSceneWithoutAWindowIsFatal)
{
    platform.storyboard->addScene("mainStartWindow",
                                  [this](FakeScene&) { return std::make_shared<mainStartWindow>(registry); });
    EXPECT_DEATH(launch(), fatalLine(R"(the outlet "window" is empty)"));
}

TEST_F(StartWindowDeathTest, MissingTabsAreFatal)
{
    platform.standard.insert_or_assign("firstRun", true);
    dropScene("tabviewcontroller");
    EXPECT_DEATH(launch(), fatalLine(R"(the storyboard has no scene "tabviewcontroller")"));
}

TEST_F(StartWindowDeathTest, TabsOfAnotherClassAreFatal)
{
    platform.standard.insert_or_assign("firstRun", true);
    platform.storyboard->addScene("tabviewcontroller",
                                  [](FakeScene&) { return std::make_shared<NS::TabViewController>(); });
    EXPECT_DEATH(launch(), fatalLine(R"(the scene "tabviewcontroller" is of the wrong class)"));
}

TEST_F(StartWindowDeathTest, AMissingFirstRunScreenIsFatal)
{
    dropScene("firstRunvc");
    EXPECT_DEATH(launch(), fatalLine(R"(the storyboard has no scene "firstRunvc")"));
}

TEST_F(StartWindowDeathTest, AFirstRunSceneThatIsNotAScreenIsFatal)
{
    platform.storyboard->addScene("firstRunvc", [](FakeScene&) { return std::make_shared<NS::WindowController>(); });
    EXPECT_DEATH(launch(), fatalLine(R"(the scene "firstRunvc" is of the wrong class)"));
}

TEST_F(StartWindowDeathTest, AFirstRunScreenOfAnotherClassIsFatal)
{
    platform.storyboard->addScene("firstRunvc", [](FakeScene&) { return std::make_shared<NS::ViewController>(); });
    EXPECT_DEATH(launch(), fatalLine(R"(the scene "firstRunvc" is of the wrong class)"));
}

TEST_F(StartWindowDeathTest, AnOtherAppsWindowOfAnotherClassIsFatal)
{
    platform.storyboard->addScene("UtilityKitWindow",
                                  [](FakeScene&) { return std::make_shared<NS::WindowController>(); });
    launch();
    EXPECT_DEATH(postFromExtension("ShowUtilityKit"),
                 fatalLine(R"(the scene "UtilityKitWindow" is of the wrong class)"));
}

TEST_F(StartWindowDeathTest, AMissingOtherAppsScreenIsFatal)
{
    dropScene("utilityKitvc");
    launch();
    EXPECT_DEATH(postFromExtension("ShowUtilityKit"), fatalLine(R"(the storyboard has no scene "utilityKitvc")"));
}

TEST_F(StartWindowDeathTest, AnOtherAppsScreenOfAnotherClassIsFatal)
{
    platform.storyboard->addScene("utilityKitvc", [](FakeScene&) { return std::make_shared<NS::ViewController>(); });
    launch();
    EXPECT_DEATH(postFromExtension("ShowUtilityKit"), fatalLine(R"(the scene "utilityKitvc" is of the wrong class)"));
}

TEST_F(StartWindowDeathTest, AMissingOtherAppsWindowIsFatal)
{
    dropScene("UtilityKitWindow");
    launch();
    EXPECT_DEATH(postFromExtension("ShowUtilityKit"), fatalLine(R"(the storyboard has no scene "UtilityKitWindow")"));
}

TEST_F(StartWindowDeathTest, AMailRequestWithoutAMailServiceIsFatal)
{
    platform.hasMailService = false;
    launch();
    leaveMailRequest(5.0);
    EXPECT_DEATH(postFromExtension("AttachFileToMail"), fatalLine("there is no service to compose an e-mail with"));
}

} // namespace
