#include "extension/actions/find-duplicate-files/FileTree.h"

#include <gtest/gtest.h>
#include <string>

using namespace MenuExtension;

namespace {

struct stat status(ino_t inode, dev_t device = 1, off_t size = 1)
{
    struct stat status = {};
    status.st_ino = inode;
    status.st_dev = device;
    status.st_size = size;
    return status;
}

} // namespace

TEST(FileTree, GivesPathsByteForByte)
{
    FileTree tree;
    const auto root = tree.addRoot("/", status(1));
    const auto folder = tree.addFolder(*root, "a\n\xff", status(2));
    const auto other = tree.addRoot("/home/x", status(3));
    tree.addFile(*root, "top", status(10));
    tree.addFile(*folder, " ", status(11, 4, 1LL << 40));
    tree.addFile(*other, "-rf", status(12));
    tree.addFile(tree.addPlace("/alone"), "file", status(13));
    ASSERT_EQ(tree.filesSoFar(), 4);
    EXPECT_EQ(tree.pathOf(tree.files()[0]), "/top");
    EXPECT_EQ(tree.pathOf(tree.files()[1]), "/a\n\xff/ ");
    EXPECT_EQ(tree.pathOf(tree.files()[2]), "/home/x/-rf");
    EXPECT_EQ(tree.pathOf(tree.files()[3]), "/alone/file");
    EXPECT_EQ(tree.deviceOf(tree.files()[1]), 4);
    EXPECT_EQ(tree.files()[1].size, 1LL << 40);
}

TEST(FileTree, TakesAFolderOnceWhateverItsPath)
{
    FileTree tree;
    const auto root = tree.addRoot("/a", status(1));
    EXPECT_FALSE(tree.addRoot("/b", status(1)));
    EXPECT_FALSE(tree.addFolder(*root, "a", status(1)));
    EXPECT_TRUE(tree.addFolder(*root, "a", status(1, 2)));
    for (ino_t inode = 100; inode < 50'100; ++inode)
        ASSERT_TRUE(tree.addFolder(*root, "x", status(inode)));
    for (ino_t inode = 100; inode < 50'100; ++inode)
        ASSERT_FALSE(tree.addFolder(*root, "y", status(inode)));
}
