#include "onboarding/genraltabvc.h"

#include "support/FakeButton.h"
#include "support/FakePlatform.h"
#include "support/FakeTextField.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Lines = std::vector<std::string>;
using Stored = NS::Value::Dictionary;

constexpr const char* enabled = "Orvik Menu Extension is enabled";
constexpr const char* disabled =
    "Enable \"Orvik Menu Extension\" in System Preferences > Extensions to make Orvik Menu work.";

class GeneralTab : public testing::Test {
protected:
    GeneralTab()
    {
        platform.storyboard->addScene("genraltabvc", [this](FakeScene& scene) {
            scene.add<FakeTextField>("lblextensionstate");
            scene.addSending<FakeButton>("btnopenSystemPrefrences:", "open");
            scene.addSending<FakeButton>("showiconinmenu:", "checkboxShowicon");
            scene.addSending<FakeButton>("showinSubmenu:", "checkbox_showinSubMenu");
            if (!missing.empty())
                scene.remove(missing);
            return std::make_shared<genraltabvc>();
        });
    }

    void open()
    {
        screen = std::dynamic_pointer_cast<genraltabvc>(
            platform.storyboard->instantiateControllerWithIdentifier("genraltabvc"));
    }
    void openWith(const Stored& stored)
    {
        platform.suite = stored;
        open();
    }

    [[nodiscard]] FakeButton& icon() const { return sceneOf(*screen).view<FakeButton>("checkboxShowicon"); }
    [[nodiscard]] FakeButton& submenu() const { return sceneOf(*screen).view<FakeButton>("checkbox_showinSubMenu"); }
    [[nodiscard]] const std::string& label() const
    {
        return sceneOf(*screen).view<FakeTextField>("lblextensionstate").text();
    }
    void expectShown(bool showsIcon, bool showsInSubmenu) const
    {
        EXPECT_EQ(icon().state(), showsIcon ? NS::ControlState::On : NS::ControlState::Off);
        EXPECT_EQ(submenu().state(), showsInSubmenu ? NS::ControlState::On : NS::ControlState::Off);
    }

    FakePlatform platform;
    /// A view that the scene does not have.
    std::string missing;
    std::shared_ptr<genraltabvc> screen;
};

// Making the tab.

TEST_F(GeneralTab, BeginsWithAHandleAndNothingElse)
{
    const genraltabvc made;

    EXPECT_FALSE(made.lblextensionstate);
    EXPECT_FALSE(made.checkboxShowicon);
    EXPECT_FALSE(made.checkbox_showinSubMenu);
    EXPECT_TRUE(made.sharedDefaults);
    EXPECT_FALSE(made.probe.timer);
    EXPECT_FALSE(made.probe.isextensionrunning);
    EXPECT_EQ(platform.calls.lines(), (Lines{opensSharedSuite}));
}

TEST_F(GeneralTab, LoadingSchedulesAProbeThenLoadsTheIconsCheckboxThenTheSubmenus)
{
    open();

    EXPECT_EQ(platform.calls.startingWithAnyOf({"platform.dispatch", "suite#", "genraltabvc."}),
              (Lines{"platform.dispatchToGlobalQueue", R"(suite#1.objectForKey("showmenuicon"))",
                     R"(suite#1.setObject_forKey("showmenuicon"))", "genraltabvc.checkboxShowicon.setState(1)",
                     R"(suite#1.objectForKey("showinSubMenu"))", R"(suite#1.setObject_forKey("showinSubMenu"))",
                     "genraltabvc.checkbox_showinSubMenu.setState(0)"}));
}

// Loading the checkboxes.

TEST_F(GeneralTab, AnEmptySuiteGetsTheDefaultsAndTheyAreShown)
{
    open();

    EXPECT_EQ(platform.suite, (Stored{{"showmenuicon", true}, {"showinSubMenu", false}}));
    expectShown(true, false);
    EXPECT_TRUE(platform.calls.containing("synchronize").empty());
}

TEST_F(GeneralTab, StoredValuesAreShownAndLeftAlone)
{
    for (const bool showsIcon : {false, true}) {
        for (const bool showsInSubmenu : {false, true}) {
            platform.calls.clear();

            openWith({{"showmenuicon", showsIcon}, {"showinSubMenu", showsInSubmenu}});

            expectShown(showsIcon, showsInSubmenu);
            EXPECT_TRUE(platform.calls.containing("setObject").empty());
        }
    }
}

