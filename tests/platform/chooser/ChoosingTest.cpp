#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

struct Choosing : testing::Test {
    Choosing()
    {
        folder.folder("sub");
        folder.file("sub/inside");
        folder.file("file");
        folder.link("broken", "/nowhere/at/all");
        chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path()));
    }

    /// The chooser opens in the folder itself, with nothing selected.
    void openInside()
    {
        chooser.setCanChooseDirectories(true);
        chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("none")));
    }

    void expectChosen(const std::string& path)
    {
        ASSERT_TRUE(chooser.URL());
        EXPECT_EQ(chooser.URL()->path(), path);
    }

    TemporaryFolder folder;
    LinuxDesktop::ModalState modal;
    FileChooser chooser{modal};
};

} // namespace

TEST_F(Choosing, NothingIsChosenBeforeTheUserConfirms)
{
    EXPECT_FALSE(chooser.URL());
}

TEST_F(Choosing, EscapeCancels)
{
    EXPECT_EQ(runChooser(chooser, [](const ShownChooser& shown) { shown.key(Qt::Key_Escape); }),
              NS::ModalResponseCancel);
    EXPECT_FALSE(chooser.URL());
}

TEST_F(Choosing, TheCancelButtonCancels)
{
    EXPECT_EQ(runChooser(chooser,
                         [](const ShownChooser& shown) {
                             shown.click(u"file"_s);
                             shown.press(shown.cancelButton());
                         }),
              NS::ModalResponseCancel);
    EXPECT_FALSE(chooser.URL());
}

TEST_F(Choosing, ClosingTheWindowCancels)
{
    EXPECT_EQ(runChooser(chooser, [](const ShownChooser& shown) { shown.dialog().close(); }),
              NS::ModalResponseCancel);
}

TEST_F(Choosing, TheConfirmButtonChoosesTheSelectedFile)
{
    EXPECT_EQ(runChooser(chooser,
                         [](const ShownChooser& shown) {
                             shown.click(u"file"_s);
                             shown.press(shown.confirmButton());
                         }),
              NS::ModalResponseOK);
    expectChosen(folder.path("file"));
}

TEST_F(Choosing, EnterChoosesTheSelectedFile)
{
    EXPECT_EQ(runChooser(chooser,
                         [](const ShownChooser& shown) {
                             shown.click(u"file"_s);
                             shown.key(Qt::Key_Return);
                         }),
              NS::ModalResponseOK);
    expectChosen(folder.path("file"));
}

TEST_F(Choosing, ADoubleClickChoosesAFile)
{
    EXPECT_EQ(runChooser(chooser, [](const ShownChooser& shown) { shown.doubleClick(u"file"_s); }),
              NS::ModalResponseOK);
    expectChosen(folder.path("file"));
}

TEST_F(Choosing, WithFilesOnlyTheConfirmButtonWaitsForAFile)
{
    runChooser(chooser, [](const ShownChooser& shown) {
        EXPECT_FALSE(shown.confirmButton().isEnabled());
        shown.click(u"sub"_s);
        EXPECT_FALSE(shown.confirmButton().isEnabled());
        shown.click(u"file"_s);
        EXPECT_TRUE(shown.confirmButton().isEnabled());
        shown.cancel();
    });
}

TEST_F(Choosing, WithFilesOnlyEnterOnAFolderEntersIt)
{
    EXPECT_EQ(runChooser(chooser,
                         [](const ShownChooser& shown) {
                             shown.click(u"sub"_s);
                             shown.key(Qt::Key_Return);
                             EXPECT_EQ(shown.names(), QStringList{u"inside"_s});
                             shown.key(Qt::Key_Return);
                             EXPECT_TRUE(shown.dialog().isVisible());
                             shown.cancel();
                         }),
              NS::ModalResponseCancel);
}

