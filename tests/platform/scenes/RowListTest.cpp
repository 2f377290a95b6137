#include "platform/linux/scenes/RowList.h"
#include "platform/linux/look/PanelStyle.h"
#include "platform/linux/scenes/CheckBox.h"
#include "platform/linux/scenes/ImageStore.h"
#include "platform/linux/scenes/ImageWidget.h"
#include "platform/linux/scenes/Label.h"
#include "platform/linux/scenes/PushButton.h"
#include "platform/linux/scenes/RowWidget.h"
#include "platform/linux/scenes/SceneConnections.h"
#include "platform/linux/scenes/Scenes.h"
#include "ui/tblcell.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace {

using namespace LinuxDesktop;

/// A list of checkboxes over a vector of states, counting the row views it causes.
class RowListFixture : public testing::Test, public NS::TableViewDataSource, public NS::TableViewDelegate {
protected:
    RowListFixture()
    {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins({});
        layout->addWidget(&before);
        layout->addWidget(&list);
        layout->addWidget(&after);
        list.setProperty("hiddenInRows", QStringLiteral("btnDelete"));
        list.setProperty("emptyState", QStringLiteral("empty"));
        list.setProperty("hiddenWhenEmpty", QStringLiteral("explanation"));
        list.setDataSource(this);
        list.setDelegate(this);
        list.setRowMaker([this](std::string_view identifier) { return makeRow(identifier); });
    }
    // The list is a member, not the window's to delete.
    ~RowListFixture() override
    {
        list.setParent(nullptr);
        before.setParent(nullptr);
        after.setParent(nullptr);
    }

    std::unique_ptr<RowWidget> makeRow(std::string_view identifier)
    {
        std::unique_ptr<QWidget> scene = makeScene(identifier);
        auto* row = qobject_cast<RowWidget*>(scene.get());
        if (!row)
            return nullptr;
        ++rowViewsMade;
        auto cell = std::make_unique<tblcell>();
        SceneConnections connections(row);
        cell->connect(connections);
        row->setCell(std::move(cell));
        scene.release();
        return std::unique_ptr<RowWidget>(row);
    }

    std::ptrdiff_t numberOfRowsInTableView(NS::TableView&) override { return std::ssize(states); }

    NS::TableCellView* tableView_viewForTableColumn_row(NS::TableView& table, const NS::TableColumn*,
                                                        std::ptrdiff_t row) override
    {
        auto* cell = dynamic_cast<tblcell*>(table.makeViewWithIdentifier_owner("tblcell", nullptr));
        if (row == emptyRow)
            return nullptr;
        cell->lbltitle->setStringValue(paths.empty() ? "Row " + std::to_string(row) : paths.at(std::size_t(row)));
        if (missingRow >= 0)
            cell->imgview->setImage(row == missingRow ? ImageStore::missingItem()
                                                      : ImageStore::themeImage({QStringLiteral("folder")}));
        const bool on = states.at(static_cast<std::size_t>(row));
        cell->btnDelete->setTag(row);
        cell->btnDelete->setAction([this](NS::Control& sender) {
            states.erase(states.begin() + sender.tag());
            list.reloadData();
        });
        cell->checkbox->setState(on ? NS::ControlState::On : NS::ControlState::Off);
        cell->checkbox->setTag(row);
        cell->checkbox->setAction([this](NS::Control& sender) {
            const auto index = static_cast<std::size_t>(sender.tag());
            states.at(index) = !states.at(index);
            list.reloadData();
        });
        return cell;
    }

    std::string tableView_typeSelectStringForTableColumn_row(NS::TableView&, const NS::TableColumn*,
                                                             std::ptrdiff_t row) override
    {
        return "Row " + std::to_string(row);
    }

