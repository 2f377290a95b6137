#include "../chooser/TemporaryFolder.h"
#include "Heard.h"
#include "extension/actions/find-duplicate-files/DuplicateFileFinder.h"
#include "support/Files.h"

#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace MenuExtension;
using LinuxDesktop::FileDescriptor;
using Groups = std::set<Heard::Paths>;

namespace {

class DuplicateFiles : public testing::Test {
protected:
    std::string make(const std::string& name, const std::string& content)
    {
        fs::create_directories(fs::path(m_folder.path(name)).parent_path());
        Files::write(m_folder.path(name), content);
        return m_folder.path(name);
    }
    void find(Choices choices = {}, std::vector<std::string> paths = {})
    {
        if (paths.empty())
            paths.push_back(m_folder.path());
        DuplicateFileFinder finder(
            paths,
            [](const std::string& path, int flags) {
                return FileDescriptor(::open(path.c_str(), flags | O_CLOEXEC));
            },
            choices);
        finder.find(m_heard, m_stop.get_token());
        EXPECT_FALSE(m_heard.isRepeated());
    }
    [[nodiscard]] Groups groupsOf(const std::vector<std::vector<std::string>>& names) const
    {
        Groups groups;
        for (const auto& group : names) {
            Heard::Paths paths;
            for (const std::string& name : group)
                paths.insert(m_folder.path(name));
            groups.insert(paths);
        }
        return groups;
    }

    TemporaryFolder m_folder;
    Heard m_heard;
    std::stop_source m_stop;
};

/// Sizes around every border between two ways of reading.
const std::vector<std::size_t> sizes{1,       4095,    4096,    16'384,  32'768,    131'072,
                                     131'073, 262'144, 262'145, 524'288, 1'000'003, 5'000'000};

} // namespace

TEST_F(DuplicateFiles, AreThoseThatHoldTheSameBytes)
{
    std::vector<std::vector<std::string>> expected;
    for (const std::size_t size : sizes) {
        const std::string name = std::to_string(size);
        const std::string content = Files::noise(size);
        make(name + "/a", content);
        make(name + "/b", content);
        make(name + "/deep/c", content);
        expected.push_back({name + "/a", name + "/b", name + "/deep/c"});
        if (size == 1)
            continue;
        // One that differs at the beginning, in the middle, at the end.
        for (const std::size_t place : {std::size_t{0}, size / 2, size - 1}) {
            std::string other = content;
            other[place] = static_cast<char>(other[place] ^ 0x55);
            make(name + "/other" + std::to_string(place), other);
        }
        // And one that is longer by what may not count.
        make(name + "/longer", content + '\0');
    }
    // The longer ones of one size that is the same as another's.
    find();
    EXPECT_EQ(m_heard.groups(), groupsOf(expected));
    EXPECT_TRUE(m_heard.troubles().empty());
}

TEST_F(DuplicateFiles, HaveAnyNames)
{
    std::vector<std::string> names{"\xff\xfe",   "a\nb",        "-rf",          " ",
                                   "$(touch x)", "caf\xC3\xA9", "cafe\xCC\x81", std::string(255, 'n')};
    for (const std::string& name : names)
        make(name, "the same");
    find();
    EXPECT_EQ(m_heard.groups(), groupsOf({names}));
}

TEST_F(DuplicateFiles, AreNotOneFileUnderTwoNamesOrByTwoPaths)
{
    make("a", "alone");
    fs::create_hard_link(m_folder.path("a"), m_folder.path("b"));
    m_folder.link("link", "a");
    make("folder/x", "twice");
    make("folder/y", "twice");
    fs::create_hard_link(m_folder.path("folder/x"), m_folder.path("folder/x again"));
    m_folder.link("link to folder", "folder");
    find({}, {m_folder.path(), m_folder.path("folder"), m_folder.path("folder/x"), m_folder.path("folder/x")});
    ASSERT_EQ(m_heard.groups().size(), 1);
    EXPECT_EQ(m_heard.groups().begin()->size(), 2);
    EXPECT_TRUE(m_heard.groups().begin()->contains(m_folder.path("folder/y")));
}

