#include "platform/linux/look/PanelStyle.h"
#include "platform/linux/scenes/CheckBox.h"
#include "platform/linux/scenes/PushButton.h"
#include "platform/linux/scenes/RowList.h"
#include "platform/linux/scenes/ScrollPane.h"

#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTest>
#include <QVBoxLayout>

#include <cstddef>
#include <gtest/gtest.h>
#include <vector>

namespace {

using namespace LinuxDesktop;

class PanelStyleFixture : public testing::Test {
protected:
    PanelStyleFixture()
    {
        QPalette palette = window.palette();
        palette.setColor(QPalette::Window, windowColor);
        palette.setColor(QPalette::Base, baseColor);
        palette.setColor(QPalette::Highlight, highlight);
        window.setPalette(palette);
        column = new QVBoxLayout(&window);
    }

    template<class Widget>
    Widget* add()
    {
        auto* widget = new Widget;
        widget->setStyle(&style);
        column->addWidget(widget);
        return widget;
    }
    void show()
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    static QColor colorAt(QWidget& widget, QPoint at) { return widget.grab().toImage().pixelColor(at); }
    /// Of the middle of a button's left edge, where the ring around it is.
    static QColor ringOf(QWidget& button) { return colorAt(button, {0, button.height() / 2}); }
    /// Of the edge of an area's scroll bar beside its handle, as the window shows it.
    QColor grooveOf(QAbstractScrollArea& area)
    {
        QScrollBar* bar = area.verticalScrollBar();
        bar->setStyle(&style);
        bar->setRange(0, 1000);
        return colorAt(window, bar->mapTo(&window, QPoint(1, bar->height() - bar->height() / 4)));
    }

    const QColor windowColor{250, 240, 230};
    const QColor baseColor{20, 200, 100};
    const QColor highlight{200, 10, 150};
    PanelStyle style;
    QWidget window;
    QVBoxLayout* column = nullptr;
};

TEST_F(PanelStyleFixture, ABarWithoutAnEndIsAPieceThatMoves)
{
    auto* bar = add<QProgressBar>();
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    show();
    const auto filled = [&] {
        const QImage image = bar->grab().toImage();
        std::vector<int> columns;
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, image.height() / 2) == highlight)
                columns.push_back(x);
        }
        return columns;
    };
    const std::vector<int> first = filled();
    EXPECT_FALSE(first.empty());
    EXPECT_LT(first.size(), static_cast<std::size_t>(bar->width() / 2));
    EXPECT_TRUE(QTest::qWaitFor([&] { return filled() != first; }));
}

TEST_F(PanelStyleFixture, NothingMovesByItselfWhereMotionIsReduced)
{
    auto* bar = add<QProgressBar>();
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    show();
    EXPECT_GT(style.styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, bar, nullptr), 0);
    style.setMotion(Motion::Reduced);
    EXPECT_EQ(style.styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, bar, nullptr), 0);
    const QImage first = bar->grab().toImage();
    QTest::qWait(100);
    EXPECT_EQ(bar->grab().toImage(), first);
    style.setMotion(Motion::Full);
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar->grab().toImage() != first; }));
}

TEST_F(PanelStyleFixture, ABarFillsFromWhereReadingBegins)
{
    auto* bar = add<QProgressBar>();
    bar->setTextVisible(false);
    show();
    const auto isFilled = [&](double part) {
        const QImage image = bar->grab().toImage();
        return image.pixelColor(static_cast<int>(part * image.width()), image.height() / 2) == highlight;
    };
    bar->setValue(0);
    EXPECT_FALSE(isFilled(0.01));
    bar->setValue(60);
    EXPECT_TRUE(isFilled(0.55));
    EXPECT_FALSE(isFilled(0.65));
    bar->setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(isFilled(0.45));
    EXPECT_FALSE(isFilled(0.35));
    bar->setValue(100);
    EXPECT_TRUE(isFilled(0.05));
}

TEST_F(PanelStyleFixture, TheButtonWithTheFocusHasARingWhileTheKeyboardIsUsed)
{
    style.polish(qApp);
    auto* one = add<PushButton>();
    auto* other = add<PushButton>();
    show();
    QTest::mouseClick(one, Qt::LeftButton);
    one->setFocus(Qt::MouseFocusReason);
    EXPECT_NE(ringOf(*one), highlight);
    QTest::keyClick(one, Qt::Key_Tab);
    EXPECT_EQ(ringOf(*other), highlight);
    EXPECT_NE(ringOf(*one), highlight);
    QTest::keyClick(other, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(ringOf(*one), highlight);
    // A window that comes then shows it too.
    QWidget next;
    PushButton button(&next);
    button.setStyle(&style);
    next.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&next));
    button.setFocus(Qt::OtherFocusReason);
    button.setPalette(window.palette());
    EXPECT_EQ(ringOf(button), highlight);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_NE(ringOf(button), highlight);
    style.unpolish(qApp);
}