    void show(int rows, int height = 300)
    {
        states.assign(static_cast<std::size_t>(rows), false);
        window.resize(300, height);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    CheckBox* boxOf(const QString& title)
    {
        for (RowWidget* row : list.rowsInSight()) {
            if (row->accessibleName() == title)
                return row->findChild<CheckBox*>();
        }
        return nullptr;
    }

    static QString focusedTitle()
    {
        const QWidget* focused = QApplication::focusWidget();
        return focused ? focused->accessibleName() : QString();
    }

    QWidget window;
    QPushButton before;
    RowList list;
    QPushButton after;
    std::vector<bool> states;
    std::vector<std::string> paths;
    std::ptrdiff_t emptyRow = -1;
    std::ptrdiff_t missingRow = -1;
    int rowViewsMade = 0;
};

TEST_F(RowListFixture, ShowsItsRowsInOrderFromTheTop)
{
    show(3);
    const QList<RowWidget*> rows = list.rowsInSight();
    ASSERT_EQ(rows.size(), 3);
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(rows.at(row)->accessibleName(), QStringLiteral("Row %1").arg(row));
        EXPECT_EQ(rows.at(row)->y(), row * rows.at(row)->height());
        EXPECT_TRUE(rows.at(row)->isVisible());
    }
}

TEST_F(RowListFixture, ARowsControlsAreNamedByItsTitleAndAButtonByWhatItDoesToo)
{
    list.setProperty("hiddenInRows", QString());
    show(2);
    for (int number = 0; number < 2; ++number) {
        const QString title = QStringLiteral("Row %1").arg(number);
        const RowWidget* row = list.rowsInSight().at(number);
        EXPECT_EQ(row->findChild<CheckBox*>()->accessibleName(), title);
        EXPECT_EQ(row->findChild<QPushButton*>()->accessibleName(), QStringLiteral("Delete ") + title);
    }
}

TEST_F(RowListFixture, ATenThousandRowListMakesRowViewsForTheRowsInSightOnly)
{
    show(10'000);
    const auto inSight = list.rowsInSight().size();
    EXPECT_LT(inSight, 20);
    for (int position = 0; position < list.verticalScrollBar()->maximum(); position += 997)
        list.verticalScrollBar()->setValue(position);
    // Half a row may show at either end.
    EXPECT_LE(rowViewsMade, inSight + 2);
}

TEST_F(RowListFixture, ScrollingMakesNoRowViews)
{
    show(500);
    const int made = rowViewsMade;
    QScrollBar& bar = *list.verticalScrollBar();
    for (int value = 0; value <= bar.maximum(); value += 7) {
        bar.setValue(value);
        QApplication::processEvents();
    }
    EXPECT_EQ(rowViewsMade, made);
}

TEST_F(RowListFixture, ScrollingToTheEndShowsTheLastRowWhole)
{
    show(1000);
    list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum());
    CheckBox* last = boxOf(QStringLiteral("Row 999"));
    ASSERT_NE(last, nullptr);
    const QWidget* row = last->parentWidget();
    EXPECT_EQ(row->y() + row->height(), list.viewport()->height());
}

TEST_F(RowListFixture, AClickOnACheckboxOfAScrolledListTogglesThatRow)
{
    show(1000);
    list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum() / 2);
    RowWidget* row = list.rowsInSight().at(2);
    const int number = row->accessibleName().section(QLatin1Char(' '), 1).toInt();
    CheckBox* box = row->findChild<CheckBox*>();
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    for (int other = 0; other < 1000; ++other)
        EXPECT_EQ(states.at(static_cast<std::size_t>(other)), other == number) << other;
    EXPECT_TRUE(box->isChecked());
}

TEST_F(RowListFixture, AReloadKeepsTheFocusOnTheRowThatHadIt)
{
    show(5);
    CheckBox* box = boxOf(QStringLiteral("Row 3"));
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_TRUE(states.at(3));
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 3"));
    EXPECT_EQ(QApplication::focusWidget(), box);
}

TEST_F(RowListFixture, AReusedRowKeepsWhatTheListLeavesUntouched)
{
    show(1);
    auto* button = list.rowsInSight().first()->findChild<PushButton*>();
    button->setText(QStringLiteral("mine"));
    list.reloadData();
    EXPECT_EQ(list.rowsInSight().first()->findChild<PushButton*>()->text(), QStringLiteral("mine"));
}

