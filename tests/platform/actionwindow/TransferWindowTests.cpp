#include "extension/actions/transfer/window/TransferWindow.h"

#include "extension/actions/transfer/window/TransferWords.h"
#include "platform/linux/look/FitToScreen.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
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

    void ask(const std::string& folder = "to", const std::string& name = "name")
    {
        struct stat status = {};
        status.st_mode = S_IFREG | 0600;
        const std::string target = "/" + folder + "/" + name;
        window.ask({.source = {"/from/" + name, status}, .target = {target, status}});
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

class LongNames : public TransferWindowTest, public testing::WithParamInterface<std::string> {
protected:
    /// A page that says `words`, its title too, has the usual width, its buttons in sight, and room for the words.
    void expectPage(const QString& words)
    {
        EXPECT_EQ(window.windowTitle(), words);
        EXPECT_EQ(window.width(), 640);
        EXPECT_LE(window.height(), LinuxDesktop::roomOnScreen(window).height());
        for (const QPushButton* button : window.findChildren<QPushButton*>()) {
            if (button->isVisible()) {
                EXPECT_TRUE(window.rect().contains(QRect(button->mapTo(&window, QPoint()), button->size())))
                    << button->text().toStdString();
            }
        }
        int headings = 0;
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            if (!label->isVisible() || label->text() != words)
                continue;
            ++headings;
            const QFontMetrics letters = label->fontMetrics();
            EXPECT_GE(label->height() / letters.height() * label->width(), letters.horizontalAdvance(words));
        }
        EXPECT_EQ(headings, 1);
    }
};

TEST_P(LongNames, LeaveTheQuestionAsWideAsItIs)
{
    ask(GetParam(), GetParam());
    const QString name = Words::name(GetParam());
    expectPage(QStringLiteral("There is a file %1 in %1 already.").arg(name));
}

TEST_P(LongNames, LeaveTheProgressAsWideAsItIs)
{
    const QString words = Words::doing(true, {"/from/" + GetParam()}, "/" + GetParam());
    window.showProgress(words);
    window.show();
    expectPage(words);
}

TEST_P(LongNames, LeaveTheEndAsWideAsItIs)
{
    Result result;
    result.done = 1;
    const QString words = Words::done(true, {"/from/" + GetParam()}, "/" + GetParam(), result);
    window.showEnd(words, {}, true, true);
    expectPage(words);
}

INSTANTIATE_TEST_SUITE_P(TransferWindow, LongNames,
                         testing::Values("name", std::string(64, 'n'), std::string(255, 'n'), std::string(255, 'W')));

} // namespace

} // namespace MenuExtension::Transfers
