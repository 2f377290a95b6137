#include "ActionTest.h"
#include "extension/actions/support/Request.h"
#include "support/Files.h"

#include <QTemporaryDir>

#include <array>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace {

namespace fs = std::filesystem;
using MenuExtension::requestFrom;
using namespace std::string_literals;

TEST(Request, PathsAreBytesEachEndedByAZero)
{
    const auto request = requestFrom({}, "/a/b\0/c\n\xff\0"s);
    ASSERT_TRUE(request);
    EXPECT_EQ(request->paths, (std::vector<std::string>{"/a/b", "/c\n\xff"}));
    EXPECT_FALSE(request->background);
}

TEST(Request, SlashesAtTheEndCountForNothing)
{
    const auto request = requestFrom({"--background"}, "/a/b//\0"s);
    ASSERT_TRUE(request);
    EXPECT_EQ(request->paths.front(), "/a/b");
    EXPECT_EQ(requestFrom({}, "//\0"s)->paths.front(), "/");
}

TEST(Request, SlashesInARowAreOne)
{
    const auto request = requestFrom({"--target", "//t///u"}, "//a//b/c\0"s);
    ASSERT_TRUE(request);
    EXPECT_EQ(request->paths.front(), "/a/b/c");
    EXPECT_EQ(request->target, "/t/u");
}

TEST(Request, TheOptionsSayWhoAsksAndWhereTo)
{
    const auto request = requestFrom({"--target", "/t/", "--caller", ":1.7", "--background"}, "/a\0"s);
    ASSERT_TRUE(request);
    EXPECT_EQ(request->target, "/t");
    EXPECT_EQ(request->caller, ":1.7");
    EXPECT_TRUE(request->background);
}

TEST(Request, WhatCouldMeanSomethingElseIsNone)
{
    for (const std::string& input :
         {""s, "/a"s, "/a\0/b"s, "\0"s, "a\0"s, "./a\0"s, "/a/../b\0"s, "/a/.\0"s, "/..\0"s, "/a\0\0"s, "-\0"s})
        EXPECT_FALSE(requestFrom({}, input)) << input;
    EXPECT_TRUE(requestFrom({}, "/..a/b../...\0"s));
    EXPECT_FALSE(requestFrom({"--background"}, "/a\0/b\0"s));
    EXPECT_FALSE(requestFrom({"--other"}, "/a\0"s));
    EXPECT_FALSE(requestFrom({"--target"}, "/a\0"s));
    EXPECT_FALSE(requestFrom({"--target", "t"}, "/a\0"s));
    EXPECT_FALSE(requestFrom({"--target", "/t/../u"}, "/a\0"s));
}

/// A folder that is listed and active, with one in it that is listed and not, and links.
class LinkedItem : public testing::Test {
protected:
    LinkedItem()
    {
        for (const char* folder : {"listed/one", "listed/off", "other", "outside"})
            fs::create_directories(m_root / folder);
        for (const char* file : {"listed/one/file", "listed/off/file", "other/file", "outside/file"})
            Files::write(m_root / file, {});
    }

    /// Makes a link in the listed folder, and gives its path.
    [[nodiscard]] std::string link(const fs::path& target) const
    {
        fs::remove(m_listed / "link");
        fs::create_symlink(target, m_listed / "link");
        return m_listed / "link";
    }
    [[nodiscard]] MenuExtension::Request requestFor(std::string path) const
    {
        MenuExtension::Request request;
        request.paths = {std::move(path)};
        request.scope = MenuExtension::Scope(m_folders);
        return request;
    }
    /// Whether that opens what lies at the path.
    [[nodiscard]] bool opens(const std::string& path, int flags = O_RDONLY) const
    {
        struct stat opened = {};
        struct stat there = {};
        const auto descriptor = openItem(requestFor(path), path, flags);
        return descriptor && ::fstat(descriptor.get(), &opened) == 0 && ::stat(path.c_str(), &there) == 0 &&
               opened.st_ino == there.st_ino;
    }

    QTemporaryDir m_folder;
    const fs::path m_root = fs::canonical(m_folder.path().toStdString());
    const fs::path m_listed = m_root / "listed";
    std::vector<MenuExtension::Folder> m_folders{
        {m_listed, true}, {m_listed / "off", false}, {m_root / "other", true}};
};

TEST_F(LinkedItem, IsReachedWhereItLiesInAnActiveFolder)
{
    for (const fs::path& target : {m_listed / "one", fs::path("one"), m_root / "other", fs::path("../other")}) {
        SCOPED_TRACE(target);
        EXPECT_TRUE(opens(link(target), O_PATH | O_DIRECTORY));
        EXPECT_TRUE(opens(link(target) + "/file"));
        EXPECT_TRUE(opens(link(target / "file")));
    }
}

TEST_F(LinkedItem, IsReachedAnywhereInTheRoot)
{
    m_folders = {{"/", true}};
    EXPECT_TRUE(opens(link(m_root / "outside"), O_PATH | O_DIRECTORY));
    EXPECT_TRUE(opens(link(m_root / "outside") + "/file"));
}