TEST_F(RowListFixture, TheArrowAndPageKeysMoveThroughTheRowsAndScroll)
{
    show(100);
    boxOf(QStringLiteral("Row 0"))->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 1"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 0"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 99"));
    EXPECT_EQ(list.verticalScrollBar()->value(), list.verticalScrollBar()->maximum());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp);
    EXPECT_NE(focusedTitle(), QStringLiteral("Row 99"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 0"));
}

TEST_F(RowListFixture, TabEntersTheListAtItsCurrentRowAndLeavesItAgainBothWays)
{
    show(50);
    before.setFocus();
    QTest::keyClick(&before, Qt::Key_Tab);
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 0"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &after);
    QTest::keyClick(&after, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 1"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), &before);
}

TEST_F(RowListFixture, ACurrentRowThatIsScrolledAwayIsStillReachedWithTab)
{
    show(500);
    boxOf(QStringLiteral("Row 0"))->setFocus();
    list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum());
    EXPECT_EQ(QApplication::focusWidget(), &list);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 1"));

    list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum());
    before.setFocus();
    QTest::keyClick(&before, Qt::Key_Tab);
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 1"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &after);
}

TEST_F(RowListFixture, AScrolledListStaysWhereItIsWhenTheWindowIsComeBackTo)
{
    list.setProperty("selectable", true);
    show(500);
    QTest::mouseClick(list.rowsInSight().at(1), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(list.selectedRow(), 1);
    const int scrolled = list.verticalScrollBar()->maximum() / 2;
    list.verticalScrollBar()->setValue(scrolled);

    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

    EXPECT_EQ(QApplication::focusWidget(), &list);
    EXPECT_EQ(list.verticalScrollBar()->value(), scrolled);
    EXPECT_EQ(list.selectedRow(), 1);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 2"));
}

TEST_F(RowListFixture, AClickOnARowOfAScrolledListSelectsThatRow)
{
    list.setProperty("selectable", true);
    show(300);
    before.setFocus();
    const int scrolled = list.verticalScrollBar()->maximum() / 2;
    list.verticalScrollBar()->setValue(scrolled);
    RowWidget* row = list.rowsInSight().at(3);
    const QString title = row->accessibleName();
    QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(2, 2));

    EXPECT_EQ(list.verticalScrollBar()->value(), scrolled);
    EXPECT_EQ(QStringLiteral("Row %1").arg(list.selectedRow()), title);
    EXPECT_EQ(focusedTitle(), title);
}

TEST_F(RowListFixture, TheRowBeforeTheLastTakesOverWhenThatGoesBehindAQuestion)
{
    list.setProperty("selectable", true);
    show(300);
    boxOf(QStringLiteral("Row 0"))->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    EXPECT_EQ(list.selectedRow(), 299);
    QDialog question(&window);
    question.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&question));
    states.pop_back();
    list.reloadData();
    question.close();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

    EXPECT_EQ(list.selectedRow(), 298);
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 298"));
}

TEST_F(RowListFixture, TheRowBeforeTheLastTakesOverTheFocusWithoutASelectionToo)
{
    show(60);
    boxOf(QStringLiteral("Row 0"))->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    states.pop_back();
    list.reloadData();

    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 58"));
}

TEST_F(RowListFixture, TheSelectionStaysAtTheEndWhenTheLastRowGoes)
{
    list.setProperty("selectable", true);
    show(3);
    QTest::mouseClick(list.rowsInSight().at(2), Qt::LeftButton, {}, QPoint(2, 2));
    states.pop_back();
    list.reloadData();
    EXPECT_EQ(list.selectedRow(), 1);

    states.clear();
    list.reloadData();
    EXPECT_EQ(list.selectedRow(), -1);
}

