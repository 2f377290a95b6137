#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include "platform/linux/chooser/ChooserMemory.h"

#include <QScreen>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>

using LinuxDesktop::ChooserMemory;
using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

struct Memory : testing::Test {
    static std::filesystem::path stateFolder() { return qgetenv("XDG_STATE_HOME").toStdString() + "/orvik-menu"; }
    static std::filesystem::path file() { return stateFolder() / "file-chooser"; }

    static void write(const std::string& text)
    {
        std::filesystem::create_directories(stateFolder());
        std::ofstream(file(), std::ios::binary) << text;
    }

    [[nodiscard]] FileChooser chooserAt(const std::string& path)
    {
        FileChooser chooser(modal);
        chooser.setDirectoryURL(NS::URL::fileURLWithPath(path));
        return chooser;
    }

    TemporaryFolder folder;
    LinuxDesktop::ModalState modal;
};

} // namespace

TEST_F(Memory, TheFolderOfTheLastChoiceIsWhereAChooserOpensThatNoneIsAskedFor)
{
    folder.folder("odd\xff \n");
    FileChooser first = chooserAt(folder.file("odd\xff \n/file"));
    runChooser(first, [](const ShownChooser& shown) { shown.press(shown.confirmButton()); });
    FileChooser second(modal);
    runChooser(second, [&](const ShownChooser& shown) {
        EXPECT_EQ(shown.names(), QStringList{u"file"_s});
        shown.cancel();
    });
}

TEST_F(Memory, TheFolderOfTheLastChoiceIsAmongThePlaces)
{
    folder.folder("Projects");
    FileChooser first = chooserAt(folder.file("Projects/file"));
    runChooser(first, [](const ShownChooser& shown) { shown.press(shown.confirmButton()); });
    FileChooser second = chooserAt("/");
    runChooser(second, [&](const ShownChooser& shown) {
        EXPECT_EQ(shown.pathField().text(), u"/"_s);
        shown.goToPlace(u"Projects (last used)"_s);
        EXPECT_EQ(shown.names(), QStringList{u"file"_s});
        shown.cancel();
    });
}

TEST_F(Memory, ACancelledChooserLeavesTheFolderOfTheLastChoice)
{
    FileChooser first = chooserAt(folder.file("file"));
    runChooser(first, [](const ShownChooser& shown) { shown.press(shown.confirmButton()); });
    FileChooser second = chooserAt("/usr/bin");
    runChooser(second, [](const ShownChooser& shown) { shown.cancel(); });
    EXPECT_EQ(ChooserMemory::recall().folder, folder.path());
}

TEST_F(Memory, TheSizeIsThatOfTheChooserBefore)
{
    const QSize size(600, 431);
    FileChooser first = chooserAt("/");
    runChooser(first, [&](const ShownChooser& shown) {
        shown.dialog().resize(size);
        shown.cancel();
    });
    FileChooser second = chooserAt("/");
    runChooser(second, [&](const ShownChooser& shown) {
        EXPECT_EQ(shown.dialog().size(), size);
        shown.cancel();
    });
}

TEST_F(Memory, NothingIsWrittenWhereThereIsNothingNew)
{
    FileChooser chooser = chooserAt("/");
    runChooser(chooser, [](const ShownChooser& shown) { shown.cancel(); });
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(Memory, IsTheUsersOwn)
{
    ChooserMemory{"/srv", {}}.keep();
    struct stat status = {};
    ASSERT_EQ(::stat(file().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(Memory, ThatMakesNoSenseIsAsNone)
{
    for (const std::string text : {"", "\n\n", "nonsense", "folder", "folder relative", "folder /a%00b",
                                   "folder /%zz", "size", "size 1", "size a b", "size -5 5", "size 0 0",
                                   "size 99999999999 5", "size 40000 500", "folder\nsize\nfolder \nsize  \n"}) {
        write(text);
        EXPECT_EQ(ChooserMemory::recall(), ChooserMemory()) << text;
    }
    write(std::string(1 << 20, 'a'));
    EXPECT_EQ(ChooserMemory::recall(), ChooserMemory());
    write("size 600 400\n" + std::string(100'000, '\0') + "\nfolder /srv\n");
    EXPECT_EQ(ChooserMemory::recall(), (ChooserMemory{"", {600, 400}}));
}

TEST_F(Memory, OfASizeThatFitsNoScreenOrNobodysFingersIsMadeToFit)
{
    for (const std::string text : {"size 32000 32000\n", "size 1 1\n"}) {
        write(text);
        FileChooser chooser = chooserAt("/");
        runChooser(chooser, [](const ShownChooser& shown) {
            const QSize screen = shown.dialog().screen()->availableSize();
            EXPECT_LE(shown.dialog().width(), screen.width());
            EXPECT_LE(shown.dialog().height(), screen.height());
            EXPECT_GE(shown.dialog().width(), 320);
            EXPECT_GE(shown.dialog().height(), 240);
            shown.cancel();
        });
    }
}

TEST_F(Memory, OfAFolderThatIsGoneLeadsHome)
{
    write("folder " + folder.path("gone") + "\n");
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder.path().c_str());
    FileChooser chooser(modal);
    runChooser(chooser, [&](const ShownChooser& shown) {
        EXPECT_EQ(shown.pathField().text(), QString::fromStdString(folder.path()));
        for (int row = 0; row < shown.places().count(); ++row)
            EXPECT_FALSE(shown.places().item(row)->text().contains(u"gone"_s));
        shown.cancel();
    });
    qputenv("HOME", home);
}

TEST_F(Memory, ThatCannotBeReadOrWrittenHoldsNothingUp)
{
    std::filesystem::create_directories(stateFolder());
    ASSERT_EQ(::mkfifo(file().c_str(), 0600), 0);
    EXPECT_EQ(ChooserMemory::recall(), ChooserMemory());
    std::filesystem::remove(file());
    std::filesystem::create_directory(file());
    EXPECT_EQ(ChooserMemory::recall(), ChooserMemory());
    ChooserMemory{"/srv", {}}.keep();
    EXPECT_TRUE(std::filesystem::is_directory(file()));
    // A file where the folders should be.
    std::filesystem::remove_all(stateFolder());
    std::ofstream(stateFolder()) << "";
    FileChooser chooser = chooserAt(folder.file("file"));
    EXPECT_EQ(runChooser(chooser, [](const ShownChooser& shown) { shown.press(shown.confirmButton()); }),
              NS::ModalResponseOK);
    EXPECT_TRUE(std::filesystem::is_regular_file(stateFolder()));
}
