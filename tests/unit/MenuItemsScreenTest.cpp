#include "menu/ViewController.h"

#include "ListScreenTest.h"
#include "settings/MenuCatalogue.h"
#include "support/AtAbort.h"
#include "support/FatalLine.h"

#include <any>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

NS::Value::Dictionary item(const char* title, bool state)
{
    return {{"title", title}, {"state", state}};
}

class MenuItemsScreen : public ListScreenTest {
protected:
    MenuItemsScreen()
    {
        platform.storyboard->addScene("ViewController", [this](FakeScene& scene) {
            addList(scene);
            scene.addSending<FakeButton>("btngetPermission:", "permission");
            return std::make_shared<ViewController>();
        });
    }

    void store(const NS::Value::Array& items) { platform.suite.insert_or_assign("menuArrayDic", items); }

    void open()
    {
        screen = std::dynamic_pointer_cast<ViewController>(
            platform.storyboard->instantiateControllerWithIdentifier("ViewController"));
    }
    void openWith(const NS::Value::Array& items)
    {
        store(items);
        open();
    }

    [[nodiscard]] Lines suiteWrites() const
    {
        return platform.calls.startingWithAnyOf({"suite#1.set", "suite#1.remove", "suite#1.synchronize"});
    }

    std::shared_ptr<ViewController> screen;
};

const Lines menuWrite{R"(suite#1.setObject_forKey("menuArrayDic"))", "suite#1.synchronize"};

TEST_F(MenuItemsScreen, AnActionIsFoundByTypingItsTitle)
{
    openWith({item("Send via Mail", true)});
    EXPECT_EQ(screen->tableView_typeSelectStringForTableColumn_row(table(), nullptr, 0), "Send via Mail");
}

// Making the screen.

TEST_F(MenuItemsScreen, BeginsWithTheCatalogueAndEmptyWorkingCopies)
{
    store({item("Open Terminal", true)});
    const ViewController made;

    std::vector<std::string> titles;
    titles.reserve(menuCatalogue.size());
    for (const CatalogueRow& action : menuCatalogue)
        titles.emplace_back(action.title);
    EXPECT_EQ(made.menuItemsarr, titles);
    EXPECT_EQ(made.savekey, "save14");
    EXPECT_TRUE(made.arrItemsdic.empty());
    EXPECT_TRUE(made.arrstructur.empty());
    EXPECT_FALSE(made.tblview);
}

TEST_F(MenuItemsScreen, OpensTheSuiteOnceWhenItIsMade)
{
    const ViewController made;

    EXPECT_TRUE(made.sharedDefaults);
    EXPECT_EQ(platform.calls.lines(), (Lines{opensSharedSuite}));
}

TEST_F(MenuItemsScreen, EachScreenHasAHandleOfItsOwn)
{
    const ViewController first;
    const ViewController second;

    EXPECT_NE(first.sharedDefaults, second.sharedDefaults);
}

// Showing the record.

TEST_F(MenuItemsScreen, AFreshRecordShowsTheCatalogueWithEveryCheckboxOnAndItsIcons)
{
    open();

    std::vector<Row> expected;
    expected.reserve(menuCatalogue.size());
    for (const CatalogueRow& action : menuCatalogue)
        expected.push_back({std::string(action.title), true, std::string(action.image)});
    EXPECT_EQ(rows(), expected);
    EXPECT_EQ(suiteWrites(), menuWrite);
}

TEST_F(MenuItemsScreen, AStoredRecordIsShownAsItStandsAndNotWritten)
{
    openWith({item("Resize Photos", false), item("Open Terminal", true), item("Send via Mail", false)});

    EXPECT_EQ(rows(),
              (std::vector<Row>{
                  {"Resize Photos", false, "16"}, {"Open Terminal", true, "1"}, {"Send via Mail", false, "7"}}));
    EXPECT_EQ(suiteWrites(), Lines{});
}

TEST_F(MenuItemsScreen, AnEmptyRecordShowsNoRowsAndIsNotWritten)
{
    openWith({});

    EXPECT_EQ(table().rowCount(), 0U);
    EXPECT_EQ(suiteWrites(), Lines{});
}

TEST_F(MenuItemsScreen, AnOlderRecordIsMigrated)
{
    platform.suite.insert_or_assign("save14", NS::Value::Array{1, 0, 1});

    open();

    EXPECT_EQ(table().rowCount(), 16U);
    EXPECT_TRUE(row(0).on);
    EXPECT_FALSE(row(1).on);
    EXPECT_TRUE(row(15).on);
    EXPECT_EQ(screen->arrstructur, (std::vector<std::int64_t>{1, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}));
}

