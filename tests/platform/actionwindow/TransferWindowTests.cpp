#include "extension/actions/transfer/window/TransferWindow.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace MenuExtension::Transfers {

namespace {

class TransferWindowTest : public testing::Test {
protected:
    TransferWindowTest()
    {
        QObject::connect(&window, &TransferWindow::decided, [this](const Decision& decision) {
            decisions.push_back(decision.resolution);
            window.showProgress("Moving 2 items");
        });
    }
    ~TransferWindowTest() override { QApplication::setDoubleClickInterval(interval); }

    void ask()
    {
        struct stat status = {};
        status.st_mode = S_IFREG | 0600;
        window.ask({.source = {"/from/name", status}, .target = {"/to/name", status}});
    }
    [[nodiscard]] QPushButton* replace() const
    {
        const auto buttons = window.findChildren<QPushButton*>();
        return *std::ranges::find(buttons, QStringLiteral("Replace"), &QPushButton::text);
    }
    void clickReplace() const { QTest::mouseClick(replace(), Qt::LeftButton); }

    const int interval = QApplication::doubleClickInterval();
    TransferWindow window;
    std::vector<Resolution> decisions;
};

TEST_F(TransferWindowTest, TakesADoubleClickForOneAnswer)
{
    QApplication::setDoubleClickInterval(600'000);
    ask();
    clickReplace();
    EXPECT_EQ(decisions, std::vector{Resolution::Replace});
    ask();
    clickReplace();
    QTest::mouseDClick(replace(), Qt::LeftButton);
    EXPECT_EQ(decisions.size(), 1U);
    // A key is pressed for what is in front.
    QTest::keyClick(replace(), Qt::Key_Return);
    EXPECT_EQ(decisions.size(), 2U);
}

TEST_F(TransferWindowTest, TakesAClickOnTheNextQuestionThatCanHaveBeenSeen)
{
    QApplication::setDoubleClickInterval(1);
    ask();
    clickReplace();
    ask();
    QTest::qWait(2);
    clickReplace();
    EXPECT_EQ(decisions.size(), 2U);
}

} // namespace

} // namespace MenuExtension::Transfers
