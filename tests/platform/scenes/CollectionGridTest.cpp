#include "platform/linux/scenes/CollectionGrid.h"
#include "platform/linux/scenes/CardWidget.h"
#include "platform/linux/scenes/Label.h"
#include "platform/linux/scenes/PushButton.h"
#include "platform/linux/scenes/SceneConnections.h"
#include "platform/linux/scenes/Scenes.h"
#include "platform/linux/scenes/ScrollPane.h"
#include "platform/linux/scenes/WidgetScene.h"
#include "showcase/collectionView_cell.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace LinuxDesktop;

/// The showcase's layout for a view of that width.
NS::CollectionViewFlowLayout layoutFor(double width)
{
    const double space = (width - 880.0) / 3.0;
    NS::CollectionViewFlowLayout layout;
    layout.itemSize = {430.0, 220.0};
    layout.sectionInset = {.top = 10.0, .left = space, .bottom = 20.0, .right = space};
    layout.minimumInteritemSpacing = 0.0;
    return layout;
}

/// A scrolled grid of cards over a list of titles.
class CollectionGridFixture : public testing::Test, public NS::CollectionViewDataSource {
protected:
    CollectionGridFixture()
    {
        auto* column = new QVBoxLayout(&window);
        column->setContentsMargins({});
        column->setSpacing(0);
        column->addWidget(&before);
        pane = new ScrollPane;
        pane->setFrameShape(QFrame::NoFrame);
        pane->setWidgetResizable(true);
        grid = new CollectionGrid;
        pane->setWidget(grid);
        column->addWidget(pane);
        column->addWidget(&after);
        grid->setDataSource(this);
        grid->setItemMaker([this](std::string_view identifier) { return makeItem(identifier); });
    }
    // The two buttons are members, not the window's to delete.
    ~CollectionGridFixture() override
    {
        before.setParent(nullptr);
        after.setParent(nullptr);
    }

    std::shared_ptr<NS::CollectionViewItem> makeItem(std::string_view identifier)
    {
        std::unique_ptr<QWidget> root = makeScene(identifier);
        if (!root)
            return nullptr;
        ++itemsMade;
        auto item = std::make_shared<collectionView_cell>();
        SceneConnections connections(root.get());
        item->connect(connections);
        item->setScene(std::make_unique<WidgetScene>(std::move(root), *item));
        return item;
    }

    std::ptrdiff_t collectionView_numberOfItemsInSection(NS::CollectionView&, std::ptrdiff_t) override
    {
        return std::ssize(titles);
    }
    NS::CollectionViewItem* collectionView_itemForRepresentedObjectAtIndexPath(NS::CollectionView& view,
                                                                               NS::IndexPath indexPath) override
    {
        auto& item = dynamic_cast<collectionView_cell&>(
            view.makeItemWithIdentifier_forIndexPath("collectionView_cell", indexPath));
        item.lbltitle->setStringValue(titles.at(static_cast<std::size_t>(indexPath.item)));
        item.btnappstore->setTag(indexPath.item);
        item.btnappstore->setAction([this](NS::Control& sender) { pressed = sender.tag(); });
        return forgetful ? nullptr : &item;
    }

    void setCount(int count)
    {
        titles.clear();
        for (int number = 0; number < count; ++number)
            titles.push_back("App " + std::to_string(number));
    }

