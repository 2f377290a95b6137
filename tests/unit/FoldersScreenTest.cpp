#include "folders/foldersArrvc.h"

#include "ListScreenTest.h"
#include "platform/WindowController.h"
#include "registry/ControllerRegistry.h"
#include "support/AtAbort.h"
#include "support/FakeWindow.h"
#include "support/FatalLine.h"

#include <unistd.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class FoldersScreen : public ListScreenTest {
protected:
    FoldersScreen()
    {
        platform.storyboard->addScene("mainStartWindow", [](FakeScene& scene) {
            scene.add<FakeWindow>("window");
            return std::make_shared<NS::WindowController>();
        });
        std::ignore = startWindow();
        platform.storyboard->addScene("foldersArrvc", [this](FakeScene& scene) {
            addList(scene);
            scene.addSending<FakeButton>("btnAddItems:", "add");
            scene.addSending<FakeButton>("btnremoveitem:", "remove");
            return std::make_shared<foldersArrvc>(registry, runBookmarks);
        });
    }

    [[nodiscard]] FakeScene& startWindow()
    {
        return sceneOf(*registry.controller<NS::WindowController>("mainStartWindow"));
    }
    void dropStartWindow() { startWindow().remove("window"); }

    void store(const NS::Value::Array& paths, const NS::Value::Array& flags)
    {
        platform.suite.insert_or_assign("foldersArray", paths);
        platform.suite.insert_or_assign("foldersArraystate", flags);
    }
    void open()
    {
        screen = std::dynamic_pointer_cast<foldersArrvc>(
            platform.storyboard->instantiateControllerWithIdentifier("foldersArrvc"));
    }
    void openWith(const NS::Value::Array& paths, const NS::Value::Array& flags)
    {
        store(paths, flags);
        open();
        platform.calls.clear();
    }
    void goToAnotherTabAndBack()
    {
        screen->viewWillDisappear();
        screen->viewWillAppear();
        screen->viewDidAppear();
    }
    void expectStored(const NS::Value::Array& paths, const NS::Value::Array& flags) const
    {
        EXPECT_EQ(platform.suite.at("foldersArray"), paths);
        EXPECT_EQ(platform.suite.at("foldersArraystate"), flags);
    }

    void click(std::string_view button) { sceneOf(*screen).view<FakeButton>(button).click(); }
    /// Opens the panel, then lets the user choose the folder; the log begins there. Answers what standard output got.
    std::string choose(const char* path)
    {
        click("add");
        platform.calls.clear();
        testing::internal::CaptureStdout();
        confirm({NS::URL::fileURLWithPath(path)});
        return testing::internal::GetCapturedStdout();
    }
    void confirm(const std::vector<NS::URL>& urls)
    {
        platform.openPanel.urls = urls;
        platform.openPanel.url = urls.empty() ? std::nullopt : std::optional(urls.front());
        platform.openPanel.answerSheet(NS::ModalResponseOK);
    }
    /// Asks to remove the row; the log begins when the alert is up.
    void askToRemove(std::ptrdiff_t row)
    {
        table().selected = row;
        click("remove");
        platform.calls.clear();
    }
    void answer(std::size_t button) { platform.alert().button(button).click(); }

    static constexpr std::size_t ok = 0;
    static constexpr std::size_t cancel = 1;

    ControllerRegistry registry;
    std::shared_ptr<RunBookmarks> runBookmarks = std::make_shared<RunBookmarks>();
    std::shared_ptr<foldersArrvc> screen;
};

const std::string reload = "foldersArrvc.tblview.reloadData";
const std::string makeRowView = R"(foldersArrvc.tblview.makeViewWithIdentifier("tblcell"))";

// Making the screen.

