#include "platform/linux/chooser/Bookmarks.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>

using namespace LinuxDesktop;
using namespace Qt::StringLiterals;

namespace {

std::vector<std::string> foldersOf(const std::vector<Place>& places)
{
    std::vector<std::string> folders;
    folders.reserve(places.size());
    for (const Place& place : places)
        folders.push_back(place.folder);
    return folders;
}

using Folders = std::vector<std::string>;

/// Where the desktops keep the bookmarks of this test's person.
std::filesystem::path bookmarksFile()
{
    const std::filesystem::path folder = qgetenv("XDG_CONFIG_HOME").toStdString() + "/gtk-3.0";
    std::filesystem::create_directories(folder);
    return folder / "bookmarks";
}

} // namespace

TEST(Bookmarks, HaveTheNameThatTheUserGaveThemOrTheFolders)
{
    const std::vector<Place> found = bookmarksIn("file:///srv/Projects My work\nfile:///srv/Photos%20of%202026\n");
    ASSERT_EQ(foldersOf(found), (Folders{"/srv/Projects", "/srv/Photos of 2026"}));
    EXPECT_EQ(found[0].title, u"My work"_s);
    EXPECT_EQ(found[1].title, u"Photos of 2026"_s);
}

TEST(Bookmarks, AreDecodedToTheBytesOfTheName)
{
    EXPECT_EQ(foldersOf(bookmarksIn("file:///a%FF%0A%25\nfile:///stra%C3%9Fe/\nfile:///x/../y")),
              (Folders{"/a\xff\n%", "/straße", "/y"}));
}

TEST(Bookmarks, OfOtherPlacesAndBrokenLinesArePassedOver)
{
    EXPECT_EQ(foldersOf(bookmarksIn("sftp://host/a\n\nfile://host/a\nfile:\nfile://\nfile://a b\nfile:///%zz\n"
                                    "file:///a%\nfile:///a%4\nfile:///a%00b\n/plain\nnonsense\r\nfile:///good\r\n")),
              Folders{"/good"});
}

TEST(Bookmarks, OfHostileLengthAndNumberAreBounded)
{
    const std::string longest(5000, 'a');
    EXPECT_TRUE(bookmarksIn("file:///" + longest + "\n").empty());
    const std::vector<Place> found = bookmarksIn("file:///a " + longest);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_LE(found[0].title.size(), 100);
    std::string many;
    for (int i = 0; i < 10'000; ++i)
        many += "file:///" + std::to_string(i) + "\n";
    EXPECT_EQ(bookmarksIn(many).size(), 100U);
}

TEST(Bookmarks, ShowNoControlCharactersInTheirNames)
{
    const std::vector<Place> found = bookmarksIn("file:///a evil\x1b[31m\xe2\x80\xaetxt");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].title, u"evil\ufffd[31m\ufffdtxt"_s);
}

TEST(Bookmarks, AreThoseOfTheGtkDesktops)
{
    EXPECT_TRUE(bookmarks().empty());
    std::ofstream(bookmarksFile()) << "file:///srv/Projects\n";
    EXPECT_EQ(foldersOf(bookmarks()), Folders{"/srv/Projects"});
}

TEST(Bookmarks, APipeInThePlaceOfTheFileHoldsNothingUp)
{
    ASSERT_EQ(::mkfifo(bookmarksFile().c_str(), 0600), 0);
    EXPECT_TRUE(bookmarks().empty());
}