TEST_F(MenuItemsScreen, VersionOneDotEightShowsNoRows)
{
    platform.mainBundle().setVersion("1.8");

    openWith({item("Open Terminal", true)});

    EXPECT_EQ(table().rowCount(), 0U);
    EXPECT_EQ(screen->arrstructur, std::vector<std::int64_t>(16, 1));
    EXPECT_EQ(suiteWrites(), (Lines{R"(suite#1.setObject_forKey("save14"))", "suite#1.synchronize"}));
}

class AnotherKeyOfTheOlderRecord : public MenuItemsScreen, public testing::WithParamInterface<const char*> {};

TEST_P(AnotherKeyOfTheOlderRecord, IsTheOnlyOneThatIsReadAndWritten)
{
    platform.mainBundle().setVersion(GetParam());
    platform.suite = {{"save13", NS::Value::Array{0}}};
    platform.storyboard->addScene("ViewController", [this](FakeScene& scene) {
        addList(scene);
        auto made = std::make_shared<ViewController>();
        made->savekey = "save13";
        return made;
    });

    open();

    EXPECT_EQ(platform.suite.at("save13"), NS::Value::Array(screen->arrstructur.begin(), screen->arrstructur.end()));
    EXPECT_EQ(screen->arrstructur.size(), 16U);
    EXPECT_EQ(platform.calls.containing("save14"), Lines{});
}

INSTANTIATE_TEST_SUITE_P(InEveryVersion, AnotherKeyOfTheOlderRecord, testing::Values("2.0", "1.8"),
                         [](const auto& tested) { return tested.param[0] == '2' ? "Current" : "OneDotEight"; });

TEST_F(MenuItemsScreen, ATitleThatTheIconTableDoesNotKnowIsShownWithoutAnIcon)
{
    openWith({item("open terminal", true), item("Hide item", true)});

    EXPECT_EQ(rows(), (std::vector<Row>{{"open terminal", true, std::nullopt}, {"Hide item", true, "12"}}));
}

TEST_F(MenuItemsScreen, ARowWithoutATitleOrStateIsShownEmptyAndOff)
{
    openWith({NS::Value::Dictionary{{"state", true}}, NS::Value::Dictionary{{"title", "Open Terminal"}},
              NS::Value::Dictionary{{"title", 7}, {"state", 1}}});

    EXPECT_EQ(rows(),
              (std::vector<Row>{{"", true, std::nullopt}, {"Open Terminal", false, "1"}, {"", false, std::nullopt}}));
}

TEST_F(MenuItemsScreen, ARowIsFilledInThisOrder)
{
    openWith({item("Open Terminal", true)});

    EXPECT_EQ(platform.calls.startingWithAnyOf({"ViewController.tblview.", "tblcell#1."}),
              (Lines{R"(ViewController.tblview.makeViewWithIdentifier("tblcell"))",
                     R"(tblcell#1.lbltitle.setStringValue("Open Terminal"))", R"(tblcell#1.checkbox.setState(1))",
                     R"(tblcell#1.imgview.setImage("1"))"}));
}

TEST_F(MenuItemsScreen, TheDeleteButtonsAreLeftAlone)
{
    open();
    expectLeftAlone("btnDelete");
}

TEST_F(MenuItemsScreen, EveryCheckboxIsTaggedWithItsRow)
{
    open();

    for (std::size_t index = 0; index < 16; ++index)
        EXPECT_EQ(checkbox(index).tag(), static_cast<std::ptrdiff_t>(index));
}

TEST_F(MenuItemsScreen, AReusedRowShowsNoIconOfTheRowBefore)
{
    openWith({item("Open Terminal", true), item("Gone", false)});
    screen->arrItemsdic = {item("Gone", false), item("Open Terminal", true)};

    table().reloadData();

    EXPECT_EQ(table().rowViewsMade(), 2U);
    EXPECT_EQ(rows(), (std::vector<Row>{{"Gone", false, std::nullopt}, {"Open Terminal", true, "1"}}));
}

TEST_F(MenuItemsScreen, WithoutARowSceneTheRowsAreEmpty)
{
    makeRow = nullptr;
    expectAnEmptyRow([this] { openWith({item("Open Terminal", true)}); });
}