TEST_F(LinkedItem, IsReachedInAFolderThatIsListedByALink)
{
    fs::create_directory_symlink(m_listed, m_root / "name");
    m_folders = {{m_root / "name", true}};
    static_cast<void>(link(m_listed / "one"));
    EXPECT_TRUE(opens(m_root / "name/link/file"));
    static_cast<void>(link(m_root / "outside"));
    EXPECT_FALSE(opens(m_root / "name/link/file"));
}

TEST_F(LinkedItem, IsNotReachedWhereItLiesInNone)
{
    for (const fs::path& target : {m_root / "outside", fs::path("../outside"), m_listed / "off"}) {
        SCOPED_TRACE(target);
        EXPECT_FALSE(opens(link(target), O_PATH | O_DIRECTORY));
        EXPECT_FALSE(opens(link(target) + "/file"));
        EXPECT_FALSE(opens(link(target / "file")));
        EXPECT_FALSE(openFolderOf(requestFor(link(target))).descriptor);
    }
}

TEST_F(LinkedItem, StaysALinkWhereNoneIsToBeFollowed)
{
    EXPECT_FALSE(opens(link(m_listed / "one"), O_RDONLY | O_DIRECTORY | O_NOFOLLOW));
}

TEST_F(LinkedItem, LiesInTheFolderOfTheLinkWhereThatLeadsToNoFolder)
{
    for (const fs::path& target : {m_root / "outside/file", fs::path("../outside/file"), m_root / "gone",
                                   fs::path("gone"), m_listed / "link", fs::path("link"), m_listed / "one/file"}) {
        SCOPED_TRACE(target);
        const auto folder = openFolderOf(requestFor(link(target)));
        EXPECT_TRUE(folder.descriptor);
        EXPECT_EQ(folder.path, m_listed);
    }
    EXPECT_EQ(openFolderOf(requestFor(link(m_listed / "one"))).path, m_listed / "link");
}

class AskedAction : public ActionTest {};

TEST_F(AskedAction, ARequestThatIsNoneFailsInWords)
{
    const Answer answer = runWith("create-new-text-file", {QStringLiteral("--background")}, "relative\0");
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words, "");
    const auto climbing = listed().native() + "/../outside";
    EXPECT_EQ(run("create-new-text-file", {climbing}, {.background = true}).kind, '1');
    EXPECT_EQ(namesIn(outside()), std::vector<std::string>{});
}

TEST_F(AskedAction, MoreThanARequestCanHaveIsNotRead)
{
    const QByteArray endless(qsizetype{65} << 20U, 'a');
    EXPECT_EQ(runWith("add-folders", {}, endless).kind, '1');
}

TEST_F(AskedAction, WhatIsOutOfScopeIsLeftAlone)
{
    const Answer answer = run("create-new-text-file", {outside()}, {.background = true});
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words.find("\"outside\""), std::string::npos);
    EXPECT_EQ(namesIn(outside()), std::vector<std::string>{});
    // The listed folder is an item of the one above it.
    EXPECT_EQ(run("create-new-text-file", {listed()}).kind, '1');
    const Path inner = folder("inner");
    storeFolders({{listed(), true}, {inner, false}});
    for (const std::string& path : {inner.native(), listed().native() + "//inner", inner.native() + "//"})
        EXPECT_EQ(run("create-new-text-file", {path}, {.background = true}).kind, '1') << path;
    EXPECT_EQ(namesIn(inner), std::vector<std::string>{});
}

/// For ActionOptions::before: the kernel does not know how to stay beneath a folder.
void haveAnOldKernel()
{
    std::array filter{sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
                      sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat2, 0, 1),
                      sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS),
                      sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    const sock_fprog program{filter.size(), filter.data()};
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
}

TEST_F(AskedAction, ALinkIsFollowedInAnActiveFolderAloneOnAnOldKernelToo)
{
    const Path docs = folder("docs");
    fs::create_directory_symlink(docs, listed() / "absolute");
    fs::create_directory_symlink("docs", listed() / "relative");
    fs::create_directory_symlink(outside(), listed() / "out");
    const auto create = [this](const char* link) {
        return run("create-new-text-file", {listed() / link}, {.background = true, .before = haveAnOldKernel}).kind;
    };
    EXPECT_EQ(create("absolute"), '0');
    EXPECT_EQ(create("relative"), '0');
    EXPECT_EQ(create("out"), '1');
    EXPECT_EQ(namesIn(docs).size(), 2U);
    EXPECT_EQ(namesIn(outside()), std::vector<std::string>{});
}

TEST_F(AskedAction, OneItemOutOfScopeStopsThemAll)
{
    EXPECT_EQ(run("hide-unhide-item", {file("a"), outside()}).kind, '1');
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{"a"});
}

TEST_F(AskedAction, WithoutSettingsNothingIsInScope)
{
    std::filesystem::remove_all(settingsFolder());
    EXPECT_EQ(run("create-new-text-file", {listed()}, {.background = true}).kind, '1');
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{});
    EXPECT_FALSE(std::filesystem::exists(settingsFolder()));
}

TEST_F(AskedAction, AnItemThatIsGoneIsNamed)
{
    const Answer answer = run("hide-unhide-item", {listed() / "gone"});
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words.find("\"gone\""), std::string::npos);
}

} // namespace
