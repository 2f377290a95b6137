#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <QApplication>
#include <QHeaderView>
#include <QToolButton>

#include <gtest/gtest.h>

#include <array>
#include <utility>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

struct Navigation : testing::Test {
    Navigation()
    {
        folder.folder("alpha");
        folder.folder("alpha/deep");
        folder.folder("beta");
        folder.file("Gamma.txt", 30);
        folder.file("gate.txt", 10);
        folder.file("zeta.txt", 20);
        chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path()));
    }

    [[nodiscard]] QString at(std::string_view name) const { return QString::fromStdString(folder.path(name)); }
    [[nodiscard]] QString atTop() const { return QString::fromStdString(folder.path()); }

    void run(const std::function<void(const ShownChooser&)>& steps)
    {
        runChooser(chooser, [&](const ShownChooser& shown) {
            steps(shown);
            shown.cancel();
        });
    }

    TemporaryFolder folder;
    LinuxDesktop::ModalState modal;
    FileChooser chooser{modal};
};

} // namespace

TEST_F(Navigation, GoesInByDoubleClickAndByKeys)
{
    run([&](const ShownChooser& shown) {
        shown.doubleClick(u"alpha"_s);
        EXPECT_EQ(shown.pathField().text(), at("alpha"));
        shown.key(Qt::Key_Down);
        EXPECT_EQ(shown.selected(), u"deep"_s);
        shown.key(Qt::Key_Right);
        EXPECT_EQ(shown.pathField().text(), at("alpha/deep"));
        shown.key(Qt::Key_Backspace);
        EXPECT_EQ(shown.selected(), u"deep"_s);
        shown.key(Qt::Key_Down, Qt::AltModifier);
        EXPECT_EQ(shown.pathField().text(), at("alpha/deep"));
    });
}

TEST_F(Navigation, GoesUpByEachOfItsKeysToTheFolderItCameFrom)
{
    run([&](const ShownChooser& shown) {
        const std::array keys = {std::pair(Qt::Key_Backspace, Qt::NoModifier), std::pair(Qt::Key_Up, Qt::AltModifier),
                                 std::pair(Qt::Key_Left, Qt::NoModifier)};
        for (const auto& [key, modifier] : keys) {
            shown.doubleClick(u"beta"_s);
            EXPECT_EQ(shown.pathField().text(), at("beta"));
            shown.key(key, modifier);
            EXPECT_EQ(shown.pathField().text(), atTop());
            EXPECT_EQ(shown.selected(), u"beta"_s);
        }
    });
}

TEST_F(Navigation, BackspaceInThePathFieldEditsThePath)
{
    run([&](const ShownChooser& shown) {
        shown.typePath(u"/tmpx"_s);
        shown.key(Qt::Key_Backspace);
        EXPECT_EQ(shown.pathField().text(), u"/tmp"_s);
        EXPECT_TRUE(shown.names().contains(u"alpha"_s));
    });
}

TEST_F(Navigation, TheUpButtonEndsAtTheRoot)
{
    run([&](const ShownChooser& shown) {
        auto* up = shown.dialog().findChild<QToolButton*>(u"upButton"_s);
        ASSERT_TRUE(up);
        for (int depth = 0; up->isEnabled() && depth < 100; ++depth)
            QTest::mouseClick(up, Qt::LeftButton);
        EXPECT_EQ(shown.pathField().text(), u"/"_s);
        EXPECT_FALSE(up->isEnabled());
    });
}

TEST_F(Navigation, EnterOnAToolButtonPressesItAndConfirmsNothing)
{
    chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("zeta.txt")));
    run([&](const ShownChooser& shown) {
        auto* up = shown.dialog().findChild<QToolButton*>(u"upButton"_s);
        ASSERT_TRUE(up);
        up->setFocus();
        shown.key(Qt::Key_Return);
        EXPECT_TRUE(shown.dialog().isVisible());
        EXPECT_NE(shown.pathField().text(), atTop());
    });
}

