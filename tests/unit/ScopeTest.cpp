#include "extension/menu/Scope.h"

#include <functional>
#include <gtest/gtest.h>

using namespace MenuExtension;

namespace {

TEST(Scope, OfNoFoldersContainsNothing)
{
    const Scope scope(std::vector<Folder>{});
    for (const char* path : {"/", "/a", "", "a"}) {
        EXPECT_FALSE(scope.containsItem(path)) << path;
        EXPECT_FALSE(scope.containsBackground(path)) << path;
    }
}

TEST(Scope, ContainsWhatLiesInAnActiveFolderAtAnyDepth)
{
    const Scope scope({{"/home/pat", true}});
    EXPECT_TRUE(scope.containsItem("/home/pat/a"));
    EXPECT_TRUE(scope.containsItem("/home/pat/a/b/c.txt"));
    EXPECT_TRUE(scope.containsBackground("/home/pat/a"));
}

TEST(Scope, TakesAListedFolderForItsBackgroundAndNotForAnItem)
{
    const Scope scope({{"/home/pat", true}});
    EXPECT_TRUE(scope.containsBackground("/home/pat"));
    EXPECT_FALSE(scope.containsItem("/home/pat"));
    EXPECT_FALSE(scope.containsItem("/home/pat/"));
    EXPECT_FALSE(scope.containsBackground("/home"));
}

TEST(Scope, ComparesWholeComponents)
{
    const Scope scope({{"/home/pat", true}});
    EXPECT_FALSE(scope.containsItem("/home/patricia/a"));
    EXPECT_FALSE(scope.containsItem("/home/patricia"));
    EXPECT_FALSE(scope.containsBackground("/home/patricia"));
    EXPECT_FALSE(scope.containsItem("/other/home/pat/a"));
}

TEST(Scope, OfTheRootContainsEverythingButTheRootAsAnItem)
{
    const Scope scope({{"/", true}});
    EXPECT_TRUE(scope.containsItem("/a"));
    EXPECT_TRUE(scope.containsItem("/a/b"));
    EXPECT_TRUE(scope.containsBackground("/"));
    EXPECT_FALSE(scope.containsItem("/"));
    EXPECT_FALSE(scope.containsItem(""));
}

TEST(Scope, IsDecidedByTheInnermostFolder)
{
    const Scope scope({{"/a", true}, {"/a/b", false}, {"/a/b/c", true}});
    EXPECT_TRUE(scope.containsItem("/a/x"));
    EXPECT_TRUE(scope.containsItem("/a/b"));
    EXPECT_FALSE(scope.containsItem("/a/b/x"));
    EXPECT_FALSE(scope.containsBackground("/a/b"));
    EXPECT_FALSE(scope.containsItem("/a/b/c"));
    EXPECT_TRUE(scope.containsItem("/a/b/c/x"));
    EXPECT_TRUE(scope.containsBackground("/a/b/c"));

    const Scope inactiveRoot({{"/", false}, {"/a", true}});
    EXPECT_FALSE(inactiveRoot.containsItem("/b/x"));
    EXPECT_FALSE(inactiveRoot.containsItem("/a"));
    EXPECT_TRUE(inactiveRoot.containsItem("/a/x"));
}

TEST(Scope, TakesNoNoticeOfSlashesAtTheEnd)
{
    const Scope scope({{"/a/b///", true}});
    EXPECT_TRUE(scope.containsItem("/a/b/c"));
    EXPECT_TRUE(scope.containsItem("/a/b/c//"));
    EXPECT_TRUE(scope.containsBackground("/a/b/"));
    EXPECT_FALSE(scope.containsItem("/a/b/"));
    EXPECT_TRUE(Scope({{"///", true}}).containsItem("/a"));
}

TEST(Scope, TakesSlashesInARowForOne)
{
    const Scope scope({{"//a///b", true}, {"/a/b//c", false}});
    EXPECT_TRUE(scope.containsItem("/a/b/x"));
    EXPECT_FALSE(scope.containsItem("/a/b/c/x"));
    EXPECT_FALSE(scope.containsItem("/a/b//c/x"));
    EXPECT_FALSE(scope.containsBackground("//a/b//c"));
    EXPECT_TRUE(scope.containsItem("/a//b//c"));
    EXPECT_EQ(scope.folderOfItem("/a/b/x"), "/a/b");
    EXPECT_EQ(bytesOf({{"//a///b//", true}}), std::string("+/a/b/\0", 7));
}

TEST(Scope, ComparesBytes)
{
    const Scope scope({{"/caf\u00e9", true}, {"/\xff", true}});
    EXPECT_TRUE(scope.containsItem("/caf\u00e9/a"));
    EXPECT_FALSE(scope.containsItem("/cafe\u0301/a"));
    EXPECT_FALSE(scope.containsItem("/CAF\u00c9/a"));
    EXPECT_TRUE(scope.containsItem("/\xff/\xfe\n"));
    EXPECT_TRUE(scope.containsItem(std::string_view("/caf\u00e9/a\0b", 10)));
}

TEST(Scope, OfAFolderListedTwiceIsAsTheFirstSays)
{
    EXPECT_TRUE(Scope({{"/a", true}, {"/a/", false}}).containsItem("/a/b"));
    EXPECT_FALSE(Scope({{"/a", false}, {"/a/", true}}).containsItem("/a/b"));
}

TEST(Scope, TakesNoNoticeOfWhatIsNoAbsolutePath)
{
    const Scope scope({{"", true}, {"a", true}, {"./", true}});
    EXPECT_FALSE(scope.containsItem("/x"));
    EXPECT_FALSE(scope.containsItem("a/x"));
    EXPECT_FALSE(scope.containsBackground("a"));
    EXPECT_FALSE(Scope({{"/", true}}).containsItem("a/x"));
    EXPECT_TRUE(Scope({{std::string(4095, '/'), true}}).containsItem("/x"));
    EXPECT_FALSE(Scope({{std::string(4096, '/'), true}}).containsItem("/x"));
}

TEST(Scope, NamesTheFolderThatDecides)
{
    const Scope scope({{"/a/", true}, {"/", false}});
    ASSERT_TRUE(scope.folderOfItem("/a/b"));
    EXPECT_EQ(*scope.folderOfItem("/a/b"), "/a");
    EXPECT_FALSE(scope.folderOfItem("/b/c"));
}

TEST(Scope, IsTheSameOfTheBytesThatArePublished)
{
    const std::vector<Folder> folders{{"/a/", true}, {"/a/b", false}, {"", true}, {"/\xff\n", true}};
    const std::string bytes = bytesOf(folders);
    EXPECT_EQ(bytes, std::string("+/a/\0-/a/b\0+\0+/\xff\n\0", 18));
    const auto scope = Scope::fromBytes(bytes);
    ASSERT_TRUE(scope);
    EXPECT_TRUE(scope->containsItem("/a/x"));
    EXPECT_FALSE(scope->containsItem("/a/b/x"));
    EXPECT_TRUE(scope->containsItem("/\xff\n/x"));
    EXPECT_FALSE(scope->containsItem("/x"));
    EXPECT_FALSE(Scope::fromBytes("").value_or(Scope({{"/", true}})).containsItem("/x"));
    // No file has such a name.
    EXPECT_EQ(bytesOf({{std::string("/a\0b", 4), true}}), "");
}

TEST(Scope, IsNotOfOtherBytes)
{
    for (const std::string_view bytes : {std::string_view("+/a"), std::string_view("/a\0", 3),
                                         std::string_view("+/a\0\0", 5), std::string_view("+/a\0*/b\0", 8)})
        EXPECT_FALSE(Scope::fromBytes(bytes));
}

TEST(Scope, IsOfNoMoreBytesAndFoldersThanAPersonCanHave)
{
    EXPECT_TRUE(Scope::fromBytes('+' + std::string(Scope::mostBytes - 2, '/') + '\0'));
    EXPECT_FALSE(Scope::fromBytes('+' + std::string(Scope::mostBytes - 1, '/') + '\0'));

    std::vector<Folder> folders(Scope::mostFolders, {"/folder/of/the/list", true});
    folders.back().path = "/last";
    EXPECT_TRUE(Scope::fromBytes(bytesOf(folders)).value_or(Scope()).containsItem("/last/x"));
    folders.push_back({"/one/more", true});
    EXPECT_FALSE(Scope::fromBytes(bytesOf(folders)));
}

TEST(Scope, IsNotOfFoldersThatAreChosenToBeSlow)
{
    // All of them want one place in the table.
    std::vector<Folder> folders;
    for (int number = 0; folders.size() < 400; ++number) {
        std::string path = '/' + std::to_string(number);
        if (std::hash<std::string_view>()(path) % 1024 == 0)
            folders.push_back({std::move(path), true});
    }
    EXPECT_FALSE(Scope::fromBytes(bytesOf(folders)));
    EXPECT_FALSE(Scope(folders).containsItem(folders.front().path + "/x"));
}

TEST(Scope, FindsItsWayAmongManyFoldersAndInADeepPath)
{
    std::vector<Folder> folders;
    std::string deep;
    for (int i = 0; i < 10'000; ++i)
        folders.push_back({"/list/" + std::to_string(i), i % 2 == 0});
    for (int i = 0; i < 1'000; ++i)
        deep += "/d";
    const Scope scope(folders);
    EXPECT_TRUE(scope.containsItem("/list/9998" + deep));
    EXPECT_FALSE(scope.containsItem("/list/9999" + deep));
    EXPECT_FALSE(scope.containsItem(deep));
}

} // namespace