TEST_F(RowListFixture, AClickAnywhereOnARowSwitchesItsCheckboxWhereNoRowCanBeSelected)
{
    show(3);
    RowWidget* row = list.rowsInSight().at(1);
    const QPoint beside(2, 2);
    QTest::mouseClick(row, Qt::LeftButton, {}, beside);
    EXPECT_EQ(states, (std::vector{false, true, false}));
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 1"));
    // Twice at once is off and on again.
    QTest::mouseClick(row, Qt::LeftButton, {}, beside);
    QMouseEvent second(QEvent::MouseButtonDblClick, beside, row->mapToGlobal(beside), Qt::LeftButton, Qt::LeftButton,
                       {});
    QApplication::sendEvent(row, &second);
    QTest::mouseRelease(row, Qt::LeftButton, {}, beside);
    EXPECT_EQ(states, (std::vector{false, true, false}));
    auto* title = row->findChild<QLabel*>();
    QTest::mouseClick(title, Qt::LeftButton, {}, title->rect().center());
    EXPECT_EQ(states, (std::vector{false, false, false}));
}

TEST_F(RowListFixture, ARowIsNotSwitchedByAnotherButtonOrByAPressThatIsLetGoBesideIt)
{
    show(3);
    RowWidget* row = list.rowsInSight().at(1);
    QTest::mouseClick(row, Qt::RightButton, {}, QPoint(2, 2));
    QTest::mousePress(row, Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_TRUE(boxOf(QStringLiteral("Row 1"))->isDown());
    QTest::mouseRelease(row, Qt::LeftButton, {}, QPoint(2, -4));
    EXPECT_EQ(states, (std::vector{false, false, false}));
    EXPECT_FALSE(boxOf(QStringLiteral("Row 1"))->isDown());
}

TEST_F(RowListFixture, WhereRowsCanBeSelectedAClickSelectsAndSwitchesNothing)
{
    list.setProperty("selectable", true);
    show(3);
    QTest::mouseClick(list.rowsInSight().at(1), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(list.selectedRow(), 1);
    EXPECT_EQ(states, (std::vector{false, false, false}));
}

TEST_F(RowListFixture, AfterADeletionTheKeyboardIsOnTheRowThatFollowsAndNotOnItsButton)
{
    list.setProperty("hiddenInRows", QStringLiteral("checkbox"));
    show(3);
    auto* button = list.rowsInSight().at(1)->findChild<PushButton*>();
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    ASSERT_EQ(states.size(), 2U);
    EXPECT_EQ(QApplication::focusWidget(), list.rowsInSight().at(1));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(states.size(), 2U);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), list.rowsInSight().at(1)->findChild<PushButton*>());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_EQ(states.size(), 1U);
    EXPECT_EQ(QApplication::focusWidget(), list.rowsInSight().at(0));
}

TEST_F(RowListFixture, AfterTheDeletionOfTheLastTheKeyboardIsOnWhatComesAfterTheList)
{
    list.setProperty("hiddenInRows", QStringLiteral("checkbox"));
    QWidget empty(&window);
    empty.setObjectName(QStringLiteral("empty"));
    QWidget explanation(&window);
    explanation.setObjectName(QStringLiteral("explanation"));
    show(1);
    auto* button = list.rowsInSight().at(0)->findChild<PushButton*>();
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Return);
    ASSERT_TRUE(states.empty());
    EXPECT_EQ(QApplication::focusWidget(), &after);
}

TEST_F(RowListFixture, AfterTheDeletionOfTheSelectedRowTheKeyboardIsOnTheRowThatFollows)
{
    list.setProperty("selectable", true);
    show(3);
    QTest::mouseClick(list.rowsInSight().at(1), Qt::LeftButton, {}, QPoint(2, 2));
    after.setFocus();
    states.pop_back();
    list.reloadData();
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 1"));
}

TEST_F(RowListFixture, ARowThatHasTheKeyboardItselfShowsIt)
{
    list.setProperty("hiddenInRows", QStringLiteral("checkbox"));
    show(2);
    PanelStyle style;
    RowWidget* row = list.rowsInSight().at(1);
    row->setStyle(&style);
    const QImage without = row->grab().toImage();
    window.setAttribute(Qt::WA_KeyboardFocusChange);
    row->setFocus(Qt::TabFocusReason);
    EXPECT_NE(row->grab().toImage(), without);
    row->setStyle(nullptr);
}

