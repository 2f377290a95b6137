#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

struct Places : testing::Test {
    Places() { chooser.setDirectoryURL(NS::URL::fileURLWithPath("/")); }

    static void bookmark(const std::string& lines)
    {
        const std::filesystem::path folder = qgetenv("XDG_CONFIG_HOME").toStdString() + "/gtk-3.0";
        std::filesystem::create_directories(folder);
        std::ofstream(folder / "bookmarks", std::ios::binary) << lines;
    }

    static QStringList titles(const ShownChooser& shown)
    {
        QStringList titles;
        for (int row = 0; row < shown.places().count(); ++row)
            titles.push_back(shown.places().item(row)->text());
        return titles;
    }

    TemporaryFolder folder;
    LinuxDesktop::ModalState modal;
    FileChooser chooser{modal};
};

} // namespace

TEST_F(Places, HaveTheBookmarksOfTheDesktop)
{
    folder.folder("d\xff");
    folder.file("d\xff/inside");
    bookmark("file://" + folder.path("d%FF") + " Odd one\nfile://" + folder.path("gone") + " Gone\nfile://" +
             folder.path() + "\n");
    runChooser(chooser, [&](const ShownChooser& shown) {
        EXPECT_FALSE(titles(shown).contains(u"Gone"_s));
        shown.goToPlace(u"Odd one"_s);
        EXPECT_EQ(shown.names(), QStringList{u"inside"_s});
        shown.goToPlace(QString::fromStdString(std::filesystem::path(folder.path()).filename()));
        EXPECT_EQ(shown.pathField().text(), QString::fromStdString(folder.path()));
        shown.cancel();
    });
}

TEST_F(Places, AreEachThereOnce)
{
    bookmark("file:///\nfile:///usr/bin\nfile:///usr/bin/ again\nfile:///usr/./bin\n");
    runChooser(chooser, [](const ShownChooser& shown) {
        EXPECT_EQ(titles(shown).filter(u"bin"_s).size(), 1);
        EXPECT_EQ(titles(shown).count(u"again"_s), 0);
        EXPECT_LE(titles(shown).count(u"File System"_s), 1);
        shown.cancel();
    });
}

TEST_F(Places, AFileThatIsBookmarkedIsNone)
{
    folder.file("file");
    bookmark("file://" + folder.path("file") + " A file\n");
    runChooser(chooser, [](const ShownChooser& shown) {
        EXPECT_FALSE(titles(shown).contains(u"A file"_s));
        shown.cancel();
    });
}