TEST_F(Choosing, WithFoldersEnterAndTheConfirmButtonChooseTheSelectedFolder)
{
    openInside();
    EXPECT_EQ(runChooser(chooser,
                         [](const ShownChooser& shown) {
                             shown.click(u"sub"_s);
                             shown.key(Qt::Key_Return);
                         }),
              NS::ModalResponseOK);
    expectChosen(folder.path("sub"));
    FileChooser second(modal);
    second.setCanChooseDirectories(true);
    second.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("sub")));
    EXPECT_EQ(runChooser(second, [](const ShownChooser& shown) { shown.press(shown.confirmButton()); }),
              NS::ModalResponseOK);
    EXPECT_EQ(second.URL(), chooser.URL());
}

TEST_F(Choosing, WithFoldersAndNothingSelectedTheShownFolderIsChosen)
{
    openInside();
    EXPECT_EQ(runChooser(chooser,
                         [](const ShownChooser& shown) {
                             shown.doubleClick(u"sub"_s);
                             EXPECT_EQ(shown.names(), QStringList{u"inside"_s});
                             EXPECT_TRUE(shown.selected().isNull());
                             shown.press(shown.confirmButton());
                         }),
              NS::ModalResponseOK);
    expectChosen(folder.path("sub"));
}

TEST_F(Choosing, AFileIsChosenWhereFoldersCanBeToo)
{
    openInside();
    runChooser(chooser, [](const ShownChooser& shown) { shown.doubleClick(u"file"_s); });
    expectChosen(folder.path("file"));
}

TEST_F(Choosing, AClickBesideTheRowsSelectsNothing)
{
    runChooser(chooser, [](const ShownChooser& shown) {
        shown.click(u"file"_s);
        const QPoint bottom = shown.list().viewport()->rect().bottomLeft() + QPoint(20, -5);
        QTest::mouseClick(shown.list().viewport(), Qt::LeftButton, {}, bottom);
        EXPECT_TRUE(shown.selected().isNull());
        EXPECT_FALSE(shown.confirmButton().isEnabled());
        shown.cancel();
    });
}

TEST_F(Choosing, ABrokenLinkIsShownAndCannotBeChosen)
{
    runChooser(chooser, [](const ShownChooser& shown) {
        EXPECT_TRUE(shown.names().contains(u"broken"_s));
        shown.doubleClick(u"broken"_s);
        EXPECT_TRUE(shown.dialog().isVisible());
        EXPECT_FALSE(shown.confirmButton().isEnabled());
        shown.cancel();
    });
}

TEST_F(Choosing, TypingAFilesPathChoosesItEvenIfItIsHidden)
{
    const std::string hidden = folder.file(".hidden");
    EXPECT_EQ(runChooser(chooser,
                         [&](const ShownChooser& shown) {
                             shown.typePath(QString::fromStdString(hidden));
                             shown.key(Qt::Key_Return);
                         }),
              NS::ModalResponseOK);
    expectChosen(hidden);
}

TEST_F(Choosing, EnterBeforeAnythingIsSelectedOrGoneToChoosesNothing)
{
    openInside();
    EXPECT_EQ(runChooser(chooser,
                         [&](const ShownChooser& shown) {
                             shown.key(Qt::Key_Return);
                             EXPECT_TRUE(shown.dialog().isVisible());
                             EXPECT_EQ(shown.notice().text(),
                                       u"Nothing is selected. To choose “%1” itself, press the button “%2”."_s.arg(
                                           QString::fromStdString(folder.path()), shown.confirmButton().text()));
                             shown.press(shown.confirmButton());
                         }),
              NS::ModalResponseOK);
    expectChosen(folder.path());
}

TEST_F(Choosing, EnterChoosesAFolderThatWasGoneTo)
{
    openInside();
    EXPECT_EQ(runChooser(chooser,
                         [&](const ShownChooser& shown) {
                             shown.doubleClick(u"sub"_s);
                             EXPECT_EQ(shown.names(), QStringList{u"inside"_s});
                             shown.key(Qt::Key_Return);
                         }),
              NS::ModalResponseOK);
    expectChosen(folder.path("sub"));
}