TEST_F(RowListFixture, TypedLettersLeadToARowOutOfSight)
{
    show(300);
    boxOf(QStringLiteral("Row 0"))->setFocus();
    for (const char letter : std::string_view("row 2"))
        QTest::keyClick(QApplication::focusWidget(), letter);
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 2"));
    QTest::keyClick(QApplication::focusWidget(), '7');
    QTest::keyClick(QApplication::focusWidget(), '1');
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 271"));
    EXPECT_FALSE(states.at(0));
}

TEST_F(RowListFixture, WhoGoesElsewhereBeginsAnewToType)
{
    show(30);
    boxOf(QStringLiteral("Row 0"))->setFocus();
    for (const char letter : std::string_view("row 2"))
        QTest::keyClick(QApplication::focusWidget(), letter);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), 'r');
    EXPECT_EQ(focusedTitle(), QStringLiteral("Row 4"));
}

TEST_F(RowListFixture, AnEmptyListGivesItsPlaceToWhatShowsInstead)
{
    QWidget empty(&window);
    empty.setObjectName(QStringLiteral("empty"));
    QWidget explanation(&window);
    explanation.setObjectName(QStringLiteral("explanation"));
    show(0);
    EXPECT_TRUE(empty.isVisible());
    EXPECT_FALSE(list.isVisible());
    EXPECT_FALSE(explanation.isVisible());
    states.assign(1, false);
    list.reloadData();
    EXPECT_FALSE(empty.isVisible());
    EXPECT_TRUE(list.isVisible());
    EXPECT_TRUE(explanation.isVisible());
    EXPECT_EQ(list.rowsInSight().size(), 1);
}

TEST_F(RowListFixture, AListIsAsHighAsItsRowsWhereThereIsRoom)
{
    show(3, 600);
    const auto heightOf = [&](int rows) { return rows * list.rowsInSight().front()->height() + 2; };
    const auto hasRows = [&](int rows) {
        return QTest::qWaitFor([&, rows] { return list.height() == heightOf(rows); });
    };
    EXPECT_GE(list.rowsInSight().front()->height(), 44);
    EXPECT_TRUE(hasRows(3));
    states.assign(5, false);
    list.reloadData();
    EXPECT_TRUE(hasRows(5));
    states.assign(100, false);
    list.reloadData();
    EXPECT_TRUE(QTest::qWaitFor([&] { return list.height() > heightOf(5); }));
    EXPECT_LT(list.height(), 600);
}

TEST_F(RowListFixture, ARowOfAFolderShowsItsNameAndItsPathAndThatItIsNotThere)
{
    list.setProperty("showsFolders", true);
    const std::string home = QDir::homePath().toStdString();
    paths = {"/srv/Projects", home + "/Pictures/", home, "/"};
    missingRow = 0;
    show(4, 400);
    const auto textOf = [&](int row, const char* label) {
        auto* found = list.rowsInSight().at(row)->findChild<Label*>(QLatin1String(label));
        return found->isVisible() ? found->text() : QString();
    };
    EXPECT_EQ(textOf(0, "lbltitle"), QStringLiteral("Projects"));
    EXPECT_EQ(textOf(0, "lblsubtitle"), QStringLiteral("/srv/Projects"));
    EXPECT_EQ(textOf(1, "lbltitle"), QStringLiteral("Pictures"));
    EXPECT_EQ(textOf(1, "lblsubtitle"), QStringLiteral("~/Pictures/"));
    EXPECT_EQ(textOf(2, "lblsubtitle"), QStringLiteral("~"));
    EXPECT_EQ(textOf(3, "lbltitle"), QStringLiteral("/"));
    EXPECT_EQ(textOf(0, "lblmissing"), QStringLiteral("Not found"));
    EXPECT_EQ(textOf(1, "lblmissing"), QString());
    EXPECT_EQ(list.rowsInSight().front()->accessibleName(), QStringLiteral("/srv/Projects"));
    missingRow = 1;
    list.reloadData();
    EXPECT_EQ(textOf(0, "lblmissing"), QString());
    EXPECT_EQ(textOf(1, "lblmissing"), QStringLiteral("Not found"));
}

