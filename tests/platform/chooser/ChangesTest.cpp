#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <QScrollBar>

#include <gtest/gtest.h>

#include <cstdio>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

struct Changes : testing::Test {
    Changes()
    {
        folder.folder("sub");
        folder.file("a");
        folder.file("b");
        chooser.setCanChooseDirectories(true);
        chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("b")));
    }

    TemporaryFolder folder;
    LinuxDesktop::ModalState modal;
    FileChooser chooser{modal};
};

} // namespace

TEST_F(Changes, NewAndRemovedFilesAreSeenAndTheSelectionStays)
{
    runChooser(chooser, [&](const ShownChooser& shown) {
        folder.file("0");
        folder.remove("a");
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown.names() == QStringList{u"sub"_s, u"0"_s, u"b"_s}; }));
        EXPECT_EQ(shown.selected(), u"b"_s);
        shown.press(shown.confirmButton());
    });
    ASSERT_TRUE(chooser.URL());
    EXPECT_EQ(chooser.URL()->path(), folder.path("b"));
}

TEST_F(Changes, ARefreshLeavesTheListScrolledWhereItIs)
{
    for (int i = 0; i < 300; ++i)
        folder.file("file " + std::to_string(i));
    runChooser(chooser, [&](const ShownChooser& shown) {
        QScrollBar& scrollBar = *shown.list().verticalScrollBar();
        scrollBar.setValue(scrollBar.maximum() / 2);
        const int before = scrollBar.value();
        EXPECT_GT(before, 0);
        folder.file("zzz");
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown.names().contains(u"zzz"_s); }));
        EXPECT_EQ(scrollBar.value(), before);
        EXPECT_EQ(shown.selected(), u"b"_s);
        shown.cancel();
    });
}

TEST_F(Changes, AFolderWhoseNameIsNotUtf8IsWatchedToo)
{
    const std::string odd = folder.folder("odd\xff");
    FileChooser other(modal);
    other.setDirectoryURL(NS::URL::fileURLWithPath(odd));
    runChooser(other, [&](const ShownChooser& shown) {
        folder.file("odd\xff/new");
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown.names() == QStringList{u"new"_s}; }));
        shown.cancel();
    });
}

TEST_F(Changes, AVanishedSelectionIsToldAndNothingElseIsChosenInItsPlace)
{
    runChooser(chooser, [&](const ShownChooser& shown) {
        folder.remove("b");
        EXPECT_TRUE(QTest::qWaitFor([&] { return !shown.names().contains(u"b"_s); }));
        EXPECT_TRUE(shown.notice().isVisible());
        EXPECT_EQ(shown.notice().text(), u"“b” is no longer there."_s);
        EXPECT_FALSE(shown.confirmButton().isEnabled());
        shown.click(u"a"_s);
        EXPECT_FALSE(shown.notice().isVisible());
        EXPECT_TRUE(shown.confirmButton().isEnabled());
        shown.cancel();
    });
}

TEST_F(Changes, WhatIsBeingTypedStaysWhenTheFolderChanges)
{
    runChooser(chooser, [&](const ShownChooser& shown) {
        EXPECT_EQ(shown.selected(), u"b"_s);
        shown.typePath(u"/some/where"_s);
        folder.file("zzz");
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown.names().contains(u"zzz"_s); }));
        EXPECT_EQ(shown.pathField().text(), u"/some/where"_s);
        EXPECT_EQ(shown.selected(), u"b"_s);
        shown.cancel();
    });
}

TEST_F(Changes, ConfirmingWhatHasJustVanishedKeepsThePanelOpen)
{
    EXPECT_EQ(runChooser(chooser,
                         [&](const ShownChooser& shown) {
                             folder.remove("b");
                             shown.press(shown.confirmButton());
                             EXPECT_TRUE(shown.dialog().isVisible());
                             EXPECT_FALSE(shown.names().contains(u"b"_s));
                             EXPECT_EQ(shown.notice().text(), u"“b” is no longer there."_s);
                             shown.press(shown.confirmButton());
                             EXPECT_TRUE(shown.dialog().isVisible());
                             shown.cancel();
                         }),
              NS::ModalResponseCancel);
}

TEST_F(Changes, AFileThatBecameAFolderIsNotChosenAsAFile)
{
    FileChooser filesOnly(modal);
    filesOnly.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("b")));
    EXPECT_EQ(runChooser(filesOnly,
                         [&](const ShownChooser& shown) {
                             folder.remove("b");
                             folder.folder("b");
                             shown.press(shown.confirmButton());
                             EXPECT_TRUE(shown.dialog().isVisible());
                             EXPECT_FALSE(shown.confirmButton().isEnabled());
                             EXPECT_TRUE(shown.notice().isVisible());
                             shown.cancel();
                         }),
              NS::ModalResponseCancel);
}

TEST_F(Changes, WhenTheShownFolderVanishesItsNearestFolderIsShown)
{
    runChooser(chooser, [&](const ShownChooser& shown) {
        shown.doubleClick(u"sub"_s);
        folder.remove("sub");
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown.names() == QStringList{u"a"_s, u"b"_s}; }));
        EXPECT_FALSE(shown.confirmButton().isEnabled());
        EXPECT_TRUE(shown.notice().isVisible());
        shown.cancel();
    });
}

TEST_F(Changes, WhenAFolderAboveIsRenamedConfirmingFindsOut)
{
    folder.folder("sub/deep");
    runChooser(chooser, [&](const ShownChooser& shown) {
        shown.doubleClick(u"sub"_s);
        shown.doubleClick(u"deep"_s);
        ASSERT_EQ(std::rename(folder.path("sub").c_str(), folder.path("other").c_str()), 0);
        shown.press(shown.confirmButton());
        EXPECT_TRUE(shown.dialog().isVisible());
        EXPECT_EQ(shown.pathField().text(), QString::fromStdString(folder.path()));
        shown.cancel();
    });
}

TEST_F(Changes, OnlyTheShownFolderIsWatched)
{
    runChooser(chooser, [&](const ShownChooser& shown) {
        shown.doubleClick(u"sub"_s);
        shown.key(Qt::Key_Backspace);
        shown.doubleClick(u"sub"_s);
        folder.file("sub/new");
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown.names() == QStringList{u"new"_s}; }));
        shown.cancel();
    });
}