TEST_F(GeneralTab, ValuesOfAnotherKindAreReplacedByTheDefaults)
{
    for (const NS::Value& wrong : {NS::Value("true"), NS::Value(1), NS::Value(0), NS::Value(0.0),
                                   NS::Value(NS::Value::Array{true}), NS::Value(Stored{})}) {
        openWith({{"showmenuicon", wrong}, {"showinSubMenu", wrong}});

        EXPECT_EQ(platform.suite, (Stored{{"showmenuicon", true}, {"showinSubMenu", false}}));
        expectShown(true, false);
    }
}

TEST_F(GeneralTab, EachValueIsLoadedByItself)
{
    openWith({{"showmenuicon", false}, {"showinSubMenu", "yes"}});

    EXPECT_EQ(platform.suite, (Stored{{"showmenuicon", false}, {"showinSubMenu", false}}));
    EXPECT_EQ(platform.calls.containing("setObject"), (Lines{R"(suite#1.setObject_forKey("showinSubMenu"))"}));
}

TEST_F(GeneralTab, WithoutASuiteTheDefaultsAreShownAndNothingIsStored)
{
    platform.suiteCanBeRead = false;
    platform.suite = {{"showmenuicon", false}, {"showinSubMenu", true}};

    open();

    EXPECT_FALSE(screen->sharedDefaults);
    expectShown(true, false);
    EXPECT_EQ(platform.suite, (Stored{{"showmenuicon", false}, {"showinSubMenu", true}}));
}

TEST_F(GeneralTab, LaterChangesElsewhereAreNotPickedUp)
{
    openWith({{"showmenuicon", true}, {"showinSubMenu", false}});
    platform.suite = {{"showmenuicon", false}, {"showinSubMenu", true}};

    screen->viewWillAppear();
    platform.clock.advance(5.0);
    platform.runQueues();
    screen->viewWillDisappear();

    expectShown(true, false);
}

// The checkboxes.

TEST_F(GeneralTab, TogglingTheIconsCheckboxStoresItAtOnceWithoutSynchronizing)
{
    open();
    platform.calls.clear();

    icon().click();
    EXPECT_EQ(platform.suite, (Stored{{"showmenuicon", false}, {"showinSubMenu", false}}));
    icon().click();
    EXPECT_EQ(platform.suite, (Stored{{"showmenuicon", true}, {"showinSubMenu", false}}));

    EXPECT_EQ(platform.calls.lines(), Lines(2, R"(suite#1.setObject_forKey("showmenuicon"))"));
}

TEST_F(GeneralTab, TogglingTheSubmenusCheckboxStoresItAtOnceWithoutSynchronizing)
{
    open();
    platform.calls.clear();

    submenu().click();
    EXPECT_EQ(platform.suite, (Stored{{"showmenuicon", true}, {"showinSubMenu", true}}));
    submenu().click();
    EXPECT_EQ(platform.suite, (Stored{{"showmenuicon", true}, {"showinSubMenu", false}}));

    EXPECT_EQ(platform.calls.lines(), Lines(2, R"(suite#1.setObject_forKey("showinSubMenu"))"));
}

TEST_F(GeneralTab, TheOutletsStateCountsNotTheSenders)
{
    open();
    FakeButton sender(platform.calls, "sender");
    sender.setState(NS::ControlState::Off);

    screen->showiconinmenu(sender);
    EXPECT_EQ(platform.suite.at("showmenuicon"), NS::Value(true));
    sender.setState(NS::ControlState::On);
    screen->showinSubmenu(sender);
    EXPECT_EQ(platform.suite.at("showinSubMenu"), NS::Value(false));
}

TEST_F(GeneralTab, AMixedStateIsStoredAsOff)
{
    openWith({{"showmenuicon", true}, {"showinSubMenu", true}});
    icon().setState(NS::ControlState::Mixed);
    submenu().setState(NS::ControlState::Mixed);

    screen->showiconinmenu(icon());
    screen->showinSubmenu(submenu());

    EXPECT_EQ(platform.suite, (Stored{{"showmenuicon", false}, {"showinSubMenu", false}}));
}

TEST_F(GeneralTab, WithoutASuiteTogglingHasNoLastingEffect)
{
    platform.suiteCanBeRead = false;
    open();
    platform.calls.clear();

    icon().click();
    submenu().click();

    EXPECT_TRUE(platform.suite.empty());
    EXPECT_TRUE(platform.calls.lines().empty());
    expectShown(false, true);
}

// The extension.

