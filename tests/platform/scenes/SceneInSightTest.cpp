#include "platform/linux/scenes/StepBadge.h"
#include "platform/linux/scenes/WidgetScene.h"

#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace LinuxDesktop;
using Events = std::vector<std::string>;

class Screen : public NS::ViewController {
public:
    void viewWillAppear() override { events.emplace_back("will appear"); }
    void viewDidAppear() override { events.emplace_back("did appear"); }
    void viewWillDisappear() override { events.emplace_back("will disappear"); }

    Events events;
};

class SceneInSight : public testing::Test {
protected:
    SceneInSight()
    {
        screen->setScene(std::make_unique<WidgetScene>(std::make_unique<QWidget>(), *screen));
        other = new QWidget;
        tabs.addTab(other, "other");
        tabs.addTab(&WidgetScene::rootOf(*screen), "screen");
    }

    [[nodiscard]] Events takeEvents()
    {
        QCoreApplication::processEvents();
        return std::exchange(screen->events, {});
    }

    QTabWidget tabs;
    QWidget* other;
    std::shared_ptr<Screen> screen = std::make_shared<Screen>();
};

TEST_F(SceneInSight, APageThatIsNotShownDoesNotAppear)
{
    tabs.show();

    EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(SceneInSight, AScreenAppearsWithItsPageAndDisappearsWithIt)
{
    tabs.show();
    tabs.setCurrentIndex(1);
    EXPECT_EQ(takeEvents(), (Events{"will appear", "did appear"}));

    tabs.setCurrentIndex(0);
    EXPECT_EQ(takeEvents(), (Events{"will disappear"}));
    tabs.setCurrentIndex(1);
    EXPECT_EQ(takeEvents(), (Events{"will appear", "did appear"}));
}

TEST_F(SceneInSight, AScreenDisappearsWithItsWindow)
{
    tabs.setCurrentIndex(1);
    tabs.show();
    EXPECT_EQ(takeEvents(), (Events{"will appear", "did appear"}));

    tabs.hide();
    EXPECT_EQ(takeEvents(), (Events{"will disappear"}));
}

TEST_F(SceneInSight, AScreenThatLeavesSightAtOnceNeverDidAppear)
{
    tabs.setCurrentIndex(1);
    tabs.show();
    tabs.hide();

    EXPECT_EQ(takeEvents(), (Events{"will appear", "will disappear"}));
}

TEST_F(SceneInSight, AScreenThatGoesWhileItShowsIsToldNothingMore)
{
    tabs.setCurrentIndex(1);
    tabs.show();
    QCoreApplication::processEvents();

    screen.reset();
    QCoreApplication::processEvents();

    EXPECT_EQ(tabs.count(), 1);
}

TEST_F(SceneInSight, TheFrameIsTheRootsPlaceAndSize)
{
    QWidget& root = WidgetScene::rootOf(*screen);
    root.setGeometry(3, 4, 880, 500);

    EXPECT_EQ(screen->scene()->frame(), (NS::Rect{3.0, 4.0, {880.0, 500.0}}));
}

TEST(StepBadge, TellsItsStepAsDoneWhileItsButtonIsDisabled)
{
    QWidget scene;
    auto* button = new QPushButton(&scene);
    button->setObjectName("btn");
    auto* card = new QWidget(&scene);
    auto* badge = new StepBadge(card);
    badge->setProperty("number", 2);
    badge->setProperty("button", "btn");

    scene.show();
    EXPECT_EQ(badge->accessibleName(), QStringLiteral("Step 2, to do"));
    button->setEnabled(false);
    EXPECT_EQ(badge->accessibleName(), QStringLiteral("Step 2, done"));
    button->setEnabled(true);
    EXPECT_EQ(badge->accessibleName(), QStringLiteral("Step 2, to do"));
}

} // namespace