TEST_F(FoldersScreen, BeginsEmptyWithAHandleAndTwoFreshAlerts)
{
    platform.calls.clear();

    const foldersArrvc made(registry, runBookmarks);

    EXPECT_TRUE(made.folders.arrurl.empty());
    EXPECT_TRUE(made.folders.arrstate.empty());
    EXPECT_EQ(made.folders.userdefaultskey, "foldersArray");
    EXPECT_EQ(made.folders.userdefaultsstate, "foldersArraystate");
    EXPECT_FALSE(made.tblview);
    EXPECT_TRUE(made.sharedDefaults);
    EXPECT_TRUE(made.alert);
    EXPECT_TRUE(made.alertAlreadyAdded);
    EXPECT_NE(made.alert, made.alertAlreadyAdded);
    EXPECT_EQ(platform.calls.lines(), (Lines{opensSharedSuite, "platform.makeAlert", "platform.makeAlert"}));
}

TEST_F(FoldersScreen, ReadsItsListsOnceWithTheHandleItWasMadeWithAndReloadsNothing)
{
    store({"/a"}, {1});

    open();

    EXPECT_EQ(platform.calls.startingWith("suite#1.objectForKey").size(), 4U);
    EXPECT_EQ(platform.calls.containing(opensSharedSuite).size(), 1U);
    EXPECT_TRUE(platform.calls.containing("reloadData").empty());
    EXPECT_TRUE(platform.calls.containing("setObject").empty());
    EXPECT_TRUE(platform.calls.startingWith("finderSync.").empty());
}

TEST_F(FoldersScreen, WithoutASuiteIsEmpty)
{
    store({"/a"}, {1});
    platform.suiteCanBeRead = false;

    open();

    EXPECT_FALSE(screen->sharedDefaults);
    EXPECT_EQ(table().rowCount(), 0U);
}

// Its rows.

TEST_F(FoldersScreen, ARowShowsTheFullPathItsIconAndWhetherItIsActive)
{
    openWith({"/home/pat/Docs", "/srv/a b"}, {1, 0});

    EXPECT_EQ(rows(), (std::vector<Row>{{"/home/pat/Docs", true, "icon of /home/pat/Docs"},
                                        {"/srv/a b", false, "icon of /srv/a b"}}));
}

TEST_F(FoldersScreen, ARowIsFilledInThisOrder)
{
    store({"/a"}, {1});
    open();

    EXPECT_EQ(platform.calls.startingWithAnyOf({"foldersArrvc.tblview.", "tblcell#1.", "workspace."}),
              (Lines{makeRowView, R"(tblcell#1.lbltitle.setStringValue("/a"))", R"(workspace.iconForFile("/a"))",
                     R"(tblcell#1.imgview.setImage("icon of /a"))", "tblcell#1.checkbox.setState(1)"}));
}

TEST_F(FoldersScreen, TheDeleteButtonsAreLeftAlone)
{
    store({"/a", "/b"}, {1, 0});
    open();
    expectLeftAlone("btnDelete");
}

TEST_F(FoldersScreen, EveryCheckboxIsTaggedWithItsRow)
{
    openWith({"/a", "/b", "/c"}, {1, 1, 1});

    for (std::size_t index = 0; index < 3; ++index)
        EXPECT_EQ(checkbox(index).tag(), static_cast<std::ptrdiff_t>(index));
}

TEST_F(FoldersScreen, AnyFlagButOneIsShownOffAndAClickTurnsItToOne)
{
    openWith({"/a", "/b"}, {5, -1});
    EXPECT_FALSE(checkbox(0).state() == NS::ControlState::On);
    EXPECT_FALSE(checkbox(1).state() == NS::ControlState::On);

    checkbox(0).click();

    expectStored({"/a", "/b"}, {1, -1});
    EXPECT_TRUE(row(0).on);
    EXPECT_FALSE(row(1).on);
}

TEST_F(FoldersScreen, HasARowForEachPathHoweverManyFlagsThereAre)
{
    openWith({"/a"}, {0, 1, 1});
    EXPECT_EQ(rows(), (std::vector<Row>{{"/a", false, "icon of /a"}}));
}

