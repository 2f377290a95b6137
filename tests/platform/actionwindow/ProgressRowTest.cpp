#include "extension/actions/window/ProgressRow.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace MenuExtension {

namespace {

using namespace std::chrono_literals;

class ProgressRowTest : public testing::Test {
protected:
    ProgressRowTest() { parent.show(); }

    QWidget parent;
    ProgressRow row{&parent};
    QProgressBar& bar = *row.findChild<QProgressBar*>();
    QLabel& words = *row.findChild<QLabel*>();
    QPushButton& cancel = *row.findChild<QPushButton*>();
};

TEST_F(ProgressRowTest, ShowsAfterAMomentAndGoesAtTheEnd)
{
    EXPECT_FALSE(row.isVisible());
    row.start("Comparing files");
    EXPECT_FALSE(row.isVisible());
    ASSERT_TRUE(QTest::qWaitFor([this] { return row.isVisible(); }));
    EXPECT_EQ(words.text(), "Comparing files");
    EXPECT_EQ(bar.accessibleName(), "Comparing files");
    EXPECT_EQ(bar.maximum(), 0);

    row.finish();
    EXPECT_FALSE(row.isVisible());
}

TEST_F(ProgressRowTest, WorkThatIsShortShowsNothing)
{
    row.start("Comparing files");
    row.finish();
    QTest::qWait(600);
    EXPECT_FALSE(row.isVisible());
}

TEST_F(ProgressRowTest, TellsHowFarItHasCome)
{
    row.start("Comparing files");
    row.advance(std::uint64_t{1} << 40U, std::uint64_t{1} << 42U, "1 of 4 TB");
    ASSERT_TRUE(QTest::qWaitFor([this] { return words.text() == "1 of 4 TB"; }));
    EXPECT_EQ(bar.value() * 4, bar.maximum());
    // More than there seemed to be is no more than all.
    row.advance(5, 4, "5 of 4");
    ASSERT_TRUE(QTest::qWaitFor([this] { return words.text() == "5 of 4"; }));
    EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(ProgressRowTest, CancelIsSaidOnceAWork)
{
    QSignalSpy cancelled(&row, &ProgressRow::cancelled);
    row.start("Comparing files");
    cancel.click();
    cancel.click();
    EXPECT_EQ(cancelled.count(), 1);
    row.start("Comparing files");
    cancel.click();
    EXPECT_EQ(cancelled.count(), 2);
}

TEST(RemainingTimeText, IsRoundedAsPeopleSayIt)
{
    EXPECT_EQ(remainingTimeText(0s), "a few seconds left");
    EXPECT_EQ(remainingTimeText(4s), "a few seconds left");
    EXPECT_EQ(remainingTimeText(6s), "about 10 seconds left");
    EXPECT_EQ(remainingTimeText(54s), "about 55 seconds left");
    EXPECT_EQ(remainingTimeText(55s), "about a minute left");
    EXPECT_EQ(remainingTimeText(89s), "about a minute left");
    EXPECT_EQ(remainingTimeText(90s), "about 2 minutes left");
    EXPECT_EQ(remainingTimeText(54min), "about 54 minutes left");
    EXPECT_EQ(remainingTimeText(55min), "about an hour left");
    EXPECT_EQ(remainingTimeText(90min), "about 2 hours left");
    EXPECT_EQ(remainingTimeText(std::chrono::seconds::max() / 2), "about 9999 hours left");
}

} // namespace

} // namespace MenuExtension