TEST_F(Choosing, TypingAFilesPathDoesNotChooseItWhereOnlyFoldersCanBeChosen)
{
    openInside();
    chooser.setCanChooseFiles(false);
    runChooser(chooser, [&](const ShownChooser& shown) {
        shown.typePath(QString::fromStdString(folder.path("file")));
        shown.key(Qt::Key_Return);
        EXPECT_TRUE(shown.dialog().isVisible());
        EXPECT_EQ(shown.notice().text(),
                  u"“%1” cannot be chosen."_s.arg(QString::fromStdString(folder.path("file"))));
        shown.cancel();
    });
}

TEST_F(Choosing, TheConfirmButtonChoosesThePathThatWasTyped)
{
    openInside();
    EXPECT_EQ(runChooser(chooser,
                         [&](const ShownChooser& shown) {
                             shown.typePath(QString::fromStdString(folder.path("sub")));
                             shown.press(shown.confirmButton());
                         }),
              NS::ModalResponseOK);
    expectChosen(folder.path("sub"));
}

TEST_F(Choosing, TheConfirmButtonChoosesNothingWhereWhatWasTypedIsNotThere)
{
    openInside();
    EXPECT_EQ(runChooser(chooser,
                         [&](const ShownChooser& shown) {
                             shown.typePath(QString::fromStdString(folder.path("none")));
                             shown.press(shown.confirmButton());
                             EXPECT_TRUE(shown.dialog().isVisible());
                             EXPECT_EQ(shown.notice().text(),
                                       u"“%1” cannot be found."_s.arg(QString::fromStdString(folder.path("none"))));
                             shown.typePath(u"other"_s);
                             EXPECT_FALSE(shown.notice().isVisible());
                             shown.cancel();
                         }),
              NS::ModalResponseCancel);
}

TEST_F(Choosing, WithFilesOnlyTheConfirmButtonGoesToATypedFolderAndChoosesATypedFile)
{
    EXPECT_EQ(runChooser(chooser,
                         [&](const ShownChooser& shown) {
                             EXPECT_FALSE(shown.confirmButton().isEnabled());
                             shown.typePath(QString::fromStdString(folder.path("sub")));
                             EXPECT_TRUE(shown.confirmButton().isEnabled());
                             shown.press(shown.confirmButton());
                             EXPECT_EQ(shown.names(), QStringList{u"inside"_s});
                             EXPECT_FALSE(shown.confirmButton().isEnabled());
                             shown.typePath(u"inside"_s);
                             shown.press(shown.confirmButton());
                         }),
              NS::ModalResponseOK);
    expectChosen(folder.path("sub/inside"));
}

TEST_F(Choosing, SelectingAnItemTakesBackWhatWasTyped)
{
    openInside();
    EXPECT_EQ(runChooser(chooser,
                         [&](const ShownChooser& shown) {
                             shown.typePath(QString::fromStdString(folder.path("sub")));
                             shown.click(u"file"_s);
                             EXPECT_EQ(shown.pathField().text(), QString::fromStdString(folder.path()));
                             shown.press(shown.confirmButton());
                         }),
              NS::ModalResponseOK);
    expectChosen(folder.path("file"));
}

TEST_F(Choosing, SeveralCanBeSelectedOnlyWhenAllowed)
{
    folder.file("other");
    const auto selectBoth = [](const ShownChooser& shown) {
        shown.click(u"file"_s);
        const QPoint at = shown.list().visualRect(shown.rowNamed(u"other"_s)).center();
        QTest::mouseClick(shown.list().viewport(), Qt::LeftButton, Qt::ControlModifier, at);
        return shown.list().selectionModel()->selectedRows().size();
    };
    runChooser(chooser, [&](const ShownChooser& shown) {
        EXPECT_EQ(selectBoth(shown), 1);
        shown.cancel();
    });
    FileChooser several(modal);
    several.setAllowsMultipleSelection(true);
    several.setDirectoryURL(NS::URL::fileURLWithPath(folder.path()));
    runChooser(several, [&](const ShownChooser& shown) {
        EXPECT_EQ(selectBoth(shown), 2);
        shown.press(shown.confirmButton());
    });
    ASSERT_TRUE(several.URL());
    EXPECT_EQ(several.URL()->path(), folder.path("file"));
}
