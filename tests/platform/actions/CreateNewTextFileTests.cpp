#include "ActionTest.h"
#include "BusStandIns.h"
#include "platform/URL.h"
#include "support/Files.h"

#include <atomic>
#include <cstdio>
#include <fcntl.h>
#include <set>
#include <thread>

namespace {

namespace fs = std::filesystem;

class CreateNewTextFile : public ActionTest {
protected:
    Answer create(const Path& folder, bool background = true, const std::string& caller = {})
    {
        return run("create-new-text-file", {folder}, {.background = background, .caller = caller});
    }
};

TEST_F(CreateNewTextFile, AnEmptyFileWithAFreeNameIsMade)
{
    EXPECT_EQ(create(listed()), done);
    EXPECT_EQ(create(listed()), done);
    fs::create_symlink("nowhere", listed() / "New Text File 3.txt");
    EXPECT_EQ(create(listed()), done);
    EXPECT_EQ(namesIn(listed()), (std::vector<std::string>{"New Text File 2.txt", "New Text File 3.txt",
                                                           "New Text File 4.txt", "New Text File.txt"}));
    EXPECT_EQ(fs::file_size(listed() / "New Text File 4.txt"), 0U);
    EXPECT_FALSE(fs::exists(listed() / "nowhere"));
}

TEST_F(CreateNewTextFile, WhatHasTheNameIsKept)
{
    Files::write(listed() / "New Text File.txt", "mine");
    EXPECT_EQ(create(listed()), done);
    EXPECT_EQ(Files::read(listed() / "New Text File.txt"), "mine");
}

TEST_F(CreateNewTextFile, InAClickedFolderTheFileIsMadeInIt)
{
    for (const std::string& name : hostileNames) {
        SCOPED_TRACE(name);
        EXPECT_EQ(create(folder(name), false), done);
        EXPECT_EQ(namesIn(listed() / name), std::vector<std::string>{"New Text File.txt"});
    }
}

TEST_F(CreateNewTextFile, TheFileManagerShowsItSelected)
{
    FileManagerStandIn asking(busAddress());
    FileManagerStandIn other(busAddress());
    other.takeName();
    const std::string address =
        NS::URL::fileURLWithPath((folder("\xff 50%") / "New Text File.txt").native()).absoluteString();
    EXPECT_EQ(create(listed() / "\xff 50%", true, asking.name()), done);
    EXPECT_EQ(asking.takeCalls(), QStringList{QStringLiteral("ShowItems %1 token-1").arg(address.c_str())});
    EXPECT_EQ(create(folder("docs")), done);
    EXPECT_EQ(other.takeCalls().size(), 1);
}

TEST_F(CreateNewTextFile, ManyAtOnceMakeAFileEach)
{
    const auto answers = runAtOnce("create-new-text-file", std::vector<Paths>(12, {listed()}), {.background = true});
    EXPECT_EQ(answers, std::vector<Answer>(12, done));
    EXPECT_EQ(namesIn(listed()).size(), 12U);
}

TEST_F(CreateNewTextFile, AFolderThatMayNotBeChangedIsNamed)
{
    fs::permissions(folder("locked"), fs::perms::owner_read | fs::perms::owner_exec);
    const Answer answer =
        run("create-new-text-file", {listed() / "locked"}, {.background = true, .caller = {}, .before = obeyRights});
    EXPECT_EQ(answer, (Answer{'1', "No file can be made in \"locked\": Permission denied."}));
}

TEST_F(CreateNewTextFile, NothingIsMadeWhereALinkLeadsOut)
{
    fs::create_directories(outside() / "inner");
    fs::create_directory_symlink(outside(), listed() / "docs");
    EXPECT_EQ(create(listed() / "docs").kind, '1');
    EXPECT_EQ(create(listed() / "docs", false).kind, '1');
    EXPECT_EQ(create(listed() / "docs/inner").kind, '1');
    EXPECT_EQ(namesIn(outside()), std::vector<std::string>{"inner"});
    EXPECT_EQ(namesIn(outside() / "inner"), std::vector<std::string>{});
}

TEST_F(CreateNewTextFile, ALinkSwappedInMeanwhileLeadsNowhere)
{
    const Path real = folder("docs");
    const Path link = listed() / "link";
    fs::create_directory_symlink(outside(), link);
    std::atomic<bool> ended = false;
    std::thread swapping([&] {
        while (!ended)
            ::renameat2(AT_FDCWD, real.c_str(), AT_FDCWD, link.c_str(), RENAME_EXCHANGE);
    });
    std::set<char> kinds;
    for (int round = 0; round < 10; ++round) {
        for (const Answer& answer : runAtOnce("create-new-text-file", std::vector<Paths>(4, {real})))
            kinds.insert(answer.kind);
    }
    ended = true;
    swapping.join();
    EXPECT_EQ(namesIn(outside()), std::vector<std::string>{});
    EXPECT_FALSE(kinds.contains('-'));
}

TEST_F(CreateNewTextFile, ItDoesNotApplyToFilesAndSeveralFolders)
{
    EXPECT_EQ(create(file("a"), false).kind, '2');
    EXPECT_EQ(run("create-new-text-file", {folder("b"), folder("c")}).kind, '2');
    // A file is no place either.
    EXPECT_EQ(create(listed() / "a", true).kind, '2');
    EXPECT_EQ(namesIn(listed()), (std::vector<std::string>{"a", "b", "c"}));
}

} // namespace