TEST_F(RowListFixture, ARowsTextBeginsBesideItsPictureInBothDirections)
{
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        window.setLayoutDirection(direction);
        show(1);
        QCoreApplication::processEvents();
        const RowWidget* row = list.rowsInSight().front();
        const bool isMirrored = direction == Qt::RightToLeft;
        EXPECT_EQ(row->findChild<ImageWidget*>()->x() > row->findChild<CheckBox*>()->x(), isMirrored);
    }
}

TEST_F(RowListFixture, AListThatShrinksShowsNoRowOfBefore)
{
    show(8, 500);
    boxOf(QStringLiteral("Row 7"))->setFocus();
    states.assign(2, true);
    list.reloadData();
    EXPECT_EQ(list.rowsInSight().size(), 2);
    int visible = 0;
    for (const RowWidget* row : list.viewport()->findChildren<RowWidget*>())
        visible += row->isVisible() ? 1 : 0;
    EXPECT_EQ(visible, 2);
    EXPECT_TRUE(window.isAncestorOf(QApplication::focusWidget()));
}

TEST_F(RowListFixture, AListReloadedOutOfSightShowsTheNewRowsWhenItComesBack)
{
    show(3);
    list.hide();
    states.assign(3, true);
    list.reloadData();
    list.show();
    EXPECT_TRUE(boxOf(QStringLiteral("Row 1"))->isChecked());
}

TEST_F(RowListFixture, ARowThatTheDelegateHasNoViewForAnyMoreDisappears)
{
    show(3);
    emptyRow = 1;
    list.reloadData();
    int visible = 0;
    for (const RowWidget* row : list.viewport()->findChildren<RowWidget*>())
        visible += row->isVisible() ? 1 : 0;
    EXPECT_EQ(visible, 2);
}

TEST_F(RowListFixture, ARowThatTheDelegateHasNoViewForStaysEmpty)
{
    emptyRow = 1;
    show(3);
    EXPECT_EQ(boxOf(QStringLiteral("Row 1")), nullptr);
    EXPECT_NE(boxOf(QStringLiteral("Row 2")), nullptr);
    EXPECT_EQ(list.rowsInSight().size(), 2);
}

TEST_F(RowListFixture, AnIdentifierWithoutASceneGivesNoView)
{
    show(1);
    EXPECT_EQ(list.makeViewWithIdentifier_owner("no such row", nullptr), nullptr);
}

TEST_F(RowListFixture, AssistiveProgramsFindTheRowsAndTheirCheckboxesByTitle)
{
    show(3);
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&list);
    ASSERT_NE(face, nullptr);
    EXPECT_EQ(face->role(), QAccessible::List);
    ASSERT_EQ(face->childCount(), 3);
    for (int row = 0; row < 3; ++row) {
        QAccessibleInterface* item = face->child(row);
        const QString title = QStringLiteral("Row %1").arg(row);
        EXPECT_EQ(item->role(), QAccessible::ListItem);
        EXPECT_EQ(item->text(QAccessible::Name), title);
        EXPECT_EQ(item->parent(), face);
        EXPECT_EQ(face->indexOfChild(item), row);
        QAccessibleInterface* box = QAccessible::queryAccessibleInterface(boxOf(title));
        EXPECT_EQ(box->role(), QAccessible::CheckBox);
        EXPECT_EQ(box->text(QAccessible::Name), title);
    }
    QAccessibleInterface* box = QAccessible::queryAccessibleInterface(boxOf(QStringLiteral("Row 2")));
    box->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(states.at(2));
    EXPECT_TRUE(box->state().checked);
}

TEST_F(RowListFixture, TheRowsGrowWithTheFont)
{
    show(3);
    const int height = list.rowsInSight().first()->height();
    QFont font = list.font();
    font.setPointSizeF(font.pointSizeF() * 3);
    list.setFont(font);
    EXPECT_GT(list.rowsInSight().first()->height(), height);
}

} // namespace
