#include "TemporaryFolder.h"

#include "platform/linux/chooser/FolderListing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

using namespace LinuxDesktop;

namespace {

FileEntry entryNamed(const FolderListing& listing, const std::string& name)
{
    const auto found = std::ranges::find(listing.entries, name, &FileEntry::name);
    EXPECT_NE(found, listing.entries.end()) << name;
    return found == listing.entries.end() ? FileEntry() : *found;
}

} // namespace

TEST(FolderListing, ALinkHasWhatItLeadsTo)
{
    const TemporaryFolder folder;
    folder.file("file", 7);
    folder.link("toFile", "file");
    folder.link("toFolder", folder.folder("folder"));
    folder.link("toNothing", "/nowhere/at/all");

    const FolderListing listing = readFolder(folder.path(), HiddenFiles::Left);

    EXPECT_EQ(listing.entries.size(), 5U);
    const FileEntry toFile = entryNamed(listing, "toFile");
    EXPECT_TRUE(toFile.isLink);
    EXPECT_EQ(toFile.kind, FileEntry::Kind::File);
    EXPECT_EQ(toFile.size, 7);
    EXPECT_EQ(entryNamed(listing, "toFolder").kind, FileEntry::Kind::Folder);
    EXPECT_EQ(entryNamed(listing, "toNothing").kind, FileEntry::Kind::BrokenLink);
    EXPECT_FALSE(entryNamed(listing, "file").isLink);
}

TEST(FolderListing, HiddenFilesAreLeftOutUnlessAskedForOrRevealed)
{
    const TemporaryFolder folder;
    folder.file(".hidden");
    folder.file(".other");
    folder.file("plain");

    EXPECT_EQ(readFolder(folder.path(), HiddenFiles::Left).entries.size(), 1U);
    EXPECT_EQ(readFolder(folder.path(), HiddenFiles::Listed).entries.size(), 3U);
    const FolderListing revealed = readFolder(folder.path(), HiddenFiles::Left, ".other");
    EXPECT_EQ(revealed.entries.size(), 2U);
    EXPECT_EQ(entryNamed(revealed, ".other").kind, FileEntry::Kind::File);
}

TEST(FolderListing, SaysWhyAFolderCannotBeRead)
{
    TemporaryFolder folder;
    EXPECT_EQ(readFolder(folder.path("none"), HiddenFiles::Left).error, ENOENT);
    EXPECT_EQ(readFolder(folder.file("file"), HiddenFiles::Left).error, ENOTDIR);
    const std::string closed = folder.folder("closed");
    folder.setMode("closed", 0);
    const OrdinaryUser user;
    EXPECT_EQ(readFolder(closed, HiddenFiles::Left).error, EACCES);
}

TEST(FolderListing, AFolderThatMayNotBeSearchedGivesItsNames)
{
    TemporaryFolder folder;
    const std::string namesOnly = folder.folder("names");
    folder.file("names/file");
    folder.folder("names/folder");
    folder.setMode("names", 0444);
    const OrdinaryUser user;
    const FolderListing listing = readFolder(namesOnly, HiddenFiles::Left);

    EXPECT_EQ(entryNamed(listing, "file").kind, FileEntry::Kind::File);
    EXPECT_EQ(entryNamed(listing, "folder").kind, FileEntry::Kind::Folder);
}
