#include "platform/WindowController.h"
#include "platform/linux/scenes/CollectionGrid.h"
#include "platform/linux/scenes/ImageStore.h"
#include "platform/linux/scenes/Label.h"
#include "platform/linux/scenes/PushButton.h"
#include "platform/linux/scenes/WidgetScene.h"
#include "platform/linux/scenes/WidgetStoryboard.h"
#include "showcase/collectionView_cell.h"
#include "showcase/utilityKitvc.h"

#include <QLayout>
#include <QScrollArea>

#include <gtest/gtest.h>

namespace {

using namespace LinuxDesktop;

class ShowcaseScenes : public testing::Test {
protected:
    ShowcaseScenes()
    {
        classes.controllers["UtilityKitWindow"] = [] { return std::make_shared<NS::WindowController>(); };
        classes.controllers["utilityKitvc"] = [] { return std::make_shared<utilityKitvc>(); };
        classes.controllers["collectionView_cell"] = [] { return std::make_shared<collectionView_cell>(); };
        responders["terminate:"] = [](NS::Control&) {};
    }

    template<class T>
    std::shared_ptr<T> make(const char* identifier)
    {
        return std::dynamic_pointer_cast<T>(storyboard.instantiateControllerWithIdentifier(identifier));
    }

    NS::ClassTable classes;
    ActionMap responders;
    ImageStore images{QStringLiteral(ORVIK_ASSETS)};
    WidgetStoryboard storyboard{classes, images, responders};
};

TEST_F(ShowcaseScenes, TheScreenHasItsViewsAndShowsItsHeadingOnClearBackgrounds)
{
    const auto screen = make<utilityKitvc>("utilityKitvc");
    ASSERT_NE(screen, nullptr);
    EXPECT_TRUE(screen->lblotherapps);
    EXPECT_TRUE(screen->scrollview);
    EXPECT_TRUE(screen->collectionView);
    const QWidget& root = WidgetScene::rootOf(*screen);
    EXPECT_EQ(root.findChild<Label*>()->text(), QStringLiteral("Other Apps we think you may Love:"));
    EXPECT_FALSE(root.findChild<QScrollArea*>()->viewport()->autoFillBackground());
    EXPECT_FALSE(root.findChild<CollectionGrid*>()->autoFillBackground());
}

TEST_F(ShowcaseScenes, TheGridMakesItsCardsFromTheirSceneForTheScreensEntries)
{
    const auto screen = make<utilityKitvc>("utilityKitvc");
    screen->allappsDic = {{{"Title", std::string("One")}}, {{"Title", std::string("Two")}}};
    screen->collectionView->reloadData();

    const auto* grid = WidgetScene::rootOf(*screen).findChild<CollectionGrid*>();
    ASSERT_EQ(grid->cards().size(), 2);
    EXPECT_EQ(grid->cards().at(1)->findChild<Label*>(QStringLiteral("lbltitle"))->text(), QStringLiteral("Two"));
}

TEST_F(ShowcaseScenes, TheLayoutIsMadeForTheWidthOfTheScreensView)
{
    const auto screen = make<utilityKitvc>("utilityKitvc");
    WidgetScene::rootOf(*screen).resize(1000, 500);
    screen->configureCollectionView();
    EXPECT_EQ(screen->space, 40.0);
    WidgetScene::rootOf(*screen).resize(700, 500);
    screen->configureCollectionView();
    EXPECT_EQ(screen->space, -60.0);
}

TEST_F(ShowcaseScenes, ACardHasAllItsViewsAndRoomForThem)
{
    const auto card = make<collectionView_cell>("collectionView_cell");
    ASSERT_NE(card, nullptr);
    EXPECT_TRUE(card->lblapptype);
    EXPECT_TRUE(card->btnappstore);
    EXPECT_TRUE(card->imgview);
    EXPECT_TRUE(card->lblsubtitle);
    EXPECT_TRUE(card->lbltitle);
    const QSize least = WidgetScene::rootOf(*card).layout()->totalMinimumSize();
    EXPECT_LE(least.width(), 430);
    // Three lines of description at the least.
    EXPECT_LE(least.height() + 3 * WidgetScene::rootOf(*card).fontMetrics().lineSpacing(), 220);
}

TEST_F(ShowcaseScenes, TheWindowHasRoomForTwoCardsALineAndFitsASmallScreen)
{
    const auto window = make<NS::WindowController>("UtilityKitWindow");
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->window);
    const QWidget& root = WidgetScene::rootOf(*window);
    EXPECT_EQ(root.windowTitle(), QStringLiteral("More from Orvik Studio"));
    EXPECT_GE(root.width(), 880);
    EXPECT_LE(root.width(), 1024);
    EXPECT_LE(root.height(), 768 - 48);
}

} // namespace