TEST_F(MenuItemsScreen, WithARowSceneOfAnotherClassTheRowsAreEmpty)
{
    useRowOfAnotherClass();
    expectAnEmptyRow([this] { openWith({item("Open Terminal", true)}); });
}

TEST_F(MenuItemsScreen, WithoutASuiteTheWholeCatalogueIsShownAndNothingStored)
{
    platform.suiteCanBeRead = false;

    open();

    EXPECT_EQ(table().rowCount(), 16U);
    EXPECT_TRUE(platform.suite.empty());
    EXPECT_FALSE(screen->sharedDefaults);
}

// Toggling.

TEST_F(MenuItemsScreen, ClickingARowThatIsOnSwitchesItOffAndStoresTheWholeList)
{
    openWith({item("Open Terminal", true), item("Resize Photos", true), item("Send via Mail", false)});

    checkbox(1).click();

    const NS::Value::Array expected{item("Open Terminal", true), item("Resize Photos", false),
                                    item("Send via Mail", false)};
    EXPECT_EQ(platform.suite, (NS::Value::Dictionary{{"menuArrayDic", expected}}));
    EXPECT_EQ(rows(),
              (std::vector<Row>{
                  {"Open Terminal", true, "1"}, {"Resize Photos", false, "16"}, {"Send via Mail", false, "7"}}));
}

TEST_F(MenuItemsScreen, AToggleRedrawsTheRowsFromMemoryThenWritesThenSynchronizes)
{
    openWith({item("Open Terminal", true)});
    platform.calls.clear();

    checkbox(0).click();

    EXPECT_EQ(
        platform.calls.startingWithAnyOf({"ViewController.tblview.reloadData", "tblcell#1.checkbox.", "suite#"}),
        (Lines{"ViewController.tblview.reloadData", "tblcell#1.checkbox.setState(0)", menuWrite[0], menuWrite[1]}));
}

TEST_F(MenuItemsScreen, AToggleKeepsTheHandleItWasMadeWith)
{
    open();
    checkbox(0).click();
    checkbox(0).click();

    EXPECT_EQ(platform.calls.startingWith("platform.userDefaultsWithSuiteName").size(), 1U);
}

TEST_F(MenuItemsScreen, TogglingTwiceRestoresTheRecord)
{
    openWith({item("Open Terminal", true), item("Resize Photos", false)});
    const NS::Value::Dictionary before = platform.suite;

    checkbox(1).click();
    EXPECT_NE(platform.suite, before);
    checkbox(1).click();

    EXPECT_EQ(platform.suite, before);
}

TEST_F(MenuItemsScreen, TheStoredStateDecidesNotWhatTheCheckboxShows)
{
    openWith({item("Open Terminal", true)});
    checkbox(0).setState(NS::ControlState::Off);

    checkbox(0).click();

    EXPECT_EQ(platform.suite.at("menuArrayDic"), (NS::Value::Array{item("Open Terminal", false)}));
    EXPECT_FALSE(row(0).on);
}

TEST_F(MenuItemsScreen, TheFirstClickOnARowWithoutAStateSwitchesItOn)
{
    openWith({NS::Value::Dictionary{{"title", "Open Terminal"}}});

    checkbox(0).click();

    EXPECT_EQ(platform.suite.at("menuArrayDic"), (NS::Value::Array{item("Open Terminal", true)}));
    EXPECT_TRUE(row(0).on);
}

TEST_F(MenuItemsScreen, AStateOfAnotherKindIsReplacedByOn)
{
    openWith({NS::Value::Dictionary{{"title", "Open Terminal"}, {"state", 1}}});

    checkbox(0).click();

    EXPECT_EQ(platform.suite.at("menuArrayDic"), (NS::Value::Array{item("Open Terminal", true)}));
}

TEST_F(MenuItemsScreen, OtherEntriesOfARowSurviveAToggle)
{
    openWith({NS::Value::Dictionary{{"title", "Open Terminal"}, {"state", false}, {"colour", "red"}}});

    checkbox(0).click();

    EXPECT_EQ(
        platform.suite.at("menuArrayDic"),
        (NS::Value::Array{NS::Value::Dictionary{{"title", "Open Terminal"}, {"state", true}, {"colour", "red"}}}));
}

TEST_F(MenuItemsScreen, WithoutASuiteAToggleShowsAndStoresNothing)
{
    platform.suiteCanBeRead = false;
    open();

    checkbox(0).click();

    EXPECT_FALSE(row(0).on);
    EXPECT_TRUE(platform.suite.empty());
}