TEST_F(DuplicateFiles, ArePairsOfSelectedFiles)
{
    const std::vector<std::string> selected{make("one/a", "same"), make("two/b", "same"), make("three/c", "else")};
    make("one/not asked for", "same");
    find({}, selected);
    EXPECT_EQ(m_heard.groups(), groupsOf({{"one/a", "two/b"}}));
}

TEST_F(DuplicateFiles, AreFoundInAllThatWasSelected)
{
    make("one/a", "same");
    make("two/deep/b", "same");
    make("c", "same");
    make("not asked for", "same");
    find({}, {m_folder.path("one"), m_folder.path("two"), m_folder.path("c")});
    EXPECT_EQ(m_heard.groups(), groupsOf({{"one/a", "two/deep/b", "c"}}));
}

TEST_F(DuplicateFiles, ALinkThatWasSelectedIsNotFollowedAndAPipeIsNotRead)
{
    make("folder/a", "same");
    make("folder/b", "same");
    m_folder.link("link", "folder");
    ASSERT_EQ(::mkfifo(m_folder.path("pipe").c_str(), 0600), 0);
    find({}, {m_folder.path("link"), m_folder.path("pipe"), m_folder.path("gone")});
    EXPECT_EQ(m_heard.groups(), Groups());
    EXPECT_EQ(m_heard.troubles(), (std::map<std::string, std::string>{
                                      {m_folder.path("link"), "is a link, and those are not followed"},
                                      {m_folder.path("pipe"), "is neither a file nor a folder"},
                                      {m_folder.path("gone"), "cannot be read: No such file or directory"}}));
}

TEST_F(DuplicateFiles, EmptyOnesAreOneGroupWhereTheyAreAskedFor)
{
    make("a", "");
    make("b", "");
    find();
    EXPECT_EQ(m_heard.groups(), Groups());
    find({.empty = true});
    EXPECT_EQ(m_heard.groups(), groupsOf({{"a", "b"}}));
}

