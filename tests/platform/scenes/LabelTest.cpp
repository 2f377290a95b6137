#include "platform/linux/scenes/Label.h"

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

namespace {

using namespace LinuxDesktop;

const std::string longPath = "/home/someone/a rather long name/another rather long name/the last of the names";

class LabelTest : public testing::Test {
protected:
    LabelTest()
    {
        label.setProperty("fileName", true);
        label.resize(160, 24);
    }
    ~LabelTest() override { QToolTip::hideText(); }

    [[nodiscard]] QString toolTipOf(Label& asked) const
    {
        asked.show();
        QHelpEvent event(QEvent::ToolTip, {4, 4}, asked.mapToGlobal(QPoint(4, 4)));
        QCoreApplication::sendEvent(&asked, &event);
        // It may be broken anywhere.
        return QToolTip::text().remove(QChar(0x200B));
    }
    [[nodiscard]] QImage picture() { return label.grab().toImage(); }

    Label label;
};

TEST_F(LabelTest, ATextThatFitsHasNoToolTip)
{
    label.setStringValue("/home");

    EXPECT_EQ(toolTipOf(label), QString());
}

TEST_F(LabelTest, ATextThatIsCutHasTheWholeOfItAsItsToolTip)
{
    label.setStringValue(longPath);

    EXPECT_TRUE(toolTipOf(label).contains(QString::fromStdString(longPath)));
}

TEST_F(LabelTest, ATextIsCutInItsMiddle)
{
    label.setStringValue(longPath);
    const QImage shown = picture();

    label.setStringValue(
        label.fontMetrics().elidedText(QString::fromStdString(longPath), Qt::ElideMiddle, 160).toStdString());
    EXPECT_EQ(picture(), shown);
}

TEST_F(LabelTest, AGivenToolTipIsShownWhetherTheTextIsCutOrNot)
{
    label.setStringValue("Projects");
    label.setToolTip("/home/someone/Projects");
    EXPECT_TRUE(toolTipOf(label).contains(QStringLiteral("/home/someone/Projects")));

    label.setToolTip("");
    static_cast<void>(toolTipOf(label));
    // It goes slowly.
    EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::text().isEmpty(); }));
}

TEST_F(LabelTest, AToolTipOfOneLongNameFitsTheScreen)
{
    label.setStringValue("/srv/" + std::string(250, 'n'));
    static_cast<void>(toolTipOf(label));

    int tips = 0;
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->windowType() == Qt::ToolTip) {
            ++tips;
            EXPECT_LT(widget->width(), 640);
        }
    }
    EXPECT_EQ(tips, 1);
}

TEST_F(LabelTest, MarkupInANameIsNotTakenForMarkup)
{
    label.setStringValue("Projects");
    label.setToolTip("/a<b>&c");

    EXPECT_TRUE(toolTipOf(label).contains(QStringLiteral("/a&lt;b&gt;&amp;c")));
}

TEST_F(LabelTest, ANameWithALineEndStaysOnOneLine)
{
    label.setStringValue("one\ntwo");

    EXPECT_EQ(label.text(), QStringLiteral("one\u21b5two"));
}

TEST_F(LabelTest, ATextIsAlignedAsTheWindowIsAndNotAsItsLettersAre)
{
    const auto inkIsOnTheRight = [](Label& shown) {
        shown.resize(160, 24);
        shown.show();
        const QImage picture = shown.grab().toImage();
        const QColor paper = picture.pixelColor(80, 1);
        int left = 0;
        int right = 0;
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 0; y < picture.height(); ++y)
                (x < 80 ? left : right) += picture.pixelColor(x, y) != paper ? 1 : 0;
        }
        return right > left;
    };
    label.setStringValue("abc");
    EXPECT_FALSE(inkIsOnTheRight(label));
    Label mirrored;
    mirrored.setLayoutDirection(Qt::RightToLeft);
    mirrored.setStringValue("abc");
    EXPECT_TRUE(inkIsOnTheRight(mirrored));
}

TEST_F(LabelTest, WhoNamesTheRowAfterItsTitleGetsTheTextItself)
{
    QString told;
    QObject::connect(&label, &Label::textChanged, &label, [&](const QString& text) { told = text; });

    label.setStringValue("one\ntwo");

    EXPECT_EQ(told, QStringLiteral("one\ntwo"));
}

} // namespace
