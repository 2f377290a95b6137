#include "platform/linux/widgets/PanelStyle.h"
#include "platform/linux/widgets/PushButton.h"
#include "platform/linux/widgets/RowList.h"
#include "platform/linux/widgets/ScrollPane.h"

#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

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
    /// Of the middle of a button's left edge.
    static QColor outlineOf(QWidget& button) { return colorAt(button, {0, button.height() / 2}); }
    /// Of the corner of an area's scroll bar, beside its handle.
    QColor grooveOf(QAbstractScrollArea& area)
    {
        QScrollBar* bar = area.verticalScrollBar();
        bar->setStyle(&style);
        bar->setRange(0, 1000);
        return colorAt(*bar, {0, bar->height() - 1});
    }

    const QColor windowColor{250, 240, 230};
    const QColor baseColor{20, 200, 100};
    const QColor highlight{200, 10, 150};
    PanelStyle style;
    QWidget window;
    QVBoxLayout* column = nullptr;
};

TEST_F(PanelStyleFixture, TheButtonWithTheFocusIsToldByItsOutline)
{
    auto* one = add<PushButton>();
    auto* other = add<PushButton>();
    show();
    one->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(outlineOf(*one), highlight);
    EXPECT_NE(outlineOf(*other), highlight);
    other->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(outlineOf(*other), highlight);
    EXPECT_NE(outlineOf(*one), highlight);
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

} // namespace
