#include "TemporaryTree.h"
#include "Unprivileged.h"
#include "platform/linux/bookmarks/FolderBookmark.h"
#include "platform/linux/bookmarks/FolderByHandle.h"
#include "platform/linux/bookmarks/FolderSearch.h"

#include <fstream>
#include <gtest/gtest.h>

using namespace LinuxDesktop;
namespace fs = std::filesystem;

namespace {

/// Each once with the rights that the test has, once without that of opening by handle.
struct MovedFolder : testing::TestWithParam<bool> {
    MovedFolder()
    {
        if (GetParam())
            m_unprivileged.emplace();
    }

    static NS::Data make(const std::string& path) { return std::get<NS::Data>(makeFolderBookmark(path)); }

    TemporaryTree m_tree;
    std::optional<Unprivileged> m_unprivileged;
};

INSTANTIATE_TEST_SUITE_P(, MovedFolder, testing::Bool(),
                         [](const auto& instance) { return instance.param ? "Unprivileged" : "AsTheTestRuns"; });

} // namespace

TEST_P(MovedFolder, IsFoundUnderAnotherName)
{
    const NS::Data bookmark = make(m_tree.makeFolder("parent/folder"));
    m_tree.makeFolder("parent/sibling");
    fs::rename(m_tree / "parent/folder", m_tree / "parent/re\nnamed \xff");
    EXPECT_EQ(resolveFolderBookmark(bookmark), m_tree / "parent/re\nnamed \xff");
}

TEST_P(MovedFolder, IsFoundFurtherDown)
{
    const NS::Data bookmark = make(m_tree.makeFolder("folder"));
    m_tree.makeFolder("a/b/c");
    fs::rename(m_tree / "folder", m_tree / "a/b/c/folder");
    EXPECT_EQ(resolveFolderBookmark(bookmark), m_tree / "a/b/c/folder");
}

TEST_P(MovedFolder, IsFoundFurtherUp)
{
    const NS::Data bookmark = make(m_tree.makeFolder("a/b/c/folder"));
    fs::rename(m_tree / "a/b/c/folder", m_tree / "folder");
    EXPECT_EQ(resolveFolderBookmark(bookmark), m_tree / "folder");
}

TEST_P(MovedFolder, IsFoundInAnotherBranch)
{
    const NS::Data bookmark = make(m_tree.makeFolder("documents/drafts/folder"));
    m_tree.makeFolder("pictures/old");
    fs::rename(m_tree / "documents/drafts/folder", m_tree / "pictures/old/folder");
    EXPECT_EQ(resolveFolderBookmark(bookmark), m_tree / "pictures/old/folder");
}

TEST_P(MovedFolder, IsFoundWhenTheFoldersAboveItWereRenamed)
{
    const NS::Data bookmark = make(m_tree.makeFolder("a/b/c/folder"));
    fs::rename(m_tree / "a/b", m_tree / "a/renamed");
    EXPECT_EQ(resolveFolderBookmark(bookmark), m_tree / "a/renamed/c/folder");
}

TEST_P(MovedFolder, IsPreferredToWhatIsInItsOldPlaceNow)
{
    const NS::Data bookmark = make(m_tree.makeFolder("folder"));
    fs::rename(m_tree / "folder", m_tree / "moved");
    m_tree.makeFolder("folder");
    EXPECT_EQ(resolveFolderBookmark(bookmark), m_tree / "moved");
    fs::remove(m_tree / "folder");
    fs::create_directory_symlink("moved", m_tree / "folder");
    EXPECT_EQ(resolveFolderBookmark(bookmark), m_tree / "folder") << "it can be reached under the old path";
}

TEST_P(MovedFolder, IsFoundAmongManyFilesAndPastLoopsOfLinks)
{
    const NS::Data bookmark = make(m_tree.makeFolder("a/folder"));
    for (int index = 0; index < 2000; ++index)
        std::ofstream(m_tree / ("a/file" + std::to_string(index)));
    fs::create_directory_symlink("..", m_tree / "a/up");
    fs::create_directory_symlink(".", m_tree / "a/same");
    m_tree.makeFolder("b");
    fs::rename(m_tree / "a/folder", m_tree / "b/folder");
    EXPECT_EQ(resolveFolderBookmark(bookmark), m_tree / "b/folder");
}

TEST(FolderSearch, EndsAfterSoManyEntries)
{
    const TemporaryTree tree;
    const auto identity = FolderIdentity::of(openFolderToIdentify(tree.makeFolder("a/folder")));
    ASSERT_TRUE(identity);
    for (int index = 0; index < 100; ++index)
        std::ofstream(tree / ("a/file" + std::to_string(index)));
    tree.makeFolder("b");
    fs::rename(tree / "a/folder", tree / "b/folder");
    EXPECT_EQ(searchFolderAround(tree / "a/folder", *identity, 100), std::nullopt);
    EXPECT_EQ(searchFolderAround(tree / "a/folder", *identity, 200), tree / "b/folder");
}

TEST(FolderByHandle, IsFoundHoweverFarWhereTheKernelTells)
{
    const TemporaryTree tree;
    const auto identity = FolderIdentity::of(openFolderToIdentify(tree.makeFolder("a/folder")));
    ASSERT_TRUE(identity);
    tree.makeFolder("1/2/3/4/5/6/7/8");
    fs::rename(tree / "a/folder", tree / "1/2/3/4/5/6/7/8/folder");
    const bool told = identity->handle && mayOpenByHandle(*identity->handle, tree.path());
    EXPECT_EQ(folderByHandle(tree / "a/folder", *identity),
              told ? std::optional(tree / "1/2/3/4/5/6/7/8/folder") : std::nullopt);

    fs::remove(tree / "1/2/3/4/5/6/7/8/folder");
    EXPECT_EQ(folderByHandle(tree / "a/folder", *identity), std::nullopt);
}

TEST(FolderByHandle, IsNotToldToTheUnprivileged)
{
    const TemporaryTree tree;
    const auto identity = FolderIdentity::of(openFolderToIdentify(tree.makeFolder("folder")));
    ASSERT_TRUE(identity);
    const Unprivileged unprivileged;
    EXPECT_EQ(folderByHandle(tree / "folder", *identity), std::nullopt);
}
