#include "ActionTest.h"
#include "support/Files.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class HideUnhideItem : public ActionTest {
protected:
    Answer toggle(const Paths& paths) { return run("hide-unhide-item", paths); }
    [[nodiscard]] Path list() const { return listed() / ".hidden"; }
    [[nodiscard]] std::string listText() const { return Files::read(list()); }
};

TEST_F(HideUnhideItem, AnItemIsHiddenAndUnhidden)
{
    const Path item = file("notes.txt", "text");
    EXPECT_EQ(toggle({item}), done);
    EXPECT_EQ(listText(), "notes.txt\n");
    EXPECT_EQ(toggle({item}), done);
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{"notes.txt"});
    EXPECT_EQ(Files::read(item), "text");
}

TEST_F(HideUnhideItem, OtherLinesKeepTheirBytes)
{
    const std::string others = "one\r\n\n\xff\xfe\n one \nlast without an end";
    Files::write(list(), others);
    EXPECT_EQ(toggle({file("a")}), done);
    EXPECT_EQ(listText(), others + "\na\n");
    EXPECT_EQ(toggle({listed() / "a"}), done);
    EXPECT_EQ(listText(), others + '\n');
}

TEST_F(HideUnhideItem, ASelectionOfWhichOneShowsIsHidden)
{
    const Paths items{file("a"), folder("b"), file("c")};
    Files::write(list(), "b\n");
    EXPECT_EQ(toggle(items), done);
    EXPECT_EQ(listText(), "b\na\nc\n");
    EXPECT_EQ(toggle(items), done);
    EXPECT_FALSE(fs::exists(list()));
}

TEST_F(HideUnhideItem, EveryNameButOneWithALineEndIsHidden)
{
    Paths items;
    std::string expected;
    for (const std::string& name : hostileNames) {
        items.push_back(file(name));
        if (name.find('\n') == std::string::npos)
            expected += name + '\n';
    }
    const Answer answer = toggle(items);
    EXPECT_EQ(listText(), expected);
    EXPECT_EQ(answer.kind, '1');
    EXPECT_EQ(answer.words, "\"a\xE2\x86\xB5"
                            "b\" cannot be hidden, since its name has a line end. Rename it and try again.");
    EXPECT_EQ(toggle({items.begin() + 1, items.end()}), done);
    EXPECT_FALSE(fs::exists(list()));
}

TEST_F(HideUnhideItem, AnItemOfADotIsRenamedWhereTheNameIsFree)
{
    EXPECT_EQ(toggle({file(".notes", "text")}), done);
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{"notes"});
    EXPECT_EQ(Files::read(listed() / "notes"), "text");
    EXPECT_EQ(toggle({folder("..two")}), done);
    EXPECT_TRUE(fs::is_directory(listed() / "two"));
}

TEST_F(HideUnhideItem, AnItemOfADotStaysWhereTheNameIsTaken)
{
    file(".notes", "hidden");
    file("notes", "shown");
    Files::write(list(), "listed\n");
    const Answer answer = toggle({listed() / ".notes", file("listed")});
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words.find("\".notes\""), std::string::npos);
    EXPECT_NE(answer.words.find("already"), std::string::npos);
    EXPECT_EQ(Files::read(listed() / ".notes"), "hidden");
    EXPECT_EQ(Files::read(listed() / "notes"), "shown");
    // The rest goes on.
    EXPECT_FALSE(fs::exists(list()));
}

TEST_F(HideUnhideItem, AnItemOfADotCountsAsHiddenAndIsNotListed)
{
    EXPECT_EQ(toggle({file(".a"), file("b")}), done);
    EXPECT_EQ(listText(), "b\n");
    EXPECT_EQ(toggle({listed() / ".a", listed() / "b"}), done);
    EXPECT_EQ(namesIn(listed()), (std::vector<std::string>{"a", "b"}));
}

TEST_F(HideUnhideItem, ANameThatIsListedShowsOnceItsDotIsGone)
{
    Files::write(list(), ".a\na\nother\n");
    EXPECT_EQ(toggle({file(".a")}), done);
    EXPECT_EQ(listText(), "other\n");
}

TEST_F(HideUnhideItem, NamesThatHaveNothingButDotsAndTheListItselfStay)
{
    Files::write(list(), "x\n");
    EXPECT_EQ(toggle({file("..."), list()}).kind, '1');
    EXPECT_EQ(namesIn(listed()), (std::vector<std::string>{"...", ".hidden"}));
    EXPECT_EQ(listText(), "x\n");
}

TEST_F(HideUnhideItem, EachFolderHasItsOwnList)
{
    const Path a = folder("a");
    const Path b = folder("b");
    Files::write(a / "one", {});
    Files::write(b / "two", {});
    Files::write(b / ".hidden", "two\n");
    EXPECT_EQ(toggle({a / "one", b / "two"}), done);
    EXPECT_EQ(Files::read(a / ".hidden"), "one\n");
    EXPECT_EQ(Files::read(b / ".hidden"), "two\n");
    EXPECT_EQ(toggle({a / "one", b / "two"}), done);
    EXPECT_FALSE(fs::exists(a / ".hidden"));
    EXPECT_FALSE(fs::exists(b / ".hidden"));
}

