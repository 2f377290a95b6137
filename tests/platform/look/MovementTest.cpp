#include "platform/linux/look/Appearance.h"
#include "platform/linux/look/TabMark.h"
#include "platform/linux/scenes/RowList.h"
#include "platform/linux/scenes/RowWidget.h"
#include "platform/linux/scenes/Scenes.h"

#include "extensions/Switch.h"

#include <QStyle>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

using namespace LinuxDesktop;

class MovementTest : public testing::Test {
protected:
    static void wish(Motion motion) { applyAppearance(ColorScheme::Light, Contrast::Normal, motion); }
    static QImage pictureOf(QWidget& widget) { return widget.grab().toImage(); }
    static void show(QWidget& window)
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
};

TEST_F(MovementTest, WhatMovesIsSoonThere)
{
    wish(Motion::Full);
    QWidget widget;
    const int duration = widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget);
    EXPECT_GT(duration, 0);
    EXPECT_LE(duration, 200);
}

class SwitchMovement : public MovementTest {
protected:
    /// The switch that a person has operated, whose wish is carried out; the picture of it that is seen first.
    QImage operate()
    {
        QObject::connect(&widget, &ExtensionsTool::Switch::asked, &widget, &ExtensionsTool::Switch::setOn);
        show(widget);
        widget.click();
        return pictureOf(widget);
    }
    QImage pictureOfOn()
    {
        ExtensionsTool::Switch other;
        other.setOn(true);
        show(other);
        return pictureOf(other);
    }

    ExtensionsTool::Switch widget;
};

TEST_F(SwitchMovement, TheKnobGoesToTheOtherEnd)
{
    wish(Motion::Full);
    EXPECT_NE(operate(), pictureOfOn());
    EXPECT_TRUE(QTest::qWaitFor([&] { return pictureOf(widget) == pictureOfOn(); }));
}

TEST_F(SwitchMovement, TheKnobIsThereAtOnceWhereMotionIsReduced)
{
    wish(Motion::Reduced);
    EXPECT_EQ(operate(), pictureOfOn());
}

TEST_F(SwitchMovement, ASwitchThatNobodyOperatedJustShowsHowThingsAre)
{
    wish(Motion::Full);
    show(widget);
    widget.setOn(true);
    EXPECT_EQ(pictureOf(widget), pictureOfOn());
}

class TabMovement : public MovementTest {
protected:
    void makeBar(Motion motion)
    {
        wish(motion);
        bar = std::make_unique<QTabBar>();
        bar->addTab(QStringLiteral("Menu Items"));
        bar->addTab(QStringLiteral("Folders"));
    }
    QRect place()
    {
        bar->ensurePolished();
        return bar->findChild<TabMark*>()->place();
    }

    std::unique_ptr<QTabBar> bar;
};

TEST_F(TabMovement, TheMarkGoesFromTabToTab)
{
    makeBar(Motion::Full);
    show(*bar);
    const QRect first = place();
    bar->setCurrentIndex(1);
    EXPECT_EQ(place(), first);
    const auto isBelowItsTab = [&] { return bar->tabRect(1).contains(place()); };
    EXPECT_TRUE(QTest::qWaitFor(isBelowItsTab));
    // Back again before it is there, from where it is.
    bar->setCurrentIndex(0);
    const QRect onTheWay = place();
    bar->setCurrentIndex(1);
    EXPECT_EQ(place(), onTheWay);
    EXPECT_TRUE(QTest::qWaitFor(isBelowItsTab));
}

TEST_F(TabMovement, TheMarkIsThereAtOnceWhereMotionIsReducedOrNobodySeesIt)
{
    makeBar(Motion::Reduced);
    show(*bar);
    bar->setCurrentIndex(1);
    EXPECT_TRUE(bar->tabRect(1).contains(place()));
    makeBar(Motion::Full);
    bar->setCurrentIndex(1);
    EXPECT_TRUE(bar->tabRect(1).contains(place()));
    show(*bar);
    EXPECT_TRUE(bar->tabRect(1).contains(place()));
}

class RowMovement : public MovementTest, public NS::TableViewDataSource, public NS::TableViewDelegate {
protected:
    RowMovement()
    {
        list.setDataSource(this);
        list.setDelegate(this);
        list.setRowMaker([](std::string_view identifier) {
            std::unique_ptr<RowWidget> row(qobject_cast<RowWidget*>(makeScene(identifier).release()));
            row->setCell(std::make_unique<NS::TableCellView>());
            return row;
        });
        auto* column = new QVBoxLayout(&window);
        column->addWidget(&list);
        column->addStretch();
        window.resize(300, 300);
    }
    // The list is a member, not the window's to delete.
    ~RowMovement() override { list.setParent(nullptr); }
    std::ptrdiff_t numberOfRowsInTableView(NS::TableView&) override { return rows; }
    NS::TableCellView* tableView_viewForTableColumn_row(NS::TableView& view, const NS::TableColumn*,
                                                        std::ptrdiff_t) override
    {
        return view.makeViewWithIdentifier_owner("tblcell", nullptr);
    }

    /// Which rows are on their way into sight, by their places.
    [[nodiscard]] std::vector<int> appearing() const
    {
        std::vector<int> places;
        for (int place = 0; place < static_cast<int>(list.rowsInSight().size()); ++place) {
            if (list.rowsInSight().at(place)->graphicsEffect())
                places.push_back(place);
        }
        return places;
    }
    void add()
    {
        ++rows;
        list.reloadData();
        window.layout()->activate();
    }

    std::ptrdiff_t rows = 2;
    QWidget window;
    RowList list;
};

TEST_F(RowMovement, ARowThatIsAddedComesIntoSightLittleByLittle)
{
    wish(Motion::Full);
    show(window);
    add();
    EXPECT_EQ(appearing(), std::vector{2});
    EXPECT_TRUE(QTest::qWaitFor([this] { return appearing().empty(); }));
}

TEST_F(RowMovement, NoRowMovesWhereMotionIsReducedOrTheListIsNew)
{
    wish(Motion::Full);
    list.reloadData();
    show(window);
    EXPECT_TRUE(appearing().empty());
    list.reloadData();
    EXPECT_TRUE(appearing().empty());
    wish(Motion::Reduced);
    add();
    EXPECT_TRUE(appearing().empty());
}

} // namespace