TEST_F(MenuItemsScreen, AToggleLeavesTheOlderRecordAlone)
{
    platform.suite.insert_or_assign("save14", NS::Value::Array{1, 0, 1});
    open();
    const NS::Value older = platform.suite.at("save14");
    platform.calls.clear();

    checkbox(0).click();

    EXPECT_EQ(platform.suite.at("save14"), older);
    EXPECT_EQ(suiteWrites(), menuWrite);
}

// What else the scene connects.

TEST_F(MenuItemsScreen, ThePermissionButtonDoesNothing)
{
    open();
    platform.calls.clear();

    sceneOf(*screen).view<FakeButton>("permission").click();

    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(MenuItemsScreen, AsAPanelsDelegateItEnablesEveryItem)
{
    ViewController made;
    const auto panel = platform.makeOpenPanel(NS::ChosenPaths::Any);

    for (const char* path : {"", "/", "/home/user/report.txt"})
        EXPECT_TRUE(made.panel_shouldEnableURL(*panel, NS::URL::fileURLWithPath(path)));
}

TEST_F(MenuItemsScreen, KeepsWhatItIsSaidToStandFor)
{
    ViewController made;
    EXPECT_FALSE(made.representedObject().has_value());

    made.setRepresentedObject(std::string("a document"));

    EXPECT_EQ(std::any_cast<std::string>(made.representedObject()), "a document");
}

// What stops the program.

using MenuItemsScreenDeathTest = MenuItemsScreen;

TEST_F(MenuItemsScreenDeathTest, AMissingVersionIsFatal)
{
    platform.mainBundle().information = std::nullopt;
    EXPECT_DEATH(open(), fatalLine("the application has no information dictionary"));
}

TEST_F(MenuItemsScreenDeathTest, AnUnreadableOlderRecordIsFatal)
{
    platform.suite.insert_or_assign("save14", "1, 0, 1");
    EXPECT_DEATH(open(), fatalLine("the stored save14 is not an array"));
}

TEST_F(MenuItemsScreenDeathTest, ATagOutsideTheListIsFatal)
{
    openWith({item("Open Terminal", true)});
    for (const std::ptrdiff_t tag : {-1, 1, 1000}) {
        checkbox(0).setTag(tag);
        EXPECT_DEATH(checkbox(0).click(), fatalLine("the menu items have no row " + std::to_string(tag)));
    }
}

TEST_F(MenuItemsScreenDeathTest, ARowOutsideTheListIsFatal)
{
    openWith({item("Open Terminal", true)});
    for (const std::ptrdiff_t outside : {-1, 1}) {
        EXPECT_DEATH(screen->tableView_viewForTableColumn_row(table(), nullptr, outside),
                     fatalLine("the menu items have no row " + std::to_string(outside)));
    }
}

TEST_F(MenuItemsScreenDeathTest, WithoutItsTableAToggleStopsAfterMemoryChangedAndBeforeTheSuiteIsWritten)
{
    openWith({item("Open Terminal", true)});
    FakeButton sender(platform.calls, "sender");
    sceneOf(*screen).remove("tblview");

    EXPECT_DEATH(
        {
            platform.calls.echoOnStandardError();
            reportAtAbort([this] {
                return "in memory " + testing::PrintToString(NS::Value(screen->arrItemsdic.at(0))) + ", stored " +
                       testing::PrintToString(platform.suite.at("menuArrayDic"));
            });
            screen->checkboxActionWithSender(sender);
        },
        fatalLineAndReport(R"(the outlet "tblview" is empty)",
                           R"(in memory {"state": false, "title": "Open Terminal"}, )"
                           R"(stored [{"state": true, "title": "Open Terminal"}])"));
}

TEST_F(MenuItemsScreenDeathTest, ARowWithoutAViewIsFatalAtTheStepThatUsesIt)
{
    store({item("Open Terminal", true)});
    const auto show = [this] { open(); };

    expectFatalWithout("lbltitle", R"(ViewController.tblview.makeViewWithIdentifier("tblcell"))", show);
    expectFatalWithout("checkbox", R"(tblcell#1.lbltitle.setStringValue("Open Terminal"))", show);
    expectFatalWithout("imgview", R"(tblcell#1.checkbox.setState(1))", show);
}

TEST_F(MenuItemsScreen, ARowWithoutADeleteButtonIsShown)
{
    useRowWithout("btnDelete");

    openWith({item("Open Terminal", true)});

    EXPECT_EQ(rows(), (std::vector<Row>{{"Open Terminal", true, "1"}}));
}

} // namespace