TEST_F(Navigation, ATypedFolderIsGoneTo)
{
    run([&](const ShownChooser& shown) {
        shown.typePath(at("alpha") + u"/"_s);
        shown.key(Qt::Key_Return);
        EXPECT_EQ(shown.pathField().text(), at("alpha"));
        EXPECT_EQ(shown.names(), QStringList{u"deep"_s});
        EXPECT_TRUE(shown.list().hasFocus());
        shown.typePath(u"../beta"_s);
        shown.key(Qt::Key_Return);
        EXPECT_EQ(shown.pathField().text(), at("beta"));
    });
}

TEST_F(Navigation, ATypedPathThatLeadsNowhereIsToldInWords)
{
    run([&](const ShownChooser& shown) {
        shown.typePath(u"/no/such/thing"_s);
        shown.key(Qt::Key_Return);
        EXPECT_TRUE(shown.notice().isVisible());
        EXPECT_EQ(shown.notice().text(), u"“/no/such/thing” cannot be found."_s);
        EXPECT_TRUE(shown.names().contains(u"alpha"_s));
        shown.click(u"alpha"_s);
        EXPECT_FALSE(shown.notice().isVisible());
    });
}

TEST_F(Navigation, TabCompletesWhatAllProposalsShareAndElseGoesOn)
{
    run([&](const ShownChooser& shown) {
        shown.typePath(at("a"));
        shown.key(Qt::Key_Tab);
        EXPECT_EQ(shown.pathField().text(), at("alpha/"));
        EXPECT_TRUE(shown.pathField().hasFocus());
        shown.typePath(at("ZE"));
        shown.key(Qt::Key_Tab);
        EXPECT_EQ(shown.pathField().text(), at("zeta.txt"));
        EXPECT_TRUE(shown.pathField().hasFocus());
        shown.typePath(at("GA"));
        shown.key(Qt::Key_Tab);
        EXPECT_EQ(shown.pathField().text(), at("GA"));
        EXPECT_FALSE(shown.pathField().hasFocus());
        shown.typePath(u"/no/such/thing"_s);
        shown.key(Qt::Key_Tab);
        EXPECT_FALSE(shown.pathField().hasFocus());
    });
}

TEST_F(Navigation, APlaceIsGoneToByClickAndByEnter)
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder.path("beta").c_str());
    run([&](const ShownChooser& shown) {
        QListWidget& places = shown.places();
        const QListWidgetItem* root = places.item(places.count() - 1);
        EXPECT_EQ(root->text(), u"File System"_s);
        QTest::mouseClick(places.viewport(), Qt::LeftButton, {}, places.visualItemRect(root).center());
        EXPECT_EQ(shown.pathField().text(), u"/"_s);
        places.setFocus();
        shown.key(Qt::Key_Home);
        shown.key(Qt::Key_Return);
        EXPECT_EQ(shown.pathField().text(), at("beta"));
        EXPECT_TRUE(shown.dialog().isVisible());
    });
    qputenv("HOME", home);
}

TEST_F(Navigation, TypingSelectsTheNextNameThatStartsSo)
{
    run([&](const ShownChooser& shown) {
        // A click in another column leaves the names the ones that are searched.
        const QModelIndex modified = shown.rowNamed(u"alpha"_s).siblingAtColumn(2);
        QTest::mouseClick(shown.list().viewport(), Qt::LeftButton, {}, shown.list().visualRect(modified).center());
        EXPECT_EQ(shown.selected(), u"alpha"_s);
        shown.type(u"gat"_s);
        EXPECT_EQ(shown.selected(), u"gate.txt"_s);
    });
}

TEST_F(Navigation, TypingFindsTheFirstNameOfAFolderToo)
{
    folder.folder("alpine");
    run([&](const ShownChooser& shown) {
        shown.type(u"a"_s);
        EXPECT_EQ(shown.selected(), u"alpha"_s);
    });
}

TEST_F(Navigation, AFolderThatIsGoneIntoShowsWhereTheKeyboardIs)
{
    run([&](const ShownChooser& shown) {
        shown.doubleClick(u"alpha"_s);
        EXPECT_EQ(shown.list().currentIndex().data().toString(), u"deep"_s);
        EXPECT_TRUE(shown.selected().isNull());
        shown.key(Qt::Key_Home);
        EXPECT_EQ(shown.selected(), u"deep"_s);
    });
}

