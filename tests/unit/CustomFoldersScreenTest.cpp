#include "folders/customFoldersVc.h"

#include "ListScreenTest.h"
#include "settings/Deployment.h"
#include "support/FakeTextField.h"
#include "support/FatalLine.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class CustomFoldersScreen : public ListScreenTest {
protected:
    CustomFoldersScreen()
    {
        platform.storyboard->addScene("customFoldersVc", [this](FakeScene& scene) {
            addList(scene);
            return std::make_shared<customFoldersVc>();
        });
    }

    void store(const NS::Value& folders) { platform.suite.insert_or_assign("arrCustomFoldersUrls", folders); }
    [[nodiscard]] const NS::Value& stored() const { return platform.suite.at("arrCustomFoldersUrls"); }

    void open()
    {
        screen = std::dynamic_pointer_cast<customFoldersVc>(
            platform.storyboard->instantiateControllerWithIdentifier("customFoldersVc"));
    }
    /// Shows the stored list; the log begins then.
    void openWith(const NS::Value::Array& folders)
    {
        store(folders);
        open();
        screen->viewWillAppear();
        platform.calls.clear();
    }
    void postReload(std::string_view object = Deployment::extensionIdentifier)
    {
        platform.defaultCenter().post("ReloadCustomFolders", object);
    }
    [[nodiscard]] Lines titles() const
    {
        Lines shown;
        for (const Row& row : rows())
            shown.push_back(row.title);
        return shown;
    }
    void expectUntouched() const { EXPECT_TRUE(platform.calls.lines().empty()); }

    std::shared_ptr<customFoldersVc> screen;
};

const std::string readStored = R"(suite#1.objectForKey("arrCustomFoldersUrls"))";
const std::string reload = "customFoldersVc.tblview.reloadData";
const std::string makeRowView = R"(customFoldersVc.tblview.makeViewWithIdentifier("tblcell"))";

TEST_F(CustomFoldersScreen, AFolderIsFoundByTypingItsName)
{
    openWith({"/home/pat/Projects/"});
    EXPECT_EQ(screen->tableView_typeSelectStringForTableColumn_row(table(), nullptr, 0), "Projects");
}

// Making the screen.

TEST_F(CustomFoldersScreen, BeginsEmptyWithAHandleOfItsOwn)
{
    store(NS::Value::Array{"/a"});
    const customFoldersVc made;

    EXPECT_FALSE(made.tblview);
    EXPECT_TRUE(made.sharedDefaults);
    EXPECT_TRUE(made.arrCustomFolders.empty());
    EXPECT_EQ(platform.calls.lines(), (Lines{opensSharedSuite}));
}

TEST_F(CustomFoldersScreen, ListensOnceWhenItLoadsAndReadsNothingYet)
{
    store(NS::Value::Array{"/a"});
    open();

    EXPECT_EQ(platform.calls.startingWithAnyOf({"center.", "suite#", "customFoldersVc."}),
              (Lines{observes("ReloadCustomFolders")}));
    EXPECT_EQ(table().rowCount(), 0U);
}

// Reading the list.

TEST_F(CustomFoldersScreen, ShowsTheStoredListWhenItAppears)
{
    openWith({"/srv/b", "/srv/a"});

    EXPECT_EQ(screen->arrCustomFolders, (Lines{"/srv/b", "/srv/a"}));
    EXPECT_EQ(rows(), (std::vector<Row>{{"b", false, "icon of /srv/b"}, {"a", false, "icon of /srv/a"}}));
}

TEST_F(CustomFoldersScreen, ReadsTheListAnewEachTimeItAppearsWithTheHandleItWasMadeWith)
{
    openWith({"/a"});
    store(NS::Value::Array{});

    screen->viewWillAppear();
    screen->viewWillAppear();

    EXPECT_EQ(platform.calls.lines(), (Lines{readStored, reload, readStored, reload}));
    EXPECT_EQ(table().rowCount(), 0U);
}

TEST_F(CustomFoldersScreen, WithNothingStoredHasNoRows)
{
    open();

    screen->viewWillAppear();

    EXPECT_EQ(table().rowCount(), 0U);
    EXPECT_TRUE(platform.suite.empty());
}

TEST_F(CustomFoldersScreen, ReadsTheListAnewWhenTheExtensionSaysSo)
{
    openWith({"/a"});
    store(NS::Value::Array{"/a", "/b"});

    postReload();

    EXPECT_EQ(titles(), (Lines{"a", "b"}));
}

TEST_F(CustomFoldersScreen, HearsTheExtensionAlsoBeforeItAppears)
{
    store(NS::Value::Array{"/a"});
    open();

    postReload();

    EXPECT_EQ(titles(), (Lines{"a"}));
}

TEST_F(CustomFoldersScreen, HearsNoOtherSenderAndNoOtherName)
{
    openWith({"/a"});
    store(NS::Value::Array{"/b"});

    for (const std::string& sender : otherSenders())
        postReload(sender);
    for (const char* name : {"", "reloadCustomFolders", "ReloadCustomFolders2", "ShowUtilityKit"})
        platform.defaultCenter().post(name, Deployment::extensionIdentifier);

    expectUntouched();
    EXPECT_EQ(titles(), (Lines{"a"}));
}