TEST_F(GeneralTab, TheLabelIsLeftAloneUntilTheFirstProbeHasLooked)
{
    open();
    EXPECT_TRUE(platform.calls.containing("lblextensionstate").empty());

    platform.runQueues();

    EXPECT_EQ(platform.calls.containing("lblextensionstate").size(), 1U);
}

TEST_F(GeneralTab, SaysHowToEnableAnExtensionThatDoesNotRun)
{
    open();
    platform.runQueues();
    EXPECT_EQ(label(), disabled);
}

TEST_F(GeneralTab, SaysThatARunningExtensionIsEnabled)
{
    platform.sharedWorkspace().setExtensionRuns(true);
    open();
    platform.runQueues();
    EXPECT_EQ(label(), enabled);
}

TEST_F(GeneralTab, TellsOfAChangeAtTheNextTickWhileItShows)
{
    open();
    platform.runQueues();
    platform.calls.clear();
    screen->viewWillAppear();
    EXPECT_EQ(platform.calls.lines(), (Lines{"platform.scheduledTimerWithTimeInterval(5)"}));
    platform.sharedWorkspace().setExtensionRuns(true);

    platform.clock.advance(4.75);
    platform.runQueues();
    EXPECT_EQ(label(), disabled);
    platform.clock.advance(0.25);
    platform.runQueues();
    EXPECT_EQ(label(), enabled);

    platform.sharedWorkspace().setExtensionRuns(false);
    platform.clock.advance(5.0);
    platform.runQueues();
    EXPECT_EQ(label(), disabled);

    screen->viewWillDisappear();
    platform.sharedWorkspace().setExtensionRuns(true);
    platform.clock.advance(60.0);
    platform.runQueues();
    EXPECT_EQ(label(), disabled);
}

TEST_F(GeneralTab, AnUpdateTouchesTheLabelAlone)
{
    open();
    platform.calls.clear();

    platform.runQueues();

    EXPECT_EQ(platform.calls.startingWithAnyOf({"genraltabvc.", "suite#"}).size(), 1U);
    EXPECT_TRUE(icon().isEnabled());
    EXPECT_TRUE(submenu().isEnabled());
}

TEST_F(GeneralTab, ItsButtonOpensTheExtensionsPaneAndSaysNothingWhetherThatWorksOrNot)
{
    open();
    for (const bool opens : {true, false}) {
        platform.sharedWorkspace().opens = opens;
        platform.calls.clear();
        testing::internal::CaptureStdout();

        sceneOf(*screen).view<FakeButton>("open").click();

        EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
        EXPECT_EQ(platform.calls.lines(),
                  (Lines{R"(workspace.openURL("/System/Library/PreferencePanes/Extensions.prefPane"))"}));
    }
}

TEST_F(GeneralTab, LetGoWithAProbeInFlightItLivesUntilItsUpdate)
{
    open();
    const std::weak_ptr<genraltabvc> left = std::exchange(screen, nullptr);
    ASSERT_FALSE(left.expired());

    platform.runQueues();

    EXPECT_EQ(platform.calls.containing("lblextensionstate").size(), 1U);
    EXPECT_TRUE(left.expired());
}

// What stops the program.

using GeneralTabDeathTest = GeneralTab;

TEST_F(GeneralTabDeathTest, AMissingCheckboxIsFatalWhenItLoads)
{
    for (const char* view : {"checkboxShowicon", "checkbox_showinSubMenu"}) {
        missing = view;
        EXPECT_DEATH(open(), fatalLine("the outlet \"" + missing + "\" is empty"));
    }
}

TEST_F(GeneralTabDeathTest, AMissingCheckboxIsFatalWhenItsActionIsSentBeforeAnythingIsWritten)
{
    open();
    FakeButton sender(platform.calls, "sender");
    sceneOf(*screen).remove("checkboxShowicon");
    sceneOf(*screen).remove("checkbox_showinSubMenu");
    const auto echo = [this] { platform.calls.echoOnStandardError(); };

    EXPECT_DEATH((echo(), screen->showiconinmenu(sender)), fatalLine(R"(the outlet "checkboxShowicon" is empty)"));
    EXPECT_DEATH((echo(), screen->showinSubmenu(sender)),
                 fatalLine(R"(the outlet "checkbox_showinSubMenu" is empty)"));
}

TEST_F(GeneralTabDeathTest, AMissingLabelIsFatalAtTheFirstUpdate)
{
    missing = "lblextensionstate";
    open();
    EXPECT_DEATH(platform.runQueues(), fatalLine(R"(the outlet "lblextensionstate" is empty)"));
}

} // namespace
