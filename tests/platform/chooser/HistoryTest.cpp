#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

struct History : testing::Test {
    History()
    {
        folder.folder("a");
        folder.folder("a/b");
        folder.folder("c");
        chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path()));
    }

    [[nodiscard]] QString at(const std::string& name) const { return QString::fromStdString(folder.path(name)); }
    [[nodiscard]] QString atTop() const { return QString::fromStdString(folder.path()); }

    void run(const std::function<void(const ShownChooser&)>& steps)
    {
        runChooser(chooser, [&](const ShownChooser& shown) {
            steps(shown);
            shown.cancel();
        });
    }

    static void back(const ShownChooser& shown) { shown.key(Qt::Key_Left, Qt::AltModifier); }
    static void forward(const ShownChooser& shown) { shown.key(Qt::Key_Right, Qt::AltModifier); }

    TemporaryFolder folder;
    LinuxDesktop::ModalState modal;
    FileChooser chooser{modal};
};

} // namespace

TEST_F(History, LeadsBackAndForwardByKeys)
{
    run([&](const ShownChooser& shown) {
        back(shown);
        forward(shown);
        EXPECT_EQ(shown.pathField().text(), atTop());
        shown.doubleClick(u"a"_s);
        shown.doubleClick(u"b"_s);
        back(shown);
        EXPECT_EQ(shown.pathField().text(), at("a"));
        EXPECT_EQ(shown.selected(), u"b"_s);
        back(shown);
        EXPECT_EQ(shown.pathField().text(), atTop());
        back(shown);
        EXPECT_EQ(shown.pathField().text(), atTop());
        forward(shown);
        forward(shown);
        EXPECT_EQ(shown.pathField().text(), at("a/b"));
        forward(shown);
        EXPECT_EQ(shown.pathField().text(), at("a/b"));
    });
}

TEST_F(History, HoldsEveryWayToGo)
{
    run([&](const ShownChooser& shown) {
        shown.typePath(at("a/b"));
        shown.key(Qt::Key_Return);
        shown.key(Qt::Key_Up, Qt::AltModifier);
        shown.goToPlace(u"File System"_s);
        back(shown);
        EXPECT_EQ(shown.pathField().text(), at("a"));
        back(shown);
        EXPECT_EQ(shown.pathField().text(), at("a/b"));
        back(shown);
        EXPECT_EQ(shown.pathField().text(), atTop());
    });
}

TEST_F(History, AnotherWayForgetsTheOneForward)
{
    run([&](const ShownChooser& shown) {
        shown.doubleClick(u"a"_s);
        back(shown);
        shown.doubleClick(u"c"_s);
        forward(shown);
        EXPECT_EQ(shown.pathField().text(), at("c"));
        back(shown);
        EXPECT_EQ(shown.pathField().text(), atTop());
    });
}

TEST_F(History, ItsButtonsAreOnWhereThereIsAWay)
{
    run([&](const ShownChooser& shown) {
        QToolButton& backButton = shown.tool("backButton");
        QToolButton& forwardButton = shown.tool("forwardButton");
        EXPECT_FALSE(backButton.isEnabled());
        EXPECT_FALSE(forwardButton.isEnabled());
        shown.doubleClick(u"a"_s);
        EXPECT_TRUE(backButton.isEnabled());
        shown.press(backButton);
        EXPECT_EQ(shown.pathField().text(), atTop());
        EXPECT_FALSE(backButton.isEnabled());
        EXPECT_TRUE(forwardButton.isEnabled());
        shown.press(forwardButton);
        EXPECT_EQ(shown.pathField().text(), at("a"));
    });
}

TEST_F(History, AFolderThatIsGoneIsToldAndPassedOver)
{
    run([&](const ShownChooser& shown) {
        shown.doubleClick(u"c"_s);
        shown.goToPlace(u"File System"_s);
        folder.remove("c");
        back(shown);
        EXPECT_EQ(shown.pathField().text(), u"/"_s);
        EXPECT_EQ(shown.notice().text(), u"“%1” cannot be found."_s.arg(at("c")));
        back(shown);
        EXPECT_EQ(shown.pathField().text(), atTop());
    });
}