struct WrongList {
    const char* name;
    NS::Value value;
};

class AWrongCustomList : public CustomFoldersScreen, public testing::WithParamInterface<WrongList> {};

TEST_P(AWrongCustomList, LeavesTheListAsItIsAndReloadsTheTable)
{
    openWith({"/a", "/b"});
    store(GetParam().value);

    screen->viewWillAppear();
    EXPECT_EQ(titles(), (Lines{"a", "b"}));
    postReload();
    EXPECT_EQ(titles(), (Lines{"a", "b"}));

    EXPECT_EQ(platform.calls.containing("reloadData").size(), 2U);
    EXPECT_EQ(stored(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Each, AWrongCustomList,
                         testing::Values(WrongList{"ANumberAmongThePaths", NS::Value::Array{"/c", 1}},
                                         WrongList{"ATruthAmongThePaths", NS::Value::Array{true, "/c"}},
                                         WrongList{"DataAmongThePaths", NS::Value::Array{NS::Data{'/'}}},
                                         WrongList{"AListAmongThePaths",
                                                   NS::Value::Array{"/c", NS::Value::Array{"/d"}}},
                                         WrongList{"AText", "/c"}, WrongList{"ANumber", 1},
                                         WrongList{"ADictionary", NS::Value::Dictionary{{"0", "/c"}}}),
                         [](const auto& tested) { return tested.param.name; });

TEST_F(CustomFoldersScreen, AListThatIsGoneLeavesTheShownOneAsItIs)
{
    openWith({"/a"});
    platform.suite.clear();

    screen->viewWillAppear();

    EXPECT_EQ(titles(), (Lines{"a"}));
}

TEST_F(CustomFoldersScreen, WithoutASuiteItReloadsItsTableOnly)
{
    store(NS::Value::Array{"/a"});
    platform.suiteCanBeRead = false;
    open();
    platform.calls.clear();

    screen->viewWillAppear();

    EXPECT_FALSE(screen->sharedDefaults);
    EXPECT_EQ(platform.calls.lines(), (Lines{reload}));
    EXPECT_EQ(table().rowCount(), 0U);
}

// Its rows.

TEST_F(CustomFoldersScreen, ARowIsTitledWithTheFoldersOwnNameAndHasItsIcon)
{
    openWith({"/Users/a/Projects", "/", "/Users/a/My Notes.d", "/Users/a/Projects"});

    EXPECT_EQ(rows(), (std::vector<Row>{{"Projects", false, "icon of /Users/a/Projects"},
                                        {"/", false, "icon of /"},
                                        {"My Notes.d", false, "icon of /Users/a/My Notes.d"},
                                        {"Projects", false, "icon of /Users/a/Projects"}}));
}

TEST_F(CustomFoldersScreen, ARowsTitleTellsTheFullPathToThoseWhoPointAtIt)
{
    openWith({"/Users/a/Projects"});

    EXPECT_EQ(table().rowScene(0).view<FakeTextField>("lbltitle").toolTip(), "/Users/a/Projects");
}

TEST_F(CustomFoldersScreen, ARowIsFilledInThisOrder)
{
    openWith({});
    store(NS::Value::Array{"/srv/a"});

    screen->viewWillAppear();

    EXPECT_EQ(platform.calls.lines(),
              (Lines{readStored, reload, makeRowView, R"(tblcell#1.lbltitle.setStringValue("a"))",
                     R"(tblcell#1.lbltitle.setToolTip("/srv/a"))", R"(workspace.iconForFile("/srv/a"))",
                     R"(tblcell#1.imgview.setImage("icon of /srv/a"))"}));
}

TEST_F(CustomFoldersScreen, TheCheckboxesAreLeftAlone)
{
    open();
    store(NS::Value::Array{"/a", "/b"});
    screen->viewWillAppear();
    expectLeftAlone("checkbox");
}

TEST_F(CustomFoldersScreen, APathThatEndsInASlashIsThatOfItsFolder)
{
    openWith({"/srv/a/"});

    EXPECT_EQ(rows(), (std::vector<Row>{{"a", false, "icon of /srv/a"}}));
    EXPECT_EQ(table().rowScene(0).view<FakeTextField>("lbltitle").toolTip(), "/srv/a");
}

TEST_F(CustomFoldersScreen, EveryDeleteButtonIsTaggedWithItsRow)
{
    openWith({"/a", "/b", "/c"});

    for (std::size_t index = 0; index < 3; ++index)
        EXPECT_EQ(deleteButton(index).tag(), static_cast<std::ptrdiff_t>(index));
}

TEST_F(CustomFoldersScreen, ARowWithoutACheckboxIsShown)
{
    useRowWithout("checkbox");

    openWith({"/srv/a"});

    EXPECT_EQ(table().rowScene(0).view<FakeTextField>("lbltitle").text(), "a");
}

TEST_F(CustomFoldersScreen, WithoutARowSceneTheRowsAreEmpty)
{
    makeRow = nullptr;
    expectAnEmptyRow([this] { openWith({"/a"}); });
}

TEST_F(CustomFoldersScreen, WithARowSceneOfAnotherClassTheRowsAreEmpty)
{
    useRowOfAnotherClass();
    expectAnEmptyRow([this] { openWith({"/a"}); });
}

// Deleting.

TEST_F(CustomFoldersScreen, DeletingTheFirstOfThreeStoresTheOtherTwoInTheirOrder)
{
    openWith({"/c", "/b", "/a"});

    deleteButton(0).click();

    EXPECT_EQ(stored(), (NS::Value::Array{"/b", "/a"}));
    EXPECT_EQ(titles(), (Lines{"b", "a"}));
    EXPECT_EQ(deleteButton(0).tag(), 0);
    EXPECT_EQ(deleteButton(1).tag(), 1);
}

TEST_F(CustomFoldersScreen, DeletingAsksNothingAndStoresWithTheHandleItWasMadeWithThenReloads)
{
    openWith({"/a"});

    deleteButton(0).click();

    EXPECT_EQ(platform.calls.lines(),
              (Lines{R"(suite#1.setObject_forKey("arrCustomFoldersUrls"))", "suite#1.synchronize", reload}));
    EXPECT_EQ(stored(), NS::Value::Array{});
}

TEST_F(CustomFoldersScreen, DeletingOneOfTwoEqualEntriesLeavesTheOther)
{
    openWith({"/a", "/b", "/a"});

    deleteButton(2).click();

    EXPECT_EQ(stored(), (NS::Value::Array{"/a", "/b"}));
}

TEST_F(CustomFoldersScreen, DeletingStoresTheListThatIsShownWhateverIsStoredByThen)
{
    openWith({"/a", "/b"});
    store(NS::Value::Array{"/x", "/y", "/z"});

    deleteButton(1).click();

    EXPECT_EQ(stored(), (NS::Value::Array{"/a"}));
}

TEST_F(CustomFoldersScreen, WithoutASuiteDeletingIsShownOnly)
{
    platform.suiteCanBeRead = false;
    open();
    screen->arrCustomFolders = {"/a", "/b"};
    screen->viewWillAppear();
    platform.calls.clear();

    deleteButton(0).click();

    EXPECT_EQ(titles(), (Lines{"b"}));
    EXPECT_TRUE(platform.suite.empty());
    EXPECT_EQ(platform.calls.lines().front(), reload);
}

// What stops the program.

using CustomFoldersScreenDeathTest = CustomFoldersScreen;

TEST_F(CustomFoldersScreenDeathTest, ATagOutsideTheListIsFatalBeforeAnythingIsWritten)
{
    openWith({"/a"});
    for (const std::ptrdiff_t tag : {-1, 1, 1000}) {
        deleteButton(0).setTag(tag);
        EXPECT_DEATH(
            {
                platform.calls.echoOnStandardError();
                deleteButton(0).click();
            },
            fatalLine("the custom folders have no row " + std::to_string(tag)));
    }
}

TEST_F(CustomFoldersScreenDeathTest, ARowOutsideTheListIsFatal)
{
    openWith({"/a"});
    for (const std::ptrdiff_t outside : {-1, 1}) {
        EXPECT_DEATH(screen->tableView_viewForTableColumn_row(table(), nullptr, outside),
                     fatalLine("the custom folders have no row " + std::to_string(outside)));
    }
}

TEST_F(CustomFoldersScreenDeathTest, ARowWithoutAViewIsFatalAtTheStepThatUsesIt)
{
    const auto show = [this] { openWith({"/srv/a"}); };

    expectFatalWithout("lbltitle", makeRowView, show);
    expectFatalWithout("imgview", R"(tblcell#1.lbltitle.setToolTip("/srv/a"))", show);
    expectFatalWithout("btnDelete", R"(tblcell#1.imgview.setImage("icon of /srv/a"))", show);
}

TEST_F(CustomFoldersScreenDeathTest, WithoutItsTableAppearingAndThePostingAreFatal)
{
    openWith({"/a"});
    sceneOf(*screen).remove("tblview");
    const std::string error = R"(the outlet "tblview" is empty)";

    EXPECT_DEATH(screen->viewWillAppear(), fatalLine(error));
    EXPECT_DEATH(postReload(), fatalLine(error));
}

TEST_F(CustomFoldersScreenDeathTest, WithoutItsTableADeletionStopsAfterItWasStored)
{
    openWith({"/a"});
    FakeButton sender(platform.calls, "sender");
    sceneOf(*screen).remove("tblview");

    EXPECT_DEATH(
        {
            platform.calls.echoOnStandardError();
            screen->brnDeleteClickedWithSender(sender);
        },
        fatalLineAfter("suite#1.synchronize", R"(the outlet "tblview" is empty)"));
}

} // namespace
