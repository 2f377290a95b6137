#include "showcase/utilityKitvc.h"

#include "showcase/PromotionOrders.h"
#include "showcase/ShowcaseCatalogue.h"
#include "showcase/collectionView_cell.h"
#include "support/FakeButton.h"
#include "support/FakeCollectionView.h"
#include "support/FakeImageView.h"
#include "support/FakePlatform.h"
#include "support/FakeScrollView.h"
#include "support/FakeTextField.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

const Lines everyCardView{"lblapptype", "btnappstore", "imgview", "lblsubtitle", "lbltitle"};

void addCardView(FakeScene& scene, const std::string& name)
{
    if (name == "btnappstore")
        scene.add<FakeButton>(name);
    else if (name == "imgview")
        scene.add<FakeImageView>(name);
    else
        scene.add<FakeTextField>(name);
}

const ShowcaseApplication& application(int number)
{
    return showcaseCatalogue.at(static_cast<std::size_t>(number - 1));
}

class ShowcaseScreen : public testing::Test {
protected:
    ShowcaseScreen()
    {
        useCard(everyCardView);
        platform.storyboard->addScene("utilityKitvc", [this](FakeScene& scene) {
            scene.add<FakeTextField>("lblotherapps");
            scene.add<FakeScrollView>("scrollview");
            scene.add<FakeCollectionView>("collectionView").addItemScene("collectionView_cell", makeCard);
            for (const std::string& view : missingViews)
                scene.remove(view);
            return std::make_shared<utilityKitvc>();
        });
    }

    /// Cards of the usual class with these of its views.
    void useCard(const Lines& views)
    {
        makeCard = [views](FakeScene& scene) {
            for (const std::string& view : views)
                addCardView(scene, view);
            return std::make_shared<collectionView_cell>();
        };
    }

    void installAllBut(const std::vector<int>& numbers)
    {
        platform.existingFiles.clear();
        for (const ShowcaseApplication& each : showcaseCatalogue)
            platform.existingFiles.emplace(each.installedPath);
        for (const int number : numbers)
            platform.existingFiles.erase(std::string(application(number).installedPath));
    }

    void load()
    {
        screen = std::dynamic_pointer_cast<utilityKitvc>(
            platform.storyboard->instantiateControllerWithIdentifier("utilityKitvc"));
    }
    void appear(double width = 1000.0)
    {
        views().size.width = width;
        screen->viewWillAppear();
        screen->viewDidAppear();
    }
    void open()
    {
        load();
        appear();
    }

    [[nodiscard]] FakeScene& views() const { return sceneOf(*screen); }
    [[nodiscard]] FakeCollectionView& grid() const { return views().view<FakeCollectionView>("collectionView"); }
    [[nodiscard]] FakeButton& button(std::size_t index) const
    {
        return grid().itemScene(index).view<FakeButton>("btnappstore");
    }
    [[nodiscard]] std::string textOf(std::size_t index, std::string_view view) const
    {
        return grid().itemScene(index).view<FakeTextField>(view).text();
    }
    [[nodiscard]] Lines titles() const
    {
        Lines shown;
        for (std::size_t index = 0; index < grid().itemCount(); ++index)
            shown.push_back(textOf(index, "lbltitle"));
        return shown;
    }
    [[nodiscard]] std::size_t layouts() const
    {
        return platform.calls.startingWith("utilityKitvc.collectionView.setCollectionViewLayout").size();
    }

    FakePlatform platform;
    FakeCollectionView::ItemMaker makeCard;
    Lines missingViews;
    std::shared_ptr<utilityKitvc> screen;
};

// Making and loading the screen.