TEST_F(FoldersScreen, WithoutARowSceneTheRowsAreEmpty)
{
    makeRow = nullptr;
    expectAnEmptyRow([this] { openWith({"/a"}, {1}); });
}

TEST_F(FoldersScreen, WithARowSceneOfAnotherClassTheRowsAreEmpty)
{
    useRowOfAnotherClass();
    expectAnEmptyRow([this] { openWith({"/a"}, {1}); });
}

TEST_F(FoldersScreen, ARowWithoutADeleteButtonIsShown)
{
    useRowWithout("btnDelete");
    openWith({"/a"}, {1});
    EXPECT_EQ(rows(), (std::vector<Row>{{"/a", true, "icon of /a"}}));
}

TEST_F(FoldersScreen, AFolderStoredByAnotherIsShownByTheNextScreenOnly)
{
    openWith({"/a"}, {1});
    store({"/a", "/b"}, {0, 1});

    goToAnotherTabAndBack();
    table().reloadData();
    EXPECT_EQ(rows(), (std::vector<Row>{{"/a", true, "icon of /a"}}));

    open();
    EXPECT_EQ(rows(), (std::vector<Row>{{"/a", false, "icon of /a"}, {"/b", true, "icon of /b"}}));
}

TEST_F(FoldersScreen, ComingBackIntoSightAsksAndTellsNobody)
{
    openWith({"/a"}, {1});

    goToAnotherTabAndBack();

    EXPECT_TRUE(platform.calls.lines().empty());
}

// Adding.

TEST_F(FoldersScreen, ThePanelIsSetUpInThisOrderAndAttachedToTheStartWindow)
{
    openWith({}, {});

    click("add");

    EXPECT_EQ(platform.calls.lines(),
              (Lines{R"(platform.makeOpenPanel("storable paths"))", "panel#1.setShowsHiddenFiles(false)",
                     "panel#1.setCanChooseFiles(false)", "panel#1.setCanChooseDirectories(true)",
                     "panel#1.setTreatsFilePackagesAsDirectories(false)", "panel#1.setAllowsMultipleSelection(false)",
                     R"(panel#1.setDirectoryURL("/"))", "panel#1.setAllowsMultipleSelection(false)",
                     "platform.userName", R"(panel#1.setAllowedFileTypes(["pat"]))",
                     "panel#1.setAllowsOtherFileTypes(false)", R"(panel#1.setPrompt("Grant Access"))",
                     R"(panel#1.beginSheetModalForWindow_completionHandler("mainStartWindow.window"))"}));
}

TEST_F(FoldersScreen, AnyAnswerButOKHasNoEffect)
{
    openWith({"/a"}, {1});
    platform.openPanel.urls = {NS::URL::fileURLWithPath("/b")};
    for (const int response : {0, -1000, 2, -1}) {
        click("add");
        platform.calls.clear();
        testing::internal::CaptureStdout();

        platform.openPanel.answerSheet(response);

        EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
        EXPECT_TRUE(platform.calls.lines().empty());
    }
    expectStored({"/a"}, {1});
    EXPECT_EQ(table().rowCount(), 1U);
}

TEST_F(FoldersScreen, AChosenFolderIsStoredThenBookmarkedThenPublishedThenShown)
{
    openWith({"/a"}, {0});

    choose("/b");

    EXPECT_EQ(platform.calls.startingWithAnyOf({"platform.", "suite#", "finderSync.", reload, "tblcell#2.checkbox."}),
              (Lines{opensSharedSuite, R"(suite#2.setObject_forKey("foldersArray"))", "suite#2.synchronize",
                     R"(suite#2.setObject_forKey("foldersArraystate"))", "suite#2.synchronize",
                     R"(platform.bookmarkDataWithOptions("/b", 2048))", R"(suite#2.setObject_forKey("allBookmark"))",
                     "suite#2.synchronize", R"(finderSync.setDirectoryURLs(["/a", "/b"]))", reload,
                     "tblcell#2.checkbox.setState(1)"}));
    expectStored({"/a", "/b"}, {0, 1});
}

