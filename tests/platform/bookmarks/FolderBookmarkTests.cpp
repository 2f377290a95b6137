#include "platform/linux/bookmarks/FolderBookmark.h"

#include "TemporaryTree.h"

#include <fstream>
#include <gtest/gtest.h>
#include <random>

using namespace LinuxDesktop;
namespace fs = std::filesystem;

namespace {

struct FolderBookmark : testing::Test {
    static NS::Data make(const std::string& path)
    {
        const NS::BookmarkData result = makeFolderBookmark(path);
        if (const auto* error = std::get_if<NS::Error>(&result)) {
            ADD_FAILURE() << error->localizedDescription;
            return {};
        }
        return std::get<NS::Data>(result);
    }

    static std::string refusal(const std::string& path)
    {
        const NS::BookmarkData result = makeFolderBookmark(path);
        const auto* error = std::get_if<NS::Error>(&result);
        return error ? error->localizedDescription : "a bookmark";
    }

    TemporaryTree m_tree;
};

} // namespace

TEST_F(FolderBookmark, LeadsToAFolderThatStayed)
{
    const std::string folder = m_tree.makeFolder("folder");
    EXPECT_EQ(resolveFolderBookmark(make(folder)), folder);
    EXPECT_EQ(resolveFolderBookmark(make("/")), "/");
}

TEST_F(FolderBookmark, HasTheSameBytesTwiceAlsoWhenTheContentChanged)
{
    const std::string folder = m_tree.makeFolder("folder");
    const NS::Data first = make(folder);
    fs::create_directory(folder + "/more");
    fs::permissions(folder, fs::perms::owner_all);
    EXPECT_EQ(make(folder), first);
    EXPECT_NE(make(m_tree.makeFolder("another")), first);
}

TEST_F(FolderBookmark, KeepsEveryByteOfAName)
{
    for (const std::string name : {"caf\xe9 \xff", "two\nlines", R"("quoted" 'n \)", " spaces ", "Bücher", "-"}) {
        const std::string folder = m_tree.makeFolder(name);
        EXPECT_EQ(resolveFolderBookmark(make(folder)), folder);
    }
}

TEST_F(FolderBookmark, LeadsToTheLongestPathAndRefusesALongerOne)
{
    constexpr std::size_t longest = 4095;
    std::string folder = m_tree.path();
    while (longest - folder.size() > 256)
        folder += '/' + std::string(200, 'd');
    folder += '/' + std::string(longest - folder.size() - 1, 'e');
    fs::create_directories(folder);
    ASSERT_EQ(folder.size(), longest);
    EXPECT_EQ(resolveFolderBookmark(make(folder)), folder);
    EXPECT_EQ(refusal(folder + "/"), "could not make a bookmark of " + folder + "/: File name too long");
}

TEST_F(FolderBookmark, LeadsThroughASymbolicLinkAsItWasGiven)
{
    m_tree.makeFolder("target/inner");
    fs::create_directory_symlink("target", m_tree / "link");
    EXPECT_EQ(resolveFolderBookmark(make(m_tree / "link")), m_tree / "link");
    EXPECT_EQ(resolveFolderBookmark(make(m_tree / "link/inner")), m_tree / "link/inner");
}

TEST_F(FolderBookmark, IsRefusedInWordsWhereThereIsNoFolder)
{
    std::ofstream(m_tree / "file") << "content";
    fs::create_symlink("nowhere", m_tree / "dangling");
    const auto words = [](const std::string& path, const std::string& why) {
        return "could not make a bookmark of " + path + ": " + why;
    };
    EXPECT_EQ(refusal("/x"), words("/x", "No such file or directory"));
    EXPECT_EQ(refusal(m_tree / "dangling"), words(m_tree / "dangling", "No such file or directory"));
    EXPECT_EQ(refusal(""), words("", "No such file or directory"));
    EXPECT_EQ(refusal(m_tree / "file"), words(m_tree / "file", "Not a directory"));
    EXPECT_EQ(refusal("tmp"), words("tmp", "Invalid argument"));
    const std::string cut = m_tree.path() + std::string("\0", 1) + "/more";
    EXPECT_EQ(refusal(cut), words(cut, "Invalid argument"));
}

TEST_F(FolderBookmark, OfADeletedFolderLeadsNowhere)
{
    const std::string folder = m_tree.makeFolder("folder");
    const NS::Data bookmark = make(folder);
    fs::remove(folder);
    EXPECT_EQ(resolveFolderBookmark(bookmark), std::nullopt);
    std::ofstream(folder) << "a file in its place";
    EXPECT_EQ(resolveFolderBookmark(bookmark), std::nullopt);
}

TEST_F(FolderBookmark, OfADeletedFolderNeverLeadsToAnotherThatGotItsInodeNumber)
{
    const std::string folder = m_tree.makeFolder("folder");
    const NS::Data bookmark = make(folder);
    fs::remove(folder);
    for (int index = 0; index < 50; ++index)
        m_tree.makeFolder("other" + std::to_string(index));
    EXPECT_EQ(resolveFolderBookmark(bookmark), std::nullopt);
}

TEST_F(FolderBookmark, OfAFolderMadeAnewLeadsToTheNewOne)
{
    const std::string folder = m_tree.makeFolder("folder");
    const NS::Data bookmark = make(folder);
    fs::remove(folder);
    fs::create_directory(folder);
    EXPECT_EQ(resolveFolderBookmark(bookmark), folder);
}

TEST_F(FolderBookmark, ThatIsDamagedLeadsNowhere)
{
    NS::Data bookmark = make(m_tree.makeFolder("folder"));
    for (std::size_t length = 0; length < bookmark.size(); ++length)
        EXPECT_EQ(resolveFolderBookmark({bookmark.begin(), bookmark.begin() + static_cast<std::ptrdiff_t>(length)}),
                  std::nullopt)
            << length;
    for (std::size_t index = 0; index < bookmark.size(); ++index) {
        bookmark[index] ^= 0x10;
        EXPECT_EQ(resolveFolderBookmark(bookmark), std::nullopt) << index;
        bookmark[index] ^= 0x10;
    }
    bookmark.push_back(0);
    EXPECT_EQ(resolveFolderBookmark(bookmark), std::nullopt);
}

TEST_F(FolderBookmark, OfRandomBytesLeadsNowhere)
{
    std::mt19937 generator(2);
    for (int round = 0; round < 1000; ++round) {
        NS::Data bytes(generator() % 300);
        for (std::uint8_t& byte : bytes)
            byte = static_cast<std::uint8_t>(generator());
        EXPECT_EQ(resolveFolderBookmark(bytes), std::nullopt);
    }
}
