#include "platform/linux/bookmarks/FolderIdentity.h"

#include <functional>
#include <gtest/gtest.h>

using namespace LinuxDesktop;

namespace {

const FolderIdentity folder{10, 20, 30, FileTime{40, 50}, FileHandle{1, "handle"}};

FolderIdentity with(const std::function<void(FolderIdentity&)>& change)
{
    FolderIdentity other = folder;
    change(other);
    return other;
}

} // namespace

TEST(FolderIdentity, IsKeptWhenTheDeviceGetsAnotherNumber)
{
    EXPECT_TRUE(folder.sameFolder(with([](auto& other) { other.device = 11; })));
}

TEST(FolderIdentity, IsToldByTheDeviceWhereTheFileSystemHasNoNumber)
{
    const auto here = with([](auto& other) { other.fileSystem = 0; });
    EXPECT_TRUE(here.sameFolder(here));
    EXPECT_FALSE(here.sameFolder(with([](auto& other) {
        other.fileSystem = 0;
        other.device = 11;
    })));
}

TEST(FolderIdentity, IsAnotherOnAnotherFileSystem)
{
    EXPECT_FALSE(folder.sameFolder(with([](auto& other) { other.fileSystem = 31; })));
}

TEST(FolderIdentity, IsAnotherWhenTheInodeNumberIsUsedAgain)
{
    EXPECT_FALSE(folder.sameFolder(with([](auto& other) { other.handle->bytes = "HANDLE"; })));
    EXPECT_FALSE(folder.sameFolder(with([](auto& other) { other.handle->type = 2; })));
    EXPECT_FALSE(folder.sameFolder(with([](auto& other) { other.birth->nanoseconds = 51; })));
    EXPECT_FALSE(folder.sameFolder(with([](auto& other) { other.birth->seconds = 41; })));
}

TEST(FolderIdentity, IsToldByWhatBothHave)
{
    const auto bare = with([](auto& other) {
        other.birth.reset();
        other.handle.reset();
    });
    EXPECT_TRUE(folder.sameFolder(bare));
    EXPECT_TRUE(bare.sameFolder(folder));
    EXPECT_FALSE(bare.sameFolder(with([](auto& other) { other.inode = 21; })));
}