TEST_F(DuplicateFiles, OneThatMayNotBeReadIsToldOfAndTheOthersAreFound)
{
    for (const char* name : {"a", "b", "c"})
        make(name, "same");
    const std::string large = Files::noise(300'000);
    for (const char* name : {"d", "e", "f"})
        make(name, large);
    m_folder.setMode("b", 0);
    m_folder.setMode("e", 0);
    const OrdinaryUser user;
    find();
    EXPECT_EQ(m_heard.groups(), groupsOf({{"a", "c"}, {"d", "f"}}));
    EXPECT_EQ(m_heard.troubles(),
              (std::map<std::string, std::string>{{m_folder.path("b"), "cannot be read: Permission denied"},
                                                  {m_folder.path("e"), "cannot be read: Permission denied"}}));
}

TEST_F(DuplicateFiles, HolesAreTheZeroesThatTheyStandFor)
{
    make("zeroes", std::string(1'000'000, '\0'));
    make("hole", "");
    ASSERT_EQ(::truncate(m_folder.path("hole").c_str(), 1'000'000), 0);
    find();
    EXPECT_EQ(m_heard.groups(), groupsOf({{"zeroes", "hole"}}));
}

TEST_F(DuplicateFiles, ThoseThatVanishOrChangeWhileItGoesOnAreNotTaken)
{
    // Large enough that they are found after the small ones that are found ahead.
    const std::string large = Files::noise(6'000'000);
    for (const char* name : {"a", "b", "c", "d", "e"})
        make(name, large);
    make("small", "same");
    make("small too", "same");
    m_heard.whenFound = [&, isFirst = true]() mutable {
        if (!std::exchange(isFirst, false))
            return;
        fs::remove(m_folder.path("b"));
        Files::write(m_folder.path("c"), "shorter");
        fs::remove(m_folder.path("d"));
        EXPECT_EQ(::mkfifo(m_folder.path("d").c_str(), 0600), 0);
    };
    find();
    EXPECT_EQ(m_heard.groups(), groupsOf({{"a", "e"}, {"small", "small too"}}));
    const auto& troubles = m_heard.troubles();
    EXPECT_EQ(troubles.at(m_folder.path("b")), "is not there any more");
    EXPECT_EQ(troubles.at(m_folder.path("c")), "changed while it was read");
    EXPECT_TRUE(troubles.contains(m_folder.path("d")));
    EXPECT_EQ(troubles.size(), 3);
}

TEST_F(DuplicateFiles, AFolderThatKeepsChangingDoesNoHarm)
{
    for (int index = 0; index < 400; ++index)
        make("steady/" + std::to_string(index), Files::noise(static_cast<std::size_t>(1000 + index / 2)));
    std::atomic<bool> ends = false;
    std::jthread changing([&] {
        for (unsigned turn = 0; !ends; ++turn) {
            const std::string name = "changing/" + std::to_string(turn % 50);
            make(name, Files::noise(1000 + turn % 300));
            fs::remove(m_folder.path("changing/" + std::to_string((turn + 25) % 50)));
        }
    });
    for (int turn = 0; turn < 5; ++turn) {
        Heard heard;
        DuplicateFileFinder finder({m_folder.path()}, [](const std::string& path, int flags) {
            return FileDescriptor(::open(path.c_str(), flags | O_CLOEXEC));
        });
        finder.find(heard, {});
        std::set<std::string> steady;
        for (const auto& group : heard.groups()) {
            for (const std::string& path : group) {
                if (path.starts_with(m_folder.path("steady/")))
                    steady.insert(path);
            }
        }
        EXPECT_EQ(steady.size(), 400);
        for (const auto& [path, why] : heard.troubles())
            EXPECT_FALSE(path.starts_with(m_folder.path("steady/"))) << why;
    }
    ends = true;
}

TEST_F(DuplicateFiles, AChoiceCountsForTheNextSearch)
{
    make(".a", "same");
    make(".b", "same");
    DuplicateFileFinder finder({m_folder.path()}, [](const std::string& path, int flags) {
        return FileDescriptor(::open(path.c_str(), flags | O_CLOEXEC));
    });
    finder.find(m_heard, {});
    EXPECT_EQ(m_heard.groups(), Groups());
    finder.setChoices({.hidden = true});
    finder.find(m_heard, {});
    EXPECT_EQ(m_heard.groups(), groupsOf({{".a", ".b"}}));
}

TEST_F(DuplicateFiles, NothingIsToldAfterItWasAskedToStop)
{
    for (int index = 0; index < 100; ++index)
        make(std::to_string(index), Files::noise(static_cast<std::size_t>(200'000 + index / 2)));
    m_heard.whenFound = [this] { m_stop.request_stop(); };
    find();
    // One round is told to its end.
    EXPECT_LT(m_heard.groups().size(), 50);
    EXPECT_TRUE(m_heard.troubles().empty());
}

TEST_F(DuplicateFiles, ProgressNeverGoesBackAndEndsWithinItsTotal)
{
    for (int index = 0; index < 30; ++index)
        make(std::to_string(index), Files::noise(static_cast<std::size_t>(2'000'000 + index / 3)));
    find();
    std::uint64_t done = 0;
    for (const auto& progress : m_heard.progresses()) {
        EXPECT_LE(done, progress.done);
        EXPECT_LE(progress.done, progress.total);
        done = progress.done;
    }
    EXPECT_EQ(m_heard.groups().size(), 10);
}

TEST_F(DuplicateFiles, WhatIsFoundAheadIsNotToldTwiceAndGroupsAreWhole)
{
    // Many small groups, some of which are found ahead.
    std::vector<std::vector<std::string>> expected;
    for (int group = 0; group < 300; ++group) {
        const std::string content = Files::noise(static_cast<std::size_t>(2000 + group));
        std::vector<std::string> names;
        for (int copy = 0; copy < 2 + group % 4; ++copy)
            names.push_back(std::to_string(copy) + "/" + std::to_string(group));
        for (const std::string& name : names)
            make(name, content);
        expected.push_back(names);
    }
    find();
    EXPECT_EQ(m_heard.groups(), groupsOf(expected));
}
