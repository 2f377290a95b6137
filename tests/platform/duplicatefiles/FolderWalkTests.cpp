#include "../chooser/TemporaryFolder.h"
#include "extension/actions/find-duplicate-files/FolderWalk.h"
#include "support/Files.h"

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <sched.h>
#include <set>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace MenuExtension;
using LinuxDesktop::FileDescriptor;

namespace {

using Names = std::set<std::string>;

class FolderWalkTest : public testing::Test {
protected:
    void add(FolderWalk& walk, const std::string& path)
    {
        walk.addFolder(path, FileDescriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    }
    /// What is collected, by the way from the folder.
    Names collected(Choices choices = {}, const std::vector<std::string>& roots = {})
    {
        FileTree tree;
        FolderWalk walk(
            tree, choices, [this](const std::string& path, const std::string& why) { m_troubles[path] = why; },
            m_stop.get_token());
        for (const std::string& root : roots.empty() ? std::vector{m_folder.path()} : roots)
            add(walk, root);
        Names names;
        for (std::size_t index = 0; index < tree.filesSoFar(); ++index) {
            const std::string path = tree.pathOf(tree.files()[index]);
            EXPECT_TRUE(path.starts_with(m_folder.path())) << path;
            EXPECT_TRUE(names.insert(path.substr(m_folder.path().size() + 1)).second) << path << " is there twice";
        }
        return names;
    }

    TemporaryFolder m_folder;
    std::stop_source m_stop;
    std::map<std::string, std::string> m_troubles;
};

} // namespace

TEST_F(FolderWalkTest, CollectsFilesAtAnyDepth)
{
    m_folder.folder("a");
    m_folder.folder("a/b");
    m_folder.file("top", 1);
    m_folder.file("a/b/deep", 1);
    EXPECT_EQ(collected(), (Names{"top", "a/b/deep"}));
}

TEST_F(FolderWalkTest, TakesNamesAsBytes)
{
    Names expected;
    for (const std::string name : {"a\nb", "-rf", "\xff\xfe\x80", " ", "caf\xC3\xA9", "\x1b[31mred", "*?[a]"}) {
        m_folder.folder(name);
        m_folder.file(name + "/" + name, 1);
        expected.insert(name + "/" + name);
    }
    EXPECT_EQ(collected(), expected);
    EXPECT_TRUE(m_troubles.empty());
}

TEST_F(FolderWalkTest, FollowsNoLinkAndTakesNothingButFiles)
{
    m_folder.folder("a");
    m_folder.file("a/file", 1);
    m_folder.link("link to a folder", m_folder.path("a"));
    m_folder.link("link to a file", m_folder.path("a/file"));
    m_folder.link("a/loop", "..");
    m_folder.link("nowhere", "/nowhere");
    ASSERT_EQ(::mkfifo(m_folder.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(collected({.hidden = true, .empty = true, .system = true}), Names{"a/file"});
    EXPECT_TRUE(m_troubles.empty());
}

TEST_F(FolderWalkTest, HiddenEmptyAndSystemFilesAreAChoice)
{
    m_folder.folder(".hidden folder");
    m_folder.folder("lost+found");
    m_folder.folder("listed");
    m_folder.file(".hidden file", 1);
    m_folder.file(".hidden folder/a", 1);
    m_folder.file("lost+found/a", 1);
    m_folder.file("Thumbs.db", 1);
    m_folder.file("listed/a", 1);
    m_folder.file("listed too", 1);
    m_folder.file("empty");
    m_folder.file("usual", 1);
    Files::write(m_folder.path(".hidden"), "listed\nlisted too\n");
    EXPECT_EQ(collected(), Names{"usual"});
    EXPECT_EQ(collected({.empty = true}), (Names{"usual", "empty"}));
    EXPECT_EQ(collected({.system = true}), (Names{"usual", "lost+found/a", "Thumbs.db"}));
    EXPECT_EQ(collected({.hidden = true}),
              (Names{"usual", ".hidden", ".hidden file", ".hidden folder/a", "listed/a", "listed too"}));
}

TEST_F(FolderWalkTest, OffersNothingThatATransferKeepsForItsUndo)
{
    m_folder.folder(".orvik-menu-0123456789abcdef");
    m_folder.folder(".orvik-menu-pictures");
    m_folder.file(".orvik-menu-0123456789abcdef/1", 1);
    m_folder.file(".orvik-menu-pictures/1", 1);
    EXPECT_EQ(collected({.hidden = true, .system = true}), Names{".orvik-menu-pictures/1"});
}

TEST_F(FolderWalkTest, AHiddenFolderThatWasAskedForIsLookedInto)
{
    m_folder.folder(".config");
    m_folder.file(".config/a", 1);
    EXPECT_EQ(collected({}, {m_folder.path(".config")}), Names{".config/a"});
}

TEST_F(FolderWalkTest, TakesAFolderOnceThatWasAskedForTwice)
{
    m_folder.folder("a");
    m_folder.folder("a/b");
    m_folder.file("a/b/file", 1);
    EXPECT_EQ(collected({}, {m_folder.path("a/b"), m_folder.path("a"), m_folder.path("a")}), Names{"a/b/file"});
}

TEST_F(FolderWalkTest, TellsOfAFolderThatCannotBeReadAndGoesOn)
{
    m_folder.folder("a");
    m_folder.folder("locked");
    m_folder.file("a/file", 1);
    m_folder.file("locked/file", 1);
    m_folder.setMode("locked", 0);
    const OrdinaryUser user;
    EXPECT_EQ(collected(), Names{"a/file"});
    EXPECT_EQ(m_troubles,
              (std::map<std::string, std::string>{{m_folder.path("locked"), "cannot be read: Permission denied"}}));
}

TEST_F(FolderWalkTest, GoesDeeperThanAPathMayBeLong)
{
    const std::string name(200, 'n');
    FileDescriptor at(::open(m_folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    constexpr int depth = 500;
    for (int level = 0; level < depth; ++level) {
        ASSERT_EQ(::mkdirat(at.get(), name.c_str(), 0700), 0);
        at = FileDescriptor(::openat(at.get(), name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (level % 100 == 99) {
            const FileDescriptor file(::openat(at.get(), "file", O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
            ASSERT_EQ(::write(file.get(), "x", 1), 1);
        }
    }
    EXPECT_EQ(collected().size(), 5);
    EXPECT_TRUE(m_troubles.empty());
}

TEST_F(FolderWalkTest, DoesNotLoopWhereAFolderIsMountedInItself)
{
    m_folder.folder("a");
    m_folder.folder("a/mount");
    m_folder.folder("b");
    m_folder.file("a/file", 1);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // In a namespace that ends with this process.
        const bool isMounted =
            (::unshare(CLONE_NEWNS) == 0 || ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0) &&
            ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
            ::mount(m_folder.path("a").c_str(), m_folder.path("a/mount").c_str(), nullptr, MS_BIND, nullptr) == 0 &&
            ::mount(m_folder.path("a").c_str(), m_folder.path("b").c_str(), nullptr, MS_BIND | MS_REC, nullptr) == 0;
        if (!isMounted)
            ::_exit(3);
        // By one path or the other, but by one.
        const Names names = collected();
        ::_exit(names.size() == 1 && names.begin()->ends_with("/file") ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_NE(WEXITSTATUS(status), 3) << "nothing could be mounted";
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(FolderWalkTest, LeavesOutWhatTheKernelTellsOfItself)
{
    m_folder.folder("proc");
    m_folder.folder("memory");
    m_folder.file("file", 1);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const bool isMounted = ::unshare(CLONE_NEWNS) == 0 &&
                               ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                               ::mount("/proc", m_folder.path("proc").c_str(), nullptr, MS_BIND, nullptr) == 0 &&
                               ::mount("memory", m_folder.path("memory").c_str(), "tmpfs", 0, nullptr) == 0;
        if (!isMounted)
            ::_exit(3);
        m_folder.file("memory/file", 1);
        ::_exit(collected({.empty = true}) == Names{"file", "memory/file"} ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_NE(WEXITSTATUS(status), 3) << "nothing could be mounted";
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(FolderWalkTest, StopsWhenItIsAskedTo)
{
    m_folder.file("file", 1);
    m_stop.request_stop();
    EXPECT_EQ(collected(), Names());
}

TEST_F(FolderWalkTest, TakesAllOfAFolderWithVeryManyFiles)
{
    constexpr int many = 12'000;
    for (int index = 0; index < many; ++index)
        Files::write(m_folder.path(std::to_string(index)), "x");
    EXPECT_EQ(collected().size(), many);
}
