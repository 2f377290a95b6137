#include "platform/linux/scenes/Paragraph.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

namespace {

using LinuxDesktop::Paragraph;

class ParagraphFixture : public testing::Test {
protected:
    ParagraphFixture()
    {
        paragraph.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        paragraph.setStringValue("One sentence of a length that takes three lines and some more in a narrow place.");
    }
    ~ParagraphFixture() override { QToolTip::hideText(); }

    /// Room for this many lines and a half.
    void show(int lines)
    {
        paragraph.resize(160, lines * paragraph.fontMetrics().lineSpacing() + paragraph.fontMetrics().height() / 2);
        paragraph.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&paragraph));
    }

    [[nodiscard]] QImage picture() { return paragraph.grab().toImage(); }

    /// Whether anything is drawn in the lines of pixels from `from` on.
    [[nodiscard]] bool hasInkBelow(int from)
    {
        const QImage image = picture();
        for (int y = from; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) != image.pixelColor(image.width() - 1, image.height() - 1))
                    return true;
            }
        }
        return false;
    }

    [[nodiscard]] QString tipShown()
    {
        QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), paragraph.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&paragraph, &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }

    Paragraph paragraph;
};

TEST_F(ParagraphFixture, TakesWhateverRoomItsSceneLeaves)
{
    EXPECT_FALSE(paragraph.hasHeightForWidth());
    EXPECT_EQ(paragraph.minimumSizeHint().expandedTo({0, 0}), QSize(0, 0));
    EXPECT_TRUE(paragraph.wordWrap());
}

TEST_F(ParagraphFixture, ATextThatFitsIsShownWholeAndHasNoToolTip)
{
    show(10);
    EXPECT_TRUE(hasInkBelow(2 * paragraph.fontMetrics().lineSpacing()));
    EXPECT_EQ(tipShown(), QString());
}

TEST_F(ParagraphFixture, ATextThatDoesNotFitShowsWholeLinesOnlyAndIsItsToolTip)
{
    show(2);
    EXPECT_TRUE(hasInkBelow(paragraph.fontMetrics().lineSpacing()));
    EXPECT_FALSE(hasInkBelow(2 * paragraph.fontMetrics().lineSpacing()));
    EXPECT_TRUE(tipShown().contains(paragraph.text())) << tipShown().toStdString();
}

TEST_F(ParagraphFixture, TheFirstLineOfACutTextIsTheSameAsOfTheWhole)
{
    show(10);
    const QRect firstLine(0, 0, 160, paragraph.fontMetrics().lineSpacing());
    const QImage whole = picture().copy(firstLine);
    show(2);
    EXPECT_EQ(picture().copy(firstLine), whole);
}

} // namespace
