#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <QApplication>
#include <QScreen>

#include <gtest/gtest.h>

#include <filesystem>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

NS::URL url(const std::string& path)
{
    return NS::URL::fileURLWithPath(path);
}

QString text(const std::string& path)
{
    return QString::fromStdString(path);
}

struct Opening : testing::Test {
    LinuxDesktop::ModalState modal;
    FileChooser chooser{modal};
    TemporaryFolder folder;
};

} // namespace

TEST_F(Opening, ShowsTheMessageTheConfirmTextAndTheTitle)
{
    chooser.setMessage("Choose “this & that” <again>");
    chooser.setPrompt("Attach & send");
    runChooser(chooser, [](const ShownChooser& shown) {
        EXPECT_TRUE(shown.message().isVisible());
        EXPECT_EQ(shown.message().text(), u"Choose “this & that” <again>"_s);
        EXPECT_EQ(shown.message().textFormat(), Qt::PlainText);
        EXPECT_EQ(shown.confirmButton().text(), u"Attach && send"_s);
        EXPECT_EQ(shown.dialog().windowTitle(), u"Attach & send"_s);
        EXPECT_LT(shown.message().mapTo(&shown.dialog(), QPoint()).y(),
                  shown.list().mapTo(&shown.dialog(), QPoint()).y());
        shown.cancel();
    });
}

TEST_F(Opening, AFileIsSelectedAndInSightInItsFolder)
{
    for (int i = 0; i < 300; ++i)
        folder.file("file " + std::to_string(i));
    chooser.setDirectoryURL(url(folder.path("file 200")));
    runChooser(chooser, [&](const ShownChooser& shown) {
        EXPECT_EQ(shown.pathField().text(), text(folder.path()));
        EXPECT_EQ(shown.selected(), u"file 200"_s);
        const QRect row = shown.list().visualRect(shown.rowNamed(u"file 200"_s));
        EXPECT_TRUE(shown.list().viewport()->rect().contains(row));
        EXPECT_TRUE(shown.list().hasFocus());
        shown.cancel();
    });
}

TEST_F(Opening, AFolderIsSelectedInItsParentWhenFoldersCanBeChosen)
{
    folder.folder("sub");
    chooser.setCanChooseDirectories(true);
    chooser.setDirectoryURL(url(folder.path("sub") + "/"));
    runChooser(chooser, [&](const ShownChooser& shown) {
        EXPECT_EQ(shown.pathField().text(), text(folder.path()));
        EXPECT_EQ(shown.selected(), u"sub"_s);
        shown.cancel();
    });
}

TEST_F(Opening, AFolderIsEnteredWhenOnlyFilesCanBeChosen)
{
    folder.folder("sub");
    folder.file("sub/inside");
    chooser.setDirectoryURL(url(folder.path("sub")));
    runChooser(chooser, [&](const ShownChooser& shown) {
        EXPECT_EQ(shown.pathField().text(), text(folder.path("sub")));
        EXPECT_EQ(shown.names(), QStringList{u"inside"_s});
        EXPECT_TRUE(shown.selected().isNull());
        shown.cancel();
    });
}

TEST_F(Opening, TheRootIsShownItself)
{
    chooser.setCanChooseDirectories(true);
    chooser.setDirectoryURL(url("/"));
    const int answer = runChooser(chooser, [](const ShownChooser& shown) {
        EXPECT_EQ(shown.pathField().text(), u"/"_s);
        EXPECT_TRUE(shown.names().contains(u"usr"_s));
        EXPECT_TRUE(shown.selected().isNull());
        shown.press(shown.confirmButton());
    });
    EXPECT_EQ(answer, NS::ModalResponseOK);
    EXPECT_EQ(chooser.URL(), url("/"));
}

TEST_F(Opening, AVanishedItemGivesItsNearestFolderWithNothingSelected)
{
    folder.file("other");
    chooser.setCanChooseDirectories(true);
    chooser.setDirectoryURL(url(folder.path("gone/deeper/file")));
    runChooser(chooser, [&](const ShownChooser& shown) {
        EXPECT_EQ(shown.pathField().text(), text(folder.path()));
        EXPECT_TRUE(shown.selected().isNull());
        shown.cancel();
    });
}

TEST_F(Opening, ALinkIsShownWhereItLiesAndChosenUnresolved)
{
    folder.link("link", folder.folder("real"));
    folder.file("real/file");
    chooser.setDirectoryURL(url(folder.path("link/file")));
    const int answer = runChooser(chooser, [&](const ShownChooser& shown) {
        EXPECT_EQ(shown.pathField().text(), text(folder.path("link")));
        shown.press(shown.confirmButton());
    });
    EXPECT_EQ(answer, NS::ModalResponseOK);
    EXPECT_EQ(chooser.URL(), url(folder.path("link/file")));
}

TEST_F(Opening, AHiddenItemThatIsAskedForIsShown)
{
    folder.file(".asked");
    folder.file(".other");
    chooser.setDirectoryURL(url(folder.path(".asked")));
    runChooser(chooser, [](const ShownChooser& shown) {
        EXPECT_EQ(shown.names(), QStringList{u".asked"_s});
        EXPECT_EQ(shown.selected(), u".asked"_s);
        shown.cancel();
    });
}

TEST_F(Opening, HiddenFilesAreShownWhenAskedFor)
{
    folder.file(".hidden");
    folder.file("plain");
    chooser.setShowsHiddenFiles(true);
    chooser.setDirectoryURL(url(folder.path()));
    runChooser(chooser, [](const ShownChooser& shown) {
        EXPECT_EQ(shown.names(), (QStringList{u".hidden"_s, u"plain"_s}));
        shown.cancel();
    });
}

TEST_F(Opening, HiddenFilesAreNotShownOtherwise)
{
    folder.file(".hidden");
    folder.file("plain");
    chooser.setDirectoryURL(url(folder.path()));
    runChooser(chooser, [](const ShownChooser& shown) {
        EXPECT_EQ(shown.names(), QStringList{u"plain"_s});
        shown.cancel();
    });
}

TEST_F(Opening, WithoutAFolderItIsTheHomeFolder)
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder.path().c_str());
    runChooser(chooser, [&](const ShownChooser& shown) {
        EXPECT_EQ(shown.pathField().text(), text(folder.path()));
        EXPECT_EQ(shown.places().currentItem()->text(), u"Home"_s);
        shown.cancel();
    });
    qputenv("HOME", home);
}

TEST_F(Opening, TheWindowFitsItsScreenWhateverWordIsInTheMessage)
{
    chooser.setMessage(std::string(3000, 'm'));
    runChooser(chooser, [](const ShownChooser& shown) {
        const QSize screen = shown.dialog().screen()->availableSize();
        EXPECT_LE(shown.dialog().width(), screen.width());
        EXPECT_LE(shown.dialog().height(), screen.height());
        EXPECT_LE(shown.dialog().minimumSizeHint().width(), 512);
        EXPECT_LE(shown.dialog().minimumSizeHint().height(), 384);
        shown.cancel();
    });
}

TEST_F(Opening, AModalSessionRunsAsLongAsThePanel)
{
    bool ended = false;
    const auto listening = modal.whenEnded([&] { ended = true; });
    runChooser(chooser, [&](const ShownChooser& shown) {
        EXPECT_TRUE(modal.active());
        EXPECT_EQ(shown.dialog().windowModality(), Qt::ApplicationModal);
        EXPECT_FALSE(ended);
        shown.cancel();
    });
    EXPECT_TRUE(ended);
    EXPECT_FALSE(modal.active());
}