TEST_F(ShowcaseScreen, BeginsEmpty)
{
    const utilityKitvc made;

    EXPECT_FALSE(made.lblotherapps);
    EXPECT_FALSE(made.scrollview);
    EXPECT_FALSE(made.collectionView);
    EXPECT_TRUE(made.allappsDic.empty());
    EXPECT_FALSE(made.isfirstTimeLodded);
    EXPECT_TRUE(made.randomPrmotarr.empty());
    EXPECT_EQ(made.numberofitemsinOneRow, 2.0);
    EXPECT_EQ(made.space, 0.0);
    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(ShowcaseScreen, LoadingWritesTheHeadingAndClearsTheBackgroundsAndNothingElse)
{
    load();
    platform.calls.clear();

    screen->viewDidLoad();

    EXPECT_EQ(platform.calls.lines(),
              (Lines{R"(utilityKitvc.lblotherapps.setStringValue("Other Apps we think you may Love:"))",
                     "utilityKitvc.scrollview.setBackgroundColor(0)",
                     "utilityKitvc.collectionView.setBackgroundColors([0])"}));
    EXPECT_TRUE(screen->allappsDic.empty());
}

// Appearing.

TEST_F(ShowcaseScreen, AppearingDrawsThenChecksThenFillsThenLaysOut)
{
    installAllBut({5});
    load();
    views().size.width = 1000.0;
    platform.calls.clear();

    screen->viewWillAppear();

    Lines expected{"platform.arc4random_uniform(9)"};
    for (const ShowcaseApplication& each : showcaseCatalogue)
        expected.push_back("platform.fileExistsAtPath(\"" + std::string(each.installedPath) + "\")");
    expected.insert(expected.end(),
                    {R"(platform.imageNamed("showcase-pallix"))", "utilityKitvc.collectionView.reloadData",
                     "utilityKitvc.collectionView.setCollectionViewLayout(430, 220, 10, 40, 20, 40, 0)"});
    EXPECT_EQ(platform.calls.startingWithAnyOf({"platform.", "utilityKitvc.collectionView.reloadData",
                                                "utilityKitvc.collectionView.setCollectionViewLayout"}),
              expected);
}

TEST_F(ShowcaseScreen, TheOrderDrawnIsTheOneShown)
{
    platform.random = 3;

    open();

    const auto& order = promotionOrders.at(3);
    EXPECT_EQ(screen->randomPrmotarr, std::vector<int>(order.begin(), order.end()));
    Lines expected;
    for (const int number : order)
        expected.emplace_back(application(number).title);
    EXPECT_EQ(titles(), expected);
}

TEST_F(ShowcaseScreen, InstalledApplicationsAreNotShown)
{
    platform.existingFiles = {"/Applications/Fennic.app", "/Applications/Orlet.app"};
    platform.random = 6;

    open();

    const Lines shown = titles();
    ASSERT_EQ(shown.size(), 15U);
    EXPECT_EQ(Lines(shown.begin(), shown.begin() + 4), (Lines{"Dravet", "Corvane", "Quenby", "Tessel"}));
}

TEST_F(ShowcaseScreen, WithEverythingInstalledThereAreNoCards)
{
    installAllBut({});

    open();

    EXPECT_TRUE(screen->allappsDic.empty());
    EXPECT_EQ(screen->collectionView_numberOfItemsInSection(grid(), 0), 0);
    EXPECT_EQ(grid().itemCount(), 0U);
    EXPECT_EQ(grid().itemsMade(), 0U);
}

TEST_F(ShowcaseScreen, EachShowingIsBuiltAnew)
{
    open();
    platform.random = 1;
    installAllBut({2, 6, 16});

    appear();

    EXPECT_EQ(titles(), (Lines{"Ostrel", "Lumet", "Mirelo"}));
    EXPECT_EQ(screen->randomPrmotarr.front(), 6);

    installAllBut({1});
    appear();
    EXPECT_EQ(titles(), (Lines{"Tessel"}));
    platform.existingFiles.clear();
    appear();
    EXPECT_EQ(titles().size(), 17U);
}

TEST_F(ShowcaseScreen, BetweenShowingsTheListStays)
{
    installAllBut({8, 9});
    open();

    platform.random = 5;
    platform.existingFiles.clear();
    screen->viewWillDisappear();

    EXPECT_EQ(screen->allappsDic.size(), 2U);
    EXPECT_EQ(screen->randomPrmotarr.front(), 1);
}

// The layout.

struct Width {
    const char* name;
    double width;
    double space;
};

class AViewOfAWidth : public ShowcaseScreen, public testing::WithParamInterface<Width> {};

TEST_P(AViewOfAWidth, HasAThirdOfTheFreeWidthOnEitherSide)
{
    load();

    appear(GetParam().width);

    const double space = GetParam().space;
    EXPECT_DOUBLE_EQ(screen->space, space);
    ASSERT_TRUE(grid().layout);
    NS::CollectionViewFlowLayout expected;
    expected.itemSize = {430.0, 220.0};
    expected.sectionInset = {.top = 10.0, .left = screen->space, .bottom = 20.0, .right = screen->space};
    expected.minimumInteritemSpacing = 0.0;
    EXPECT_EQ(*grid().layout, expected);
}

INSTANTIATE_TEST_SUITE_P(Each, AViewOfAWidth,
                         testing::Values(Width{"Wide", 1000.0, 40.0}, Width{"ThatFitsExactly", 880.0, 0.0},
                                         Width{"Narrow", 700.0, -60.0}, Width{"Odd", 881.0, 1.0 / 3.0}),
                         [](const auto& tested) { return tested.param.name; });

TEST_F(ShowcaseScreen, TheFirstTimeTheLayoutIsDoneAgainATenthOfASecondLater)
{
    load();
    appear(600.0);
    EXPECT_TRUE(screen->isfirstTimeLodded);
    EXPECT_EQ(platform.clock.pendingDelays(), std::vector{0.1});
    views().size.width = 1000.0;
    const std::size_t before = layouts();

    platform.clock.advance(0.09);
    EXPECT_EQ(layouts(), before);
    platform.clock.advance(0.02);

    EXPECT_EQ(layouts(), before + 1);
    EXPECT_EQ(screen->space, 40.0);
}

TEST_F(ShowcaseScreen, EveryFurtherTimeTheLayoutIsDoneAtOnce)
{
    open();
    platform.clock.advance(1.0);
    screen->viewWillAppear();
    views().size.width = 940.0;
    platform.calls.clear();

    screen->viewDidAppear();

    EXPECT_EQ(platform.calls.lines(),
              (Lines{"utilityKitvc.collectionView.setCollectionViewLayout(430, 220, 10, 20, 20, 20, 0)"}));
    EXPECT_TRUE(platform.clock.pendingDelays().empty());
}

TEST_F(ShowcaseScreen, AppearingAloneLoadsNoCards)
{
    open();
    platform.calls.clear();

    screen->viewDidAppear();

    EXPECT_TRUE(platform.calls.containing("reloadData").empty());
    EXPECT_TRUE(platform.calls.containing("arc4random_uniform").empty());
}

TEST_F(ShowcaseScreen, AScreenThatIsLetGoOfStaysUntilItsFirstLayout)
{
    open();
    const std::weak_ptr<utilityKitvc> watched = screen;

    screen.reset();
    EXPECT_FALSE(watched.expired());
    platform.clock.advance(0.2);
    EXPECT_TRUE(watched.expired());
}

// The cards.

TEST_F(ShowcaseScreen, ACardShowsItsEntry)
{
    open();

    for (std::size_t index = 0; index < 17; ++index) {
        const ShowcaseApplication& shown = application(static_cast<int>(index) + 1);
        EXPECT_EQ(textOf(index, "lbltitle"), shown.title);
        EXPECT_EQ(textOf(index, "lblsubtitle"), shown.description);
        EXPECT_EQ(textOf(index, "lblapptype"), shown.category);
        EXPECT_EQ(grid().itemScene(index).view<FakeImageView>("imgview").image(),
                  NS::Image(std::string(shown.image)));
        EXPECT_EQ(button(index).tag(), static_cast<std::ptrdiff_t>(index));
    }
}

TEST_F(ShowcaseScreen, AMissingKeyLeavesItsControlAsTheSceneMadeIt)
{
    load();
    screen->allappsDic = {{}};
    platform.calls.clear();

    grid().reloadData();

    EXPECT_TRUE(platform.calls.startingWith("collectionView_cell#1.").empty());
    EXPECT_EQ(button(0).tag(), 0);
}

TEST_F(ShowcaseScreen, AValueOfAnotherKindLeavesItsControlAsTheSceneMadeIt)
{
    load();
    screen->allappsDic = {{{"Title", NS::Image("tile")},
                           {"description", NS::Image("tile")},
                           {"icon", std::string("tile")},
                           {"category", std::string("Utilities")}}};
    platform.calls.clear();

    grid().reloadData();

    EXPECT_EQ(platform.calls.startingWith("collectionView_cell#1."),
              (Lines{R"(collectionView_cell#1.lblapptype.setStringValue("Utilities"))"}));
}

TEST_F(ShowcaseScreen, AReusedCardShowsAndOpensItsNewEntry)
{
    open();
    platform.random = 8;

    appear();

    EXPECT_EQ(grid().itemsMade(), 17U);
    EXPECT_EQ(titles().front(), "Fennic");
    platform.calls.clear();
    button(0).click();
    EXPECT_EQ(platform.calls.lines(),
              (Lines{"workspace.openURL(\"" + std::string(application(7).storeAddress) + "\")"}));
}

// The button of a card.

TEST_F(ShowcaseScreen, TheThirdCardsButtonOpensTheStorePageOfTheThirdEntry)
{
    platform.random = 1;
    platform.existingFiles = {"/Applications/Lumet.app"};
    open();
    platform.calls.clear();

    button(2).click();

    EXPECT_EQ(platform.calls.lines(),
              (Lines{"workspace.openURL(\"" + std::string(application(15).storeAddress) + "\")"}));
}

TEST_F(ShowcaseScreen, AnAddressThatCannotBeOpenedIsNotSpokenOf)
{
    open();
    platform.sharedWorkspace().opens = false;
    platform.calls.clear();

    button(0).click();

    EXPECT_EQ(platform.calls.lines().size(), 1U);
}

struct Address {
    const char* name;
    ShowcaseEntry entry;
};

class AnEntryWithoutAnAddress : public ShowcaseScreen, public testing::WithParamInterface<Address> {};

TEST_P(AnEntryWithoutAnAddress, OpensNothing)
{
    load();
    screen->allappsDic = {GetParam().entry};
    grid().reloadData();
    platform.calls.clear();

    button(0).click();

    EXPECT_TRUE(platform.calls.lines().empty());
}

INSTANTIATE_TEST_SUITE_P(Each, AnEntryWithoutAnAddress,
                         testing::Values(Address{"ThatIsAURL", {{"apppath", std::string("not an address")}}},
                                         Address{"ThatSaysAnything", {{"apppath", std::string()}}},
                                         Address{"ThatIsAText", {{"apppath", NS::Image("tile")}}},
                                         Address{"AtAll", {}}),
                         [](const auto& tested) { return tested.param.name; });

// What cannot be.

using ShowcaseScreenDeathTest = ShowcaseScreen;

TEST_F(ShowcaseScreenDeathTest, AButtonOfACardWhoseEntryHasGoneIsFatal)
{
    open();
    screen->allappsDic.resize(2);

    EXPECT_DEATH(button(2).click(), fatalLine("the showcase has no entry 2"));
}

TEST_F(ShowcaseScreenDeathTest, ATagBelowTheListIsFatal)
{
    open();
    button(0).setTag(-1);

    EXPECT_DEATH(button(0).click(), fatalLine("the showcase has no entry -1"));
}

TEST_F(ShowcaseScreenDeathTest, AnItemOutsideTheListIsFatal)
{
    installAllBut({1});
    open();

    EXPECT_DEATH(static_cast<void>(
                     screen->collectionView_itemForRepresentedObjectAtIndexPath(grid(), {.item = 1, .section = 0})),
                 fatalLine("the showcase has no entry 1"));
}

TEST_F(ShowcaseScreenDeathTest, ACardOfAnotherClassIsFatal)
{
    makeCard = [](FakeScene&) { return std::make_shared<NS::CollectionViewItem>(); };
    load();

    EXPECT_DEATH(screen->viewWillAppear(), fatalLine(R"(the scene "collectionView_cell" is of the wrong class)"));
}

TEST_F(ShowcaseScreenDeathTest, AMissingImageIsFatal)
{
    platform.missingImages.insert("showcase-tessel");
    load();

    EXPECT_DEATH(screen->viewWillAppear(), fatalLine(R"(the image "showcase-tessel" is missing)"));
}

class AScreenWithoutAViewDeathTest : public ShowcaseScreen, public testing::WithParamInterface<const char*> {};

TEST_P(AScreenWithoutAViewDeathTest, IsFatalWhenItLoads)
{
    missingViews = {GetParam()};

    EXPECT_DEATH(load(), fatalLine("the outlet \"" + std::string(GetParam()) + "\" is empty"));
}

INSTANTIATE_TEST_SUITE_P(Each, AScreenWithoutAViewDeathTest,
                         testing::Values("lblotherapps", "scrollview", "collectionView"),
                         [](const auto& tested) { return std::string(tested.param); });

TEST_F(ShowcaseScreenDeathTest, AGridThatHasGoneIsFatalWhenTheScreenAppears)
{
    load();
    views().remove("collectionView");

    EXPECT_DEATH(screen->viewWillAppear(), fatalLine(R"(the outlet "collectionView" is empty)"));
    EXPECT_DEATH(screen->configureCollectionView(), fatalLine(R"(the outlet "collectionView" is empty)"));
}

class ACardWithoutAViewDeathTest : public ShowcaseScreen, public testing::WithParamInterface<std::string> {};

TEST_P(ACardWithoutAViewDeathTest, IsFatalWhenItIsFilled)
{
    Lines others = everyCardView;
    std::erase(others, GetParam());
    useCard(others);
    load();

    EXPECT_DEATH(screen->viewWillAppear(), fatalLine("the outlet \"" + GetParam() + "\" is empty"));
}

INSTANTIATE_TEST_SUITE_P(Each, ACardWithoutAViewDeathTest, testing::ValuesIn(everyCardView),
                         [](const auto& tested) { return tested.param; });

} // namespace