TEST_F(FoldersScreen, TheChosenFolderIsPrintedOnStandardOutput)
{
    openWith({}, {});
    EXPECT_EQ(choose("/home/pat/A b\u00e9"), "[file:///home/pat/A%20b%C3%A9]\n");
}

TEST_F(FoldersScreen, EveryChosenFolderIsPrintedAndTheFirstIsAdded)
{
    openWith({}, {});
    click("add");
    testing::internal::CaptureStdout();

    confirm({NS::URL::fileURLWithPath("/b"), NS::URL::fileURLWithPath("/a")});

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "[file:///b, file:///a]\n");
    expectStored({"/b"}, {1});
}

TEST_F(FoldersScreen, DroppedFoldersArePrintedAndAddedAsChosenOnesAre)
{
    openWith({"/a"}, {0});
    testing::internal::CaptureStdout();

    screen->tableView_acceptDrop(table(), {NS::URL::fileURLWithPath("/c"), NS::URL::fileURLWithPath("/b")});

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "[file:///c, file:///b]\n");
    expectStored({"/a", "/c", "/b"}, {0, 1, 1});
    EXPECT_EQ(table().rowCount(), 3U);
    EXPECT_EQ(platform.calls.startingWith(reload).size(), 1U);
    EXPECT_EQ(runBookmarks->size(), 2U);
    EXPECT_TRUE(platform.calls.startingWith("alert#").empty());
}

TEST_F(FoldersScreen, OfDroppedFoldersThoseThatAreListedBringOneNotice)
{
    openWith({"/a", "/b"}, {0, 1});
    testing::internal::CaptureStdout();

    screen->tableView_acceptDrop(
        table(), {NS::URL::fileURLWithPath("/a"), NS::URL::fileURLWithPath("/c"), NS::URL::fileURLWithPath("/b")});

    testing::internal::GetCapturedStdout();
    expectStored({"/a", "/b", "/c"}, {0, 1, 1});
    EXPECT_EQ(table().rowCount(), 3U);
    EXPECT_EQ(platform.calls.startingWith("alert#3.beginSheet").size(), 1U);
    EXPECT_TRUE(platform.calls.startingWith("alert#4").empty());
}

TEST_F(FoldersScreen, AFolderIsFoundByTypingItsName)
{
    openWith({"/home/pat/Projects"}, {1});
    EXPECT_EQ(screen->tableView_typeSelectStringForTableColumn_row(table(), nullptr, 0), "Projects");
}

TEST_F(FoldersScreen, AFailedBookmarkIsToldAfterTheChosenFolderAndTheFolderIsShown)
{
    platform.bookmarks = {{"/a", NS::Error{"no such folder"}}};
    openWith({}, {});

    EXPECT_EQ(choose("/a"), "[file:///a]\nno such folder\nError storing bookmarks\n");

    EXPECT_EQ(rows(), (std::vector<Row>{{"/a", true, "icon of /a"}}));
    EXPECT_FALSE(platform.suite.contains("allBookmark"));
    EXPECT_TRUE(platform.calls.startingWith("alert#").empty());
    EXPECT_EQ(platform.calls.startingWith("finderSync.").size(), 1U);
}

TEST_F(FoldersScreen, ScreensShareTheBookmarksOfTheRun)
{
    openWith({}, {});
    choose("/a");
    open();
    choose("/b");

    EXPECT_EQ(platform.suite.at("allBookmark"), (NS::Value::Array{NS::Data{'/', 'a'}, NS::Data{'/', 'b'}}));
}