TEST_F(HideUnhideItem, WhereOneFolderCannotBeChangedTheRestGoesOn)
{
    const Path locked = folder("locked");
    const Path free = folder("open");
    Files::write(locked / "one", {});
    Files::write(free / "two", {});
    fs::permissions(locked, fs::perms::owner_read | fs::perms::owner_exec);
    const Answer answer = run("hide-unhide-item", {locked / "one", free / "two"},
                              {.background = false, .caller = {}, .before = obeyRights});
    EXPECT_EQ(answer, (Answer{'1', "What is hidden in \"locked\" cannot be changed: Permission denied."}));
    EXPECT_EQ(Files::read(free / ".hidden"), "two\n");
    fs::permissions(locked, fs::perms::owner_all);
}

TEST_F(HideUnhideItem, ADiskThatIsFullLeavesTheListWhole)
{
    Files::write(list(), "old\n");
    const Answer answer =
        run("hide-unhide-item", {file("a")}, {.background = false, .caller = {}, .before = forbidWriting});
    EXPECT_EQ(answer, (Answer{'1', "What is hidden in \"listed\" cannot be changed: File too large."}));
    EXPECT_EQ(listText(), "old\n");
    EXPECT_EQ(namesIn(listed()), (std::vector<std::string>{".hidden", "a"}));
}

TEST_F(HideUnhideItem, WhatAKilledOneLeftIsNoHindrance)
{
    file(".hidden.orvik-menu", "half a li");
    EXPECT_EQ(toggle({file("a")}), done);
    EXPECT_EQ(listText(), "a\n");
    EXPECT_EQ(namesIn(listed()), (std::vector<std::string>{".hidden", "a"}));
}

TEST_F(HideUnhideItem, TheListKeepsItsRights)
{
    Files::write(list(), "x\n");
    fs::permissions(list(), fs::perms(0640));
    EXPECT_EQ(toggle({file("a")}), done);
    EXPECT_EQ(fs::status(list()).permissions(), fs::perms(0640));
}

TEST_F(HideUnhideItem, AListThatIsALinkIsNeitherReadNorChanged)
{
    Files::write(outside() / "list", "secret\n");
    fs::create_symlink(outside() / "list", list());
    const Answer answer = toggle({file("a")});
    EXPECT_EQ(answer.kind, '1');
    EXPECT_EQ(Files::read(outside() / "list"), "secret\n");
    EXPECT_TRUE(fs::is_symlink(list()));
}

TEST_F(HideUnhideItem, AListThatIsNoFileIsNotWaitedFor)
{
    ASSERT_EQ(::mkfifo(list().c_str(), 0600), 0);
    EXPECT_EQ(toggle({file("a")}).kind, '1');
}

TEST_F(HideUnhideItem, LinksAreItemsThemselves)
{
    fs::create_symlink(outside(), listed() / "link");
    fs::create_symlink("nowhere", listed() / ".broken");
    EXPECT_EQ(toggle({listed() / "link"}), done);
    EXPECT_EQ(listText(), "link\n");
    EXPECT_EQ(toggle({listed() / ".broken"}), done);
    EXPECT_TRUE(fs::is_symlink(listed() / "broken"));
}

TEST_F(HideUnhideItem, InAFolderThatALinkLeadsToOutsideNothingIsDone)
{
    Files::write(outside() / "a", {});
    fs::create_directory_symlink(outside(), listed() / "docs");
    EXPECT_EQ(toggle({listed() / "docs/a"}).kind, '1');
    EXPECT_EQ(namesIn(outside()), std::vector<std::string>{"a"});
}

TEST_F(HideUnhideItem, ALinkSwappedInMeanwhileLeadsNowhere)
{
    const Path real = folder("docs");
    const Path link = listed() / "link";
    for (const Path& place : {real, outside()})
        Files::write(place / "a", {});
    fs::create_directory_symlink(outside(), link);
    std::atomic<bool> ended = false;
    std::thread swapping([&] {
        while (!ended)
            ::renameat2(AT_FDCWD, real.c_str(), AT_FDCWD, link.c_str(), RENAME_EXCHANGE);
    });
    for (int round = 0; round < 10; ++round)
        runAtOnce("hide-unhide-item", std::vector<Paths>(4, {real / "a"}));
    ended = true;
    swapping.join();
    EXPECT_EQ(namesIn(outside()), std::vector<std::string>{"a"});
}

TEST_F(HideUnhideItem, OfManyAtOnceNoneIsLost)
{
    std::vector<Paths> requests;
    for (int number = 0; number < 12; ++number)
        requests.push_back({file("item " + std::to_string(number))});
    EXPECT_EQ(runAtOnce("hide-unhide-item", requests), std::vector<Answer>(12, done));
    for (const Paths& request : requests)
        EXPECT_NE(listText().find(request.front().filename().native() + '\n'), std::string::npos);
}

TEST_F(HideUnhideItem, OneThatHasTheLockIsWaitedFor)
{
    const int holder = ::open(listed().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(::flock(holder, LOCK_EX), 0);
    bool changedBefore = false;
    std::thread ending([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        changedBefore = fs::exists(list());
        ::close(holder);
    });
    EXPECT_EQ(toggle({file("a")}), done);
    ending.join();
    EXPECT_FALSE(changedBefore);
    EXPECT_EQ(listText(), "a\n");
}

TEST_F(HideUnhideItem, TenThousandItemsAreOneChange)
{
    Paths items;
    for (int number = 0; number < 10'000; ++number)
        items.push_back(file("item " + std::to_string(number)));
    EXPECT_EQ(toggle(items), done);
    const std::string text = listText();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 10'000);
    EXPECT_EQ(toggle(items), done);
    EXPECT_FALSE(fs::exists(list()));
}

TEST_F(HideUnhideItem, ItDoesNotApplyToABackground)
{
    EXPECT_EQ(run("hide-unhide-item", {listed()}, {.background = true}).kind, '2');
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{});
}

} // namespace