TEST_F(Navigation, AHeaderClickAndItsKeysSort)
{
    run([&](const ShownChooser& shown) {
        EXPECT_EQ(shown.names(), (QStringList{u"alpha"_s, u"beta"_s, u"Gamma.txt"_s, u"gate.txt"_s, u"zeta.txt"_s}));
        QHeaderView& header = *shown.list().header();
        const QPoint onSize(header.sectionViewportPosition(1) + header.sectionSize(1) / 2, header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, onSize);
        const QStringList bySize = shown.names();
        shown.key(Qt::Key_1, Qt::ControlModifier);
        shown.key(Qt::Key_2, Qt::ControlModifier);
        EXPECT_EQ(shown.names(), (QStringList{u"alpha"_s, u"beta"_s, u"gate.txt"_s, u"zeta.txt"_s, u"Gamma.txt"_s}));
        EXPECT_EQ(bySize, shown.names());
        shown.key(Qt::Key_2, Qt::ControlModifier);
        EXPECT_EQ(shown.names(), (QStringList{u"beta"_s, u"alpha"_s, u"Gamma.txt"_s, u"zeta.txt"_s, u"gate.txt"_s}));
    });
}

TEST_F(Navigation, AnUnreadableFolderSaysSoInTheList)
{
    folder.folder("closed");
    folder.setMode("closed", 0);
    run([&](const ShownChooser& shown) {
        const OrdinaryUser user;
        shown.doubleClick(u"closed"_s);
        EXPECT_EQ(shown.pathField().text(), at("closed"));
        EXPECT_EQ(shown.listWords().text(), u"You do not have permission to see what is in this folder."_s);
        EXPECT_TRUE(shown.listWords().isVisible());
        EXPECT_TRUE(shown.list().accessibleDescription().endsWith(u". "_s + shown.listWords().text()));
        shown.key(Qt::Key_Backspace);
        EXPECT_TRUE(shown.listWords().text().isEmpty());
    });
}

TEST_F(Navigation, AnEmptyFolderSaysSo)
{
    run([&](const ShownChooser& shown) {
        shown.doubleClick(u"beta"_s);
        EXPECT_EQ(shown.listWords().text(), u"This folder is empty."_s);
    });
}

TEST_F(Navigation, ASlashOrATildeTypedInTheListStartsAPath)
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder.path().c_str());
    run([&](const ShownChooser& shown) {
        shown.type(u"/"_s);
        EXPECT_TRUE(shown.pathField().hasFocus());
        EXPECT_EQ(shown.pathField().text(), u"/"_s);
        shown.dialog().activateWindow();
        shown.list().setFocus();
        shown.type(u"~"_s);
        EXPECT_TRUE(shown.pathField().hasFocus());
        EXPECT_EQ(shown.pathField().text(), u"~"_s);
        shown.type(u"/al"_s);
        shown.key(Qt::Key_Tab);
        EXPECT_EQ(shown.pathField().text(), u"~/alpha/"_s);
        shown.key(Qt::Key_Return);
        EXPECT_EQ(shown.pathField().text(), at("alpha"));
        EXPECT_TRUE(shown.list().hasFocus());
    });
    qputenv("HOME", home);
}

TEST_F(Navigation, ASlashStartsAPathInAnEmptyFolderToo)
{
    run([&](const ShownChooser& shown) {
        shown.doubleClick(u"beta"_s);
        shown.type(u"/"_s);
        EXPECT_TRUE(shown.pathField().hasFocus());
        EXPECT_EQ(shown.pathField().text(), u"/"_s);
    });
}

TEST_F(Navigation, WhereTextRunsFromTheRightTheArrowKeysDoToo)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    run([&](const ShownChooser& shown) {
        shown.click(u"alpha"_s);
        shown.key(Qt::Key_Left);
        EXPECT_EQ(shown.pathField().text(), at("alpha"));
        shown.key(Qt::Key_Right);
        EXPECT_EQ(shown.pathField().text(), atTop());
        EXPECT_EQ(shown.pathField().layoutDirection(), Qt::LeftToRight);
    });
    QApplication::setLayoutDirection(Qt::LeftToRight);
}