TEST_F(FoldersScreen, WithoutASuiteAChosenFolderIsShownAndPublished)
{
    platform.suiteCanBeRead = false;
    open();

    choose("/a");

    EXPECT_EQ(rows(), (std::vector<Row>{{"/a", true, "icon of /a"}}));
    EXPECT_EQ(platform.defaultController().published, (std::set{NS::URL::fileURLWithPath("/a")}));
    EXPECT_TRUE(platform.suite.empty());
}

TEST_F(FoldersScreen, AFolderThatIsListedBringsTheNoticeAloneToTheStartWindow)
{
    openWith({"/a"}, {0});
    const auto stored = platform.suite;

    EXPECT_EQ(choose("/a"), "[file:///a]\n");

    EXPECT_EQ(
        platform.calls.lines(),
        (Lines{
            "panel#1.URLs", "panel#1.URL", "platform.makeAlert", "alert#3.setAlertStyle(1)",
            R"(alert#3.setMessageText("Some of the folders can not be added because they are already added to the Folders list."))",
            R"(alert#3.addButtonWithTitle("OK"))", R"(alert#3.beginSheetModalForWindow("mainStartWindow.window"))"}));
    EXPECT_EQ(platform.suite, stored);
    EXPECT_TRUE(runBookmarks->empty());
    EXPECT_FALSE(platform.defaultController().published);
}

TEST_F(FoldersScreen, AFolderOfAnEquivalentSpellingIsListedToo)
{
    openWith({"/caf\u00e9"}, {1});

    choose("/cafe\u0301");

    EXPECT_EQ(table().rowCount(), 1U);
    EXPECT_EQ(platform.calls.startingWith("alert#3.beginSheet").size(), 1U);
}

TEST_F(FoldersScreen, TheNoticesButtonOnlyDismissesIt)
{
    openWith({"/a"}, {1});
    choose("/a");
    platform.calls.clear();

    answer(ok);

    EXPECT_EQ(platform.calls.lines(), (Lines{"alert#3.dismiss"}));
}

TEST_F(FoldersScreen, EveryNoticeIsANewAlertAndLeavesTheQuestionsAlone)
{
    openWith({"/a"}, {1});
    const NS::Alert* question = screen->alert.get();

    screen->alertFolderAlreadyAdded();
    EXPECT_EQ(screen->alertAlreadyAdded.get(), &platform.alert());
    screen->alertFolderAlreadyAdded();

    EXPECT_EQ(screen->alertAlreadyAdded.get(), &platform.alert());
    EXPECT_EQ(platform.calls.startingWith("alert#4.beginSheet").size(), 1U);
    EXPECT_EQ(screen->alert.get(), question);
}

// Removing.

TEST_F(FoldersScreen, RemoveWithoutASelectionShowsNothing)
{
    openWith({"/a"}, {1});

    click("remove");

    EXPECT_EQ(platform.calls.lines(), (Lines{"foldersArrvc.tblview.selectedRow"}));
}