TEST_F(PanelStyleFixture, ThePrimaryButtonIsFilled)
{
    auto* plain = add<PushButton>();
    auto* primary = add<PushButton>();
    primary->setProperty("primary", true);
    show();
    const auto fillOf = [](QWidget& button) { return colorAt(button, {12, button.height() / 2}); };
    EXPECT_EQ(fillOf(*primary), highlight);
    EXPECT_NE(fillOf(*plain), highlight);
    primary->setEnabled(false);
    EXPECT_NE(fillOf(*primary), highlight);
}

TEST_F(PanelStyleFixture, ACheckBoxIsWholeAndBesideItsTextInBothDirections)
{
    auto* box = add<CheckBox>();
    box->setText(QStringLiteral("Some words"));
    show();
    QStyleOptionButton option;
    const auto part = [&](QStyle::SubElement element) {
        option.initFrom(box);
        option.text = box->text();
        return style.subElementRect(element, &option, box);
    };
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        box->setLayoutDirection(direction);
        const QRect square = part(QStyle::SE_CheckBoxIndicator);
        const QRect words = part(QStyle::SE_CheckBoxContents);
        EXPECT_TRUE(box->rect().contains(square));
        const int between =
            direction == Qt::LeftToRight ? words.left() - square.right() : square.left() - words.right();
        EXPECT_GE(between, 1);
        EXPECT_LE(between, 12);
        const int outside = direction == Qt::LeftToRight ? square.left() : box->width() - 1 - square.right();
        EXPECT_EQ(outside, 4);
    }
}

TEST_F(PanelStyleFixture, ACheckBoxBeginsWhereTheTextAboveItDoes)
{
    window.setStyle(&style);
    auto* words = new QLabel(QStringLiteral("Words"));
    column->addWidget(words);
    auto* box = add<CheckBox>();
    box->setText(QStringLiteral("Some words"));
    show();
    QStyleOptionButton option;
    option.initFrom(box);
    const QRect square = style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, box);
    EXPECT_EQ(box->x() + square.x(), words->x());
}

TEST_F(PanelStyleFixture, AScrollBarHasTheColourOfWhatItScrolls)
{
    auto* list = add<RowList>();
    auto* pane = add<ScrollPane>();
    pane->setBackgroundColor(NS::Color::clearColor);
    show();
    EXPECT_EQ(grooveOf(*list), baseColor);
    EXPECT_EQ(grooveOf(*pane), windowColor);
}

/// How many pixels of a picture have a colour.
int count(const QImage& image, const QColor& color)
{
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            found += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return found;
}

TEST_F(PanelStyleFixture, TheMenuItemThatIsPointedToIsReadOnTheHighlight)
{
    QMenu menu;
    menu.setStyle(&style);
    QPalette palette = window.palette();
    const QColor onHighlight(1, 2, 3);
    palette.setColor(QPalette::HighlightedText, onHighlight);
    menu.setPalette(palette);
    QAction* first = menu.addAction(QStringLiteral("First"));
    QAction* second = menu.addAction(QStringLiteral("Second"));
    second->setEnabled(false);
    menu.popup({0, 0});
    const auto pictureOf = [&](QAction* action) {
        menu.setActiveAction(action);
        return menu.grab(menu.actionGeometry(action)).toImage();
    };

    const QImage pointedTo = pictureOf(first);
    EXPECT_GT(2 * count(pointedTo, highlight), pointedTo.width() * pointedTo.height());
    EXPECT_GT(count(pointedTo, onHighlight), 0);
    EXPECT_NE(pointedTo.pixelColor(0, 0), highlight);
    EXPECT_EQ(count(pictureOf(second), highlight), 0);
}

TEST_F(PanelStyleFixture, AListsHeaderIsDividedFromItsRowsByALine)
{
    auto* header = new QHeaderView(Qt::Horizontal);
    header->setStyle(&style);
    QStandardItemModel columns(0, 2);
    header->setModel(&columns);
    column->addWidget(header);
    show();

    const QImage picture = header->grab().toImage();
    EXPECT_EQ(picture.pixelColor(2, 2), baseColor);
    EXPECT_NE(picture.pixelColor(2, picture.height() - 1), baseColor);
    const int edge = header->sectionSize(0) - 1;
    EXPECT_NE(picture.pixelColor(edge, picture.height() / 2), baseColor);
    EXPECT_EQ(picture.pixelColor(edge, 2), baseColor);
}

} // namespace
