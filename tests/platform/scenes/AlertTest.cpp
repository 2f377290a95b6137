#include "platform/linux/scenes/WidgetAlert.h"

#include "platform/linux/scenes/AlertDialog.h"
#include "platform/linux/scenes/MainWindow.h"
#include "platform/linux/scenes/ModalBlock.h"

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace {

using namespace LinuxDesktop;

class AlertTest : public testing::Test {
protected:
    AlertTest()
    {
        window.show();
        alert->setMessageText("Remove?");
        alert->addButtonWithTitle("OK");
        alert->addButtonWithTitle("Cancel");
    }

    [[nodiscard]] AlertDialog& dialog() { return dynamic_cast<AlertDialog&>(alert->window()); }
    [[nodiscard]] PushButton& button(std::size_t index) { return *dialog().buttons().at(index); }

    ModalState modalState;
    MainWindow window;
    std::unique_ptr<WidgetAlert> alert = std::make_unique<WidgetAlert>(modalState);
};

TEST_F(AlertTest, ASheetIsAttachedToItsWindowAndBlocksItAlone)
{
    alert->beginSheetModalForWindow(window);

    EXPECT_TRUE(dialog().isVisible());
    EXPECT_EQ(dialog().parentWidget(), &window);
    EXPECT_EQ(dialog().windowModality(), Qt::WindowModal);
    EXPECT_FALSE(modalState.active());
}

TEST_F(AlertTest, ASheetHasTheKeyboardInThePlaceOfItsWindowAndWhatBlocksItInThePlaceOfBoth)
{
    EXPECT_EQ(panelInFrontOf(window), nullptr);
    alert->beginSheetModalForWindow(window);
    EXPECT_EQ(panelInFrontOf(window), &dialog());
    EXPECT_EQ(panelInFrontOf(dialog()), nullptr);
    MainWindow other;
    other.show();
    EXPECT_EQ(panelInFrontOf(other), nullptr);
    QDialog panel;
    panel.setWindowModality(Qt::ApplicationModal);
    panel.show();
    EXPECT_EQ(panelInFrontOf(window), &panel);
    EXPECT_EQ(panelInFrontOf(other), &panel);
}

TEST_F(AlertTest, AButtonDismissesTheSheet)
{
    alert->beginSheetModalForWindow(window);
    const QPointer<AlertDialog> sheet = &dialog();

    button(1).click();

    EXPECT_FALSE(sheet->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(sheet.isNull());
}

TEST_F(AlertTest, AButtonWithAnActionOfItsOwnDoesThatAlone)
{
    int pressed = 0;
    alert->buttons().at(0)->setAction([&](NS::Control&) { ++pressed; });
    alert->beginSheetModalForWindow(window);

    button(0).click();

    EXPECT_EQ(pressed, 1);
    EXPECT_TRUE(dialog().isVisible());
    window.endSheet(alert->window());
    EXPECT_FALSE(dialog().isVisible());
}

TEST_F(AlertTest, EscapePressesTheLastButton)
{
    int cancelled = 0;
    alert->buttons().at(1)->setAction([&](NS::Control&) { ++cancelled; });
    alert->beginSheetModalForWindow(window);

    QTest::keyClick(&dialog(), Qt::Key_Escape);

    EXPECT_EQ(cancelled, 1);
}

TEST_F(AlertTest, ReturnPressesTheFirstButton)
{
    int confirmed = 0;
    alert->buttons().at(0)->setAction([&](NS::Control&) { ++confirmed; });
    alert->beginSheetModalForWindow(window);

    QTest::keyClick(&dialog(), Qt::Key_Return);

    EXPECT_EQ(confirmed, 1);
}

TEST_F(AlertTest, ASheetStaysUpWhenItsAlertGoes)
{
    alert->beginSheetModalForWindow(window);
    const QPointer<AlertDialog> sheet = &dialog();

    alert.reset();

    ASSERT_FALSE(sheet.isNull());
    EXPECT_TRUE(sheet->isVisible());
}

TEST_F(AlertTest, AnAlertThatWasNeverShownLeavesNothingBehind)
{
    const QPointer<AlertDialog> made = &dialog();

    alert.reset();

    EXPECT_TRUE(made.isNull());
}

TEST_F(AlertTest, WithoutAnythingAskedOfItAnAlertHasNoWindow)
{
    const auto before = QApplication::topLevelWidgets().size();

    const WidgetAlert idle(modalState);

    EXPECT_EQ(QApplication::topLevelWidgets().size(), before);
}

TEST_F(AlertTest, RunningModallyBlocksUntilAButtonAnswers)
{
    bool wasModal = false;
    QTimer::singleShot(0, &window, [&] {
        wasModal = modalState.active() && QApplication::activeModalWidget() == &dialog();
        button(0).click();
    });

    alert->runModal();

    EXPECT_TRUE(wasModal);
    EXPECT_FALSE(modalState.active());
    EXPECT_FALSE(dialog().isVisible());
}

TEST_F(AlertTest, IsTitledWithTheApplicationsNameWhateverItsWindowIsCalled)
{
    window.setWindowTitle(QStringLiteral("A Title"));
    alert->beginSheetModalForWindow(window);

    EXPECT_EQ(dialog().windowTitle(), QStringLiteral("Orvik Menu"));
}

TEST_F(AlertTest, ShowsTheApplicationsIconInBothStyles)
{
    QPixmap drawing(64, 64);
    drawing.fill(Qt::magenta);
    QApplication::setWindowIcon(QIcon(drawing));
    for (const auto style : {NS::AlertStyle::Warning, NS::AlertStyle::Informational}) {
        WidgetAlert shown(modalState);
        shown.setAlertStyle(style);
        const auto labels = dynamic_cast<AlertDialog&>(shown.window()).findChildren<QLabel*>();
        const auto icon =
            std::find_if(labels.begin(), labels.end(), [](const QLabel* label) { return !label->pixmap().isNull(); });
        ASSERT_NE(icon, labels.end());
        EXPECT_EQ((*icon)->pixmap().toImage().pixelColor(32, 32), QColor(Qt::magenta));
    }
    QApplication::setWindowIcon({});
}

TEST_F(AlertTest, ItsFirstButtonStaysThePrimaryOneWhicheverHasTheKeyboard)
{
    alert->beginSheetModalForWindow(window);
    button(1).setFocus(Qt::TabFocusReason);

    EXPECT_TRUE(button(0).property("primary").toBool());
    EXPECT_FALSE(button(1).property("primary").toBool());
}

TEST_F(AlertTest, ALongMessageIsWrappedAndNeverCut)
{
    alert->setMessageText(
        "You have succeeded in something that takes a great many words to tell, so many that no line "
        "of an alert could ever hold all of them, however wide the screen it is shown on.");
    alert->beginSheetModalForWindow(window);
    QCoreApplication::processEvents();

    for (const QLabel* label : dialog().findChildren<QLabel*>()) {
        if (label->isVisible() && !label->text().isEmpty()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width()));
        }
    }
    EXPECT_LE(dialog().width(), 640);
}

} // namespace