    void show(int count, int width = 1000, int height = 600)
    {
        setCount(count);
        window.resize(width, height);
        grid->reloadData();
        grid->setCollectionViewLayout(layoutFor(width));
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    [[nodiscard]] QRect placeOf(int card) const { return grid->cards().at(card)->geometry(); }
    [[nodiscard]] PushButton* buttonOf(int card) const { return grid->cards().at(card)->findChild<PushButton*>(); }
    [[nodiscard]] QRect placeInSight(int card) const
    {
        QWidget* widget = grid->cards().at(card);
        return {widget->mapTo(pane->viewport(), QPoint()), widget->size()};
    }
    [[nodiscard]] bool isWholeInSight(int card) const
    {
        return pane->viewport()->rect().contains(placeInSight(card));
    }

    /// The place of the card that has the focus; -1 for none.
    [[nodiscard]] int focusedCard() const
    {
        for (int card = 0; card < grid->cards().size(); ++card) {
            if (grid->cards().at(card)->isAncestorOf(QApplication::focusWidget()))
                return card;
        }
        return -1;
    }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    QWidget window;
    QPushButton before;
    QPushButton after;
    ScrollPane* pane = nullptr;
    CollectionGrid* grid = nullptr;
    std::vector<std::string> titles;
    int itemsMade = 0;
    bool forgetful = false;
    std::ptrdiff_t pressed = -1;
};

// Where the cards lie.

TEST(FlowGeometry, AWidthOfThousandHasItsTwoColumnsAtTheInsets)
{
    const FlowGeometry geometry(layoutFor(1000.0), 1000.0);
    EXPECT_EQ(geometry.columns(), 2);
    EXPECT_EQ(geometry.item(0), (NS::Rect{40.0, 10.0, {430.0, 220.0}}));
    EXPECT_EQ(geometry.item(1), (NS::Rect{530.0, 10.0, {430.0, 220.0}}));
    EXPECT_EQ(geometry.item(2), (NS::Rect{40.0, 240.0, {430.0, 220.0}}));
}

TEST(FlowGeometry, AWidthOfEightHundredAndEightyHasItsTwoColumnsAtTheEdges)
{
    const FlowGeometry geometry(layoutFor(880.0), 880.0);
    EXPECT_EQ(geometry.columns(), 2);
    EXPECT_EQ(geometry.item(0).x, 0.0);
    EXPECT_EQ(geometry.item(1).x, 450.0);
}

TEST(FlowGeometry, AWidthOfSevenHundredHasOneColumnInTheMiddleThoughItsInsetsReachBeyondTheEdges)
{
    const FlowGeometry geometry(layoutFor(700.0), 700.0);
    EXPECT_EQ(geometry.columns(), 1);
    EXPECT_EQ(geometry.item(0).x, 135.0);
    EXPECT_EQ(geometry.item(1), (NS::Rect{135.0, 240.0, {430.0, 220.0}}));
}

TEST(FlowGeometry, AFullLineIsSpreadOverTheWidthBetweenTheInsets)
{
    const FlowGeometry geometry(layoutFor(880.0), 1490.0);
    EXPECT_EQ(geometry.columns(), 3);
    EXPECT_EQ(geometry.item(0).x, 0.0);
    EXPECT_EQ(geometry.item(1).x, 530.0);
    EXPECT_EQ(geometry.item(2).x, 1060.0);
}

TEST(FlowGeometry, NegativeInsetsAreUsedAsTheyAre)
{
    NS::CollectionViewFlowLayout layout = layoutFor(880.0);
    layout.sectionInset.left = -100.0;
    layout.sectionInset.right = -20.0;
    const FlowGeometry geometry(layout, 800.0);
    EXPECT_EQ(geometry.columns(), 2);
    EXPECT_EQ(geometry.item(0).x, -100.0);
    EXPECT_EQ(geometry.item(1).x, 390.0);
}

TEST(FlowGeometry, TheSpacingBetweenItemsTakesRoom)
{
    NS::CollectionViewFlowLayout layout = layoutFor(880.0);
    layout.minimumInteritemSpacing = 20.0;
    EXPECT_EQ(FlowGeometry(layout, 880.0).columns(), 2);
    EXPECT_EQ(FlowGeometry(layout, 879.0).columns(), 1);
}

TEST(FlowGeometry, ALineHasOneItemAtLeast)
{
    const FlowGeometry geometry(layoutFor(880.0), 100.0);
    EXPECT_EQ(geometry.columns(), 1);
    EXPECT_EQ(geometry.item(0).x, -165.0);
}

TEST(FlowGeometry, ItsHeightIsThatOfTheLinesWithTheirInsetsAndWhatIsBetweenThem)
{
    const FlowGeometry geometry(layoutFor(1000.0), 1000.0);
    EXPECT_EQ(geometry.height(0), 30.0);
    EXPECT_EQ(geometry.height(1), 250.0);
    EXPECT_EQ(geometry.height(2), 250.0);
    EXPECT_EQ(geometry.height(3), 480.0);
    EXPECT_EQ(geometry.height(17), 10.0 + 9 * 220.0 + 8 * 10.0 + 20.0);
}

TEST_F(CollectionGridFixture, ALastLineThatIsNotFullKeepsToTheColumns)
{
    show(3);
    EXPECT_EQ(placeOf(2), QRect(placeOf(0).x(), 240, 430, 220));
}

TEST_F(CollectionGridFixture, ItsFirstAndLastColumnLieAtTheInsetsOfWhatTheScrollBarLeaves)
{
    show(17);
    ASSERT_TRUE(pane->verticalScrollBar()->isVisible());
    EXPECT_EQ(grid->width(), pane->viewport()->width());
    EXPECT_EQ(placeOf(0), QRect(40, 10, 430, 220));
    EXPECT_EQ(placeOf(1), QRect(grid->width() - 40 - 430, 10, 430, 220));
}

TEST_F(CollectionGridFixture, ANarrowOneHasOneCardALine)
{
    show(2, 700);
    EXPECT_EQ(placeOf(0).x(), placeOf(1).x());
    EXPECT_EQ(placeOf(0).x(), (grid->width() - 430) / 2);
    EXPECT_EQ(placeOf(1).y(), 240);
}

TEST_F(CollectionGridFixture, ItIsAsHighAsItsLinesAndScrollsToTheEndOfTheLast)
{
    show(17);
    EXPECT_EQ(grid->height(), 10 + 9 * 220 + 8 * 10 + 20);
    pane->verticalScrollBar()->setValue(pane->verticalScrollBar()->maximum());
    EXPECT_EQ(placeInSight(16).bottom() + 1 + 20, pane->viewport()->height());
}

TEST_F(CollectionGridFixture, ItFlowsAnewInAWindowOfAnotherWidth)
{
    show(4);
    window.resize(1600, 600);
    ASSERT_TRUE(QTest::qWaitFor([&] { return placeOf(2).y() == 10; }));
    EXPECT_EQ(placeOf(2).right() + 1, grid->width() - 40);
    window.resize(600, 600);
    ASSERT_TRUE(QTest::qWaitFor([&] { return placeOf(3).y() == 10 + 3 * 230; }));
}

TEST_F(CollectionGridFixture, ANewLayoutIsUsedAtOnce)
{
    show(2);
    grid->setCollectionViewLayout(layoutFor(940.0));
    EXPECT_EQ(placeOf(0).x(), 20);
}

// Reloading.

TEST_F(CollectionGridFixture, AReloadUsesTheCardsAgain)
{
    show(5);
    const QList<QWidget*> cards = grid->cards();
    titles.back() = "Another";
    grid->reloadData();
    EXPECT_EQ(itemsMade, 5);
    EXPECT_EQ(grid->cards(), cards);
    EXPECT_EQ(grid->cards().back()->findChild<Label*>(QStringLiteral("lbltitle"))->text(), QStringLiteral("Another"));
}

TEST_F(CollectionGridFixture, AReloadKeepsTheFocusOnItsCard)
{
    show(5);
    buttonOf(3)->setFocus();
    grid->reloadData();
    EXPECT_EQ(focusedCard(), 3);
}

TEST_F(CollectionGridFixture, AListThatShrinksHidesTheCardsLeftOverAndOneThatGrowsShowsThemAgain)
{
    show(17);
    QWidget* third = grid->cards().at(2);
    setCount(2);
    grid->reloadData();
    EXPECT_EQ(grid->cards().size(), 2);
    EXPECT_FALSE(third->isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !pane->verticalScrollBar()->isVisible(); }));

    setCount(17);
    grid->reloadData();
    EXPECT_TRUE(third->isVisible());
    EXPECT_EQ(grid->cards().at(2), third);
    EXPECT_EQ(itemsMade, 17);
}