TEST_F(FoldersScreen, RemoveFromAnEmptyListShowsNothingWhateverIsSelected)
{
    openWith({}, {});
    table().selected = 0;

    click("remove");

    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(FoldersScreen, RemoveWithoutFlagsShowsNothing)
{
    openWith({}, {});
    screen->folders.arrurl = {"/a"};
    table().selected = 0;

    click("remove");

    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(FoldersScreen, RemoveAsksOnTheStartWindowInThisOrder)
{
    openWith({"/a"}, {1});
    table().selected = 0;

    click("remove");

    EXPECT_EQ(platform.calls.lines(),
              (Lines{"foldersArrvc.tblview.selectedRow", "platform.makeAlert", "alert#3.setAlertStyle(0)",
                     R"(alert#3.setMessageText("Remove selected folder?"))",
                     R"(alert#3.setInformativeText("Are you sure you want to remove the selected folder."))",
                     R"(alert#3.addButtonWithTitle("OK"))", R"(alert#3.addButtonWithTitle("Cancel"))",
                     "alert#3.buttons", R"(alert#3.beginSheetModalForWindow("mainStartWindow.window"))"}));
    expectStored({"/a"}, {1});
}

TEST_F(FoldersScreen, EveryQuestionIsANewAlertAndLeavesTheNoticeAlone)
{
    openWith({"/a"}, {1});
    const NS::Alert* notice = screen->alertAlreadyAdded.get();

    askToRemove(0);
    answer(cancel);
    table().selected = 0;
    click("remove");

    EXPECT_EQ(screen->alert.get(), &platform.alert());
    EXPECT_EQ(platform.calls.startingWith("alert#4.beginSheet").size(), 1U);
    EXPECT_EQ(screen->alertAlreadyAdded.get(), notice);
}

TEST_F(FoldersScreen, OKEndsTheSheetThenRemovesStoresPublishesAndReloads)
{
    openWith({"/a", "/b"}, {1, 0});
    askToRemove(0);

    answer(ok);

    EXPECT_EQ(platform.calls.startingWithAnyOf({"mainStartWindow.", "foldersArrvc.tblview.selectedRow", "platform.",
                                                "suite#", "finderSync.", reload}),
              (Lines{R"(mainStartWindow.window.endSheet("alert#3.window"))", "foldersArrvc.tblview.selectedRow",
                     opensSharedSuite, R"(suite#2.setObject_forKey("foldersArray"))", "suite#2.synchronize",
                     R"(suite#2.setObject_forKey("foldersArraystate"))", "suite#2.synchronize",
                     R"(finderSync.setDirectoryURLs(["/b"]))", reload}));
    expectStored({"/b"}, {0});
}

TEST_F(FoldersScreen, OKRemovesTheRowThatIsSelectedByThen)
{
    openWith({"/a", "/b", "/c"}, {1, 0, 1});
    askToRemove(0);
    table().selected = 2;

    answer(ok);

    expectStored({"/a", "/b"}, {1, 0});
    EXPECT_EQ(table().rowCount(), 2U);
}

TEST_F(FoldersScreen, OKLeavesTheBookmarks)
{
    openWith({}, {});
    choose("/a");
    const NS::Value bookmarks = platform.suite.at("allBookmark");
    askToRemove(0);

    answer(ok);

    EXPECT_EQ(platform.suite.at("allBookmark"), bookmarks);
}

TEST_F(FoldersScreen, CancelEndsTheSheetAndChangesNothing)
{
    openWith({"/a", "/b"}, {1, 0});
    askToRemove(1);

    answer(cancel);

    EXPECT_EQ(platform.calls.lines(), (Lines{R"(mainStartWindow.window.endSheet("alert#3.window"))"}));
    expectStored({"/a", "/b"}, {1, 0});
    EXPECT_EQ(table().rowCount(), 2U);
}

TEST_F(FoldersScreen, WhenTheStartWindowIsGoneByThenOKStillRemoves)
{
    openWith({"/a", "/b"}, {1, 0});
    askToRemove(0);
    dropStartWindow();

    answer(ok);

    EXPECT_TRUE(platform.calls.containing("endSheet").empty());
    expectStored({"/b"}, {0});
}

TEST_F(FoldersScreen, WhenTheStartWindowIsGoneByThenCancelDoesNothing)
{
    openWith({"/a"}, {1});
    askToRemove(0);
    dropStartWindow();

    answer(cancel);

    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(FoldersScreen, TheQuestionItselfDoesNotLookWhetherThereIsASelection)
{
    openWith({}, {});

    screen->alertforDelete();

    EXPECT_EQ(platform.calls.startingWith("alert#3.beginSheet").size(), 1U);
    EXPECT_TRUE(platform.calls.containing("selectedRow").empty());
}

// Flags.

TEST_F(FoldersScreen, AClickFlipsTheFlagRedrawsThenStoresTheFlagsAlone)
{
    openWith({"/a"}, {1});

    checkbox(0).click();

    EXPECT_EQ(platform.calls.startingWithAnyOf({reload, "tblcell#1.checkbox.", "platform.", "suite#"}),
              (Lines{reload, "tblcell#1.checkbox.setState(0)", opensSharedSuite,
                     R"(suite#2.setObject_forKey("foldersArraystate"))", "suite#2.synchronize"}));
    expectStored({"/a"}, {0});
    EXPECT_FALSE(platform.defaultController().published);
}

TEST_F(FoldersScreen, ClickingTwiceRestoresTheFlagThroughTwoFreshHandles)
{
    openWith({"/a", "/b"}, {0, 1});

    checkbox(1).click();
    expectStored({"/a", "/b"}, {0, 0});
    checkbox(1).click();

    expectStored({"/a", "/b"}, {0, 1});
    EXPECT_EQ(platform.calls.startingWith("suite#"),
              (Lines{R"(suite#2.setObject_forKey("foldersArraystate"))", "suite#2.synchronize",
                     R"(suite#3.setObject_forKey("foldersArraystate"))", "suite#3.synchronize"}));
}

TEST_F(FoldersScreen, WithoutASuiteAClickIsShownOnly)
{
    openWith({"/a"}, {1});
    platform.suiteCanBeRead = false;

    checkbox(0).click();

    EXPECT_FALSE(row(0).on);
    expectStored({"/a"}, {1});
}

// How long the screen lives.

TEST_F(FoldersScreen, LetGoWithThePanelUpItLivesUntilTheAnswerAndStoresTheFolder)
{
    openWith({}, {});
    click("add");
    const std::weak_ptr<foldersArrvc> left = std::exchange(screen, nullptr);
    ASSERT_FALSE(left.expired());
    testing::internal::CaptureStdout();

    confirm({NS::URL::fileURLWithPath("/a")});

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "[file:///a]\n");
    expectStored({"/a"}, {1});
    EXPECT_TRUE(left.expired());
}

TEST_F(FoldersScreen, LetGoWithThePanelUpItGoesWhenThePanelIsCancelled)
{
    openWith({}, {});
    click("add");
    const std::weak_ptr<foldersArrvc> left = std::exchange(screen, nullptr);

    platform.openPanel.answerSheet(NS::ModalResponseCancel);

    EXPECT_TRUE(left.expired());
}

// What stops the program.

using FoldersScreenDeathTest = FoldersScreen;

TEST_F(FoldersScreenDeathTest, AConfirmedPanelWithoutAFolderIsFatalAfterItsListIsPrinted)
{
    openWith({}, {});
    click("add");

    EXPECT_DEATH(
        {
            dup2(STDERR_FILENO, STDOUT_FILENO);
            confirm({});
        },
        "^\\[\\]\n" + fatalLine("the panel was confirmed without a folder").substr(1));
}

TEST_F(FoldersScreenDeathTest, WithoutAStartWindowEverySheetIsFatal)
{
    openWith({"/a"}, {1});
    table().selected = 0;
    dropStartWindow();
    const std::string error = R"(the outlet "window" is empty)";

    EXPECT_DEATH(click("add"), fatalLine(error));
    EXPECT_DEATH(click("remove"), fatalLine(error));
    EXPECT_DEATH(screen->alertforDelete(), fatalLine(error));
    EXPECT_DEATH(screen->alertFolderAlreadyAdded(), fatalLine(error));
}

TEST_F(FoldersScreenDeathTest, ConfirmingARemovalWithoutASelectionIsFatalBeforeAnythingIsWritten)
{
    openWith({"/a"}, {1});
    screen->alertforDelete();

    EXPECT_DEATH(
        {
            platform.calls.echoOnStandardError();
            answer(ok);
        },
        fatalLineAfter("foldersArrvc.tblview.selectedRow", "foldersArray has no row -1"));
}

TEST_F(FoldersScreenDeathTest, ARowPastTheFlagsIsFatalAtItsCheckbox)
{
    store({"/a", "/b"}, {1});

    EXPECT_DEATH(
        {
            platform.calls.echoOnStandardError();
            open();
        },
        fatalLineAfter(R"(tblcell#2.imgview.setImage("icon of /b"))", "foldersArraystate has no row 1"));
}

TEST_F(FoldersScreenDeathTest, ARowOutsideThePathsIsFatal)
{
    openWith({"/a"}, {1, 1});
    for (const std::ptrdiff_t outside : {-1, 1}) {
        EXPECT_DEATH(screen->tableView_viewForTableColumn_row(table(), nullptr, outside),
                     fatalLine("foldersArray has no row " + std::to_string(outside)));
    }
}

TEST_F(FoldersScreenDeathTest, ARowWithoutAViewIsFatalAtTheStepThatUsesIt)
{
    store({"/a"}, {1});
    const auto show = [this] { open(); };

    expectFatalWithout("lbltitle", makeRowView, show);
    expectFatalWithout("imgview", R"(tblcell#1.lbltitle.setStringValue("/a"))", show);
    expectFatalWithout("checkbox", R"(tblcell#1.imgview.setImage("icon of /a"))", show);
}

TEST_F(FoldersScreenDeathTest, AWrongStoredListIsFatalWhenTheScreenLoads)
{
    store({"/a"}, {"1"});
    EXPECT_DEATH(open(), fatalLine("the stored foldersArraystate has an element of the wrong kind"));
}

TEST_F(FoldersScreenDeathTest, ATagOutsideTheFlagsIsFatal)
{
    openWith({"/a"}, {1});
    for (const std::ptrdiff_t tag : {-1, 1}) {
        checkbox(0).setTag(tag);
        EXPECT_DEATH(checkbox(0).click(), fatalLine("foldersArraystate has no row " + std::to_string(tag)));
    }
}

TEST_F(FoldersScreenDeathTest, WithoutItsTableAFlipStopsAfterMemoryChangedAndBeforeTheSuiteIsWritten)
{
    openWith({"/a"}, {1});
    FakeButton sender(platform.calls, "sender");
    sceneOf(*screen).remove("tblview");

    EXPECT_DEATH(
        {
            platform.calls.echoOnStandardError();
            reportAtAbort([this] { return "in memory " + std::to_string(screen->folders.arrstate.at(0)); });
            screen->checkboxActionWithSender(sender);
        },
        fatalLineAndReport(R"(the outlet "tblview" is empty)", "in memory 0"));
}

TEST_F(FoldersScreenDeathTest, WithoutItsTableAnAdditionStopsAfterItWasPublished)
{
    openWith({}, {});
    click("add");
    sceneOf(*screen).remove("tblview");

    EXPECT_DEATH(
        {
            dup2(STDERR_FILENO, STDOUT_FILENO);
            platform.calls.echoOnStandardError();
            confirm({NS::URL::fileURLWithPath("/a")});
        },
        fatalLineAfter(R"(finderSync.setDirectoryURLs(["/a"]))", R"(the outlet "tblview" is empty)"));
}

TEST_F(FoldersScreenDeathTest, WithoutItsTableAConfirmedRemovalStopsBeforeAnythingIsWritten)
{
    openWith({"/a"}, {1});
    askToRemove(0);
    sceneOf(*screen).remove("tblview");

    EXPECT_DEATH(
        {
            platform.calls.echoOnStandardError();
            answer(ok);
        },
        fatalLineAfter(R"(mainStartWindow.window.endSheet("alert#3.window"))", R"(the outlet "tblview" is empty)"));
}

TEST_F(FoldersScreenDeathTest, WithoutItsTableRemoveIsFatal)
{
    openWith({"/a"}, {1});
    sceneOf(*screen).remove("tblview");

    EXPECT_DEATH(click("remove"), fatalLine(R"(the outlet "tblview" is empty)"));
}

} // namespace