TEST_F(CollectionGridFixture, AnEmptyOneShowsNoCards)
{
    show(0);
    EXPECT_TRUE(grid->cards().isEmpty());
    EXPECT_EQ(itemsMade, 0);
    EXPECT_FALSE(pane->verticalScrollBar()->isVisible());
}

TEST_F(CollectionGridFixture, AClickOnACardsButtonSendsItsAction)
{
    show(17);
    QTest::mouseClick(buttonOf(2), Qt::LeftButton);
    EXPECT_EQ(pressed, 2);
}

// The keyboard.

TEST_F(CollectionGridFixture, TabGoesThroughTheCardsInTheirOrderAndThenOn)
{
    show(5);
    before.setFocus();
    for (int card = 0; card < 5; ++card) {
        press(Qt::Key_Tab);
        EXPECT_EQ(focusedCard(), card);
    }
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &after);
    QTest::keyClick(&after, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focusedCard(), 4);
}

TEST_F(CollectionGridFixture, CardsThatComeLaterAreWalkedThroughAfterThoseThatWereThere)
{
    show(2);
    setCount(4);
    grid->reloadData();
    buttonOf(1)->setFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedCard(), 2);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &after);
}

TEST_F(CollectionGridFixture, TheArrowKeysMoveBetweenTheCards)
{
    show(5);
    buttonOf(0)->setFocus();
    const std::vector<std::pair<Qt::Key, int>> steps{
        {Qt::Key_Right, 1}, {Qt::Key_Right, 2}, {Qt::Key_Left, 1}, {Qt::Key_Down, 3}, {Qt::Key_Down, 4},
        {Qt::Key_Down, 4},  {Qt::Key_Right, 4}, {Qt::Key_Up, 2},   {Qt::Key_Up, 0},   {Qt::Key_Up, 0},
        {Qt::Key_Left, 0},  {Qt::Key_End, 4},   {Qt::Key_Home, 0},
    };
    for (const auto& [key, card] : steps) {
        press(key);
        EXPECT_EQ(focusedCard(), card) << key;
    }
}

TEST_F(CollectionGridFixture, ThePageKeysMoveByTheLinesInSight)
{
    show(17);
    buttonOf(1)->setFocus();
    const int page = 2 * (pane->viewport()->height() / 230);
    ASSERT_GT(page, 2);
    press(Qt::Key_PageDown);
    EXPECT_EQ(focusedCard(), 1 + page);
    press(Qt::Key_PageUp);
    EXPECT_EQ(focusedCard(), 1);
    press(Qt::Key_PageUp);
    EXPECT_EQ(focusedCard(), 1);
}

TEST_F(CollectionGridFixture, KeysWithModifiersAreNotItsOwn)
{
    show(5);
    buttonOf(0)->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(focusedCard(), 0);
}

TEST_F(CollectionGridFixture, ACardThatTheKeyboardComesToIsScrolledIntoSightWhole)
{
    show(17);
    before.setFocus();
    for (int card = 0; card < 17; ++card) {
        press(Qt::Key_Tab);
        EXPECT_EQ(focusedCard(), card);
        EXPECT_TRUE(isWholeInSight(card)) << card;
    }
    press(Qt::Key_Home);
    EXPECT_EQ(pane->verticalScrollBar()->value(), 0);
    press(Qt::Key_End);
    EXPECT_EQ(pane->verticalScrollBar()->value(), pane->verticalScrollBar()->maximum());
}

TEST_F(CollectionGridFixture, AClickOnACardThatIsHalfInSightDoesNotScrollItAwayFromThePointer)
{
    show(17);
    ASSERT_FALSE(isWholeInSight(4));
    pane->verticalScrollBar()->setValue(230);
    ASSERT_FALSE(isWholeInSight(1));
    pane->verticalScrollBar()->setValue(150);
    ASSERT_FALSE(isWholeInSight(1));
    QTest::mouseClick(buttonOf(1), Qt::LeftButton);
    EXPECT_EQ(pressed, 1);
    EXPECT_EQ(pane->verticalScrollBar()->value(), 150);
}

// What others see of it.

TEST_F(CollectionGridFixture, AssistiveProgramsFindEveryCardAndItsButtonByTitle)
{
    show(3);
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(grid);
    EXPECT_EQ(face->role(), QAccessible::List);
    ASSERT_EQ(face->childCount(), 3);
    for (int card = 0; card < 3; ++card) {
        const QString title = QStringLiteral("App %1").arg(card);
        EXPECT_EQ(face->child(card)->role(), QAccessible::ListItem);
        EXPECT_EQ(face->indexOfChild(face->child(card)), card);
        EXPECT_EQ(face->child(card)->text(QAccessible::Name), title);
        QAccessibleInterface* button = QAccessible::queryAccessibleInterface(buttonOf(card));
        EXPECT_EQ(button->role(), QAccessible::Button);
        EXPECT_EQ(button->text(QAccessible::Name), QStringLiteral("Open in App Store: ") + title);
    }
}

TEST_F(CollectionGridFixture, ACardIsKnownByItsNewTitleAfterAReload)
{
    show(1);
    titles = {"Renamed"};
    grid->reloadData();
    EXPECT_EQ(QAccessible::queryAccessibleInterface(grid->cards().front())->text(QAccessible::Name),
              QStringLiteral("Renamed"));
    EXPECT_EQ(buttonOf(0)->accessibleName(), QStringLiteral("Open in App Store: Renamed"));
}

TEST_F(CollectionGridFixture, ItsBackgroundIsClearWhenItIsToldSo)
{
    show(1);
    ASSERT_TRUE(grid->autoFillBackground());
    grid->setBackgroundColors({NS::Color::clearColor});
    pane->setBackgroundColor(NS::Color::clearColor);
    EXPECT_FALSE(grid->autoFillBackground());
    EXPECT_FALSE(pane->viewport()->autoFillBackground());
}

// What cannot be.

TEST_F(CollectionGridFixture, AnItemWithoutASceneIsFatal)
{
    EXPECT_DEATH(static_cast<void>(grid->makeItemWithIdentifier_forIndexPath("no such item", {})),
                 "fatal error: there is no scene \"no such item\" for an item");
}

TEST_F(CollectionGridFixture, ADataSourceThatGivesNoItemIsFatal)
{
    setCount(1);
    forgetful = true;
    EXPECT_DEATH(grid->reloadData(), "fatal error: a collection has no item 0");
}

} // namespace
