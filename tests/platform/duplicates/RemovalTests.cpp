#include "extension/actions/duplicates/Removal.h"

#include "../chooser/TemporaryFolder.h"
#include "platform/linux/system/FileDescriptor.h"
#include "support/Files.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <sched.h>
#include <set>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace MenuExtension::Duplicates;

namespace {

class Removal : public testing::Test {
protected:
    Removal() { fs::create_directory(m_trash); }

    [[nodiscard]] fs::path path(const std::string& name) const { return m_root / name; }
    [[nodiscard]] Item item(const std::string& name) const
    {
        struct stat status = {};
        EXPECT_EQ(::lstat(path(name).c_str(), &status), 0) << name;
        return {.path = path(name), .state = FileState::of(status)};
    }
    /// A group of files with the same content, of which those after the first `staying` are chosen.
    GroupNumber group(const std::vector<std::string>& names, std::size_t staying = 1,
                      const std::string& content = "the same")
    {
        std::vector<Item> items;
        for (const std::string& name : names) {
            Files::write(path(name), content);
            items.push_back(item(name));
        }
        const GroupNumber group = m_groups.add(0, items);
        const auto numbers = m_groups.itemsOf(group);
        for (std::size_t index = staying; index < numbers.size(); ++index)
            EXPECT_TRUE(m_groups.setChosen(numbers[index], true));
        return group;
    }
    /// Names that have gone, and those that stay with the reason.
    void remove()
    {
        removeChosen(m_groups, {.check = m_check, .trash = m_moveToTrash},
                     {.removed = [this](ItemNumber number) { m_gone.push_back(nameOf(number)); },
                      .kept = [this](ItemNumber number, const std::string& why) { m_kept[nameOf(number)] = why; },
                      .missing = [this](ItemNumber number) { m_missing.insert(nameOf(number)); }},
                     m_stop.get_token());
    }
    [[nodiscard]] std::string nameOf(ItemNumber number) const
    {
        return fs::path(m_groups.item(number).path).filename();
    }
    [[nodiscard]] std::vector<std::string> left() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_root)) {
            if (entry.path() != m_trash)
                names.push_back(entry.path().filename());
        }
        std::ranges::sort(names);
        return names;
    }

    const TemporaryFolder m_folder;
    const fs::path m_root = m_folder.path();
    const fs::path m_trash = m_root / "trash";
    Groups m_groups;
    std::stop_source m_stop;
    std::function<std::optional<std::string>(const OpenedItem&, const OpenedItem&, const std::stop_token&)> m_check =
        haveEqualBytes;
    std::function<std::optional<std::string>(const std::string&)> m_moveToTrash =
        [this](const std::string& path) -> std::optional<std::string> {
        fs::rename(path, m_trash / fs::path(path).filename());
        return std::nullopt;
    };
    std::vector<std::string> m_gone;
    std::map<std::string, std::string> m_kept;
    std::set<std::string> m_missing;
};

using Names = std::vector<std::string>;
using Kept = std::map<std::string, std::string>;

} // namespace

TEST_F(Removal, TakesWhatIsChosenAndNothingElse)
{
    group({"a", "b", "c"});
    group({"d", "e", "f"}, 2);
    group({"g", "h"}, 2);
    remove();
    EXPECT_EQ(left(), (Names{"a", "d", "e", "g", "h"}));
    EXPECT_EQ(m_gone, (Names{"b", "c", "f"}));
    EXPECT_EQ(m_kept, Kept());
    EXPECT_TRUE(fs::exists(m_trash / "b"));
}

TEST_F(Removal, KeepsTheLastCopyWhereTheOtherHasVanished)
{
    group({"a", "b"});
    fs::remove(path("a"));
    remove();
    EXPECT_EQ(left(), Names{"b"});
    EXPECT_EQ(m_kept, (Kept{{"b", "is the last copy that is left"}}));
}

TEST_F(Removal, KeepsTheLastCopyWhereTheOthersVanishWhileItGoesOn)
{
    group({"a", "b", "c", "d"}, 2);
    const auto toTrash = m_moveToTrash;
    m_moveToTrash = [&](const std::string& item) {
        fs::remove(path("a"));
        fs::remove(path("b"));
        return toTrash(item);
    };
    remove();
    EXPECT_EQ(m_gone, Names{"c"});
    EXPECT_EQ(left(), Names{"d"});
    EXPECT_EQ(m_kept, (Kept{{"d", "is the last copy that is left"}}));
}

TEST_F(Removal, KeepsTheLastCopyWhereTheOtherVanishesWhileTheyAreCompared)
{
    group({"a", "b"});
    m_check = [&](const OpenedItem& going, const OpenedItem& staying, const std::stop_token& stop) {
        auto equal = haveEqualBytes(going, staying, stop);
        fs::remove(path("a"));
        return equal;
    };
    remove();
    EXPECT_EQ(left(), Names{"b"});
    EXPECT_EQ(m_kept.size(), 1);
}

TEST_F(Removal, TakesAnotherCopyForTheOneThatHasGone)
{
    group({"a", "b", "c"}, 2);
    fs::remove(path("a"));
    remove();
    EXPECT_EQ(left(), Names{"b"});
    EXPECT_EQ(m_gone, Names{"c"});
}

TEST_F(Removal, TellsOfAllThatItDoesNotFindAnyMore)
{
    group({"a", "b", "c", "d"}, 2);
    group({"e", "f"});
    for (const char* name : {"a", "c", "e"})
        fs::remove(path(name));
    Files::write(path("f"), "something else");
    remove();
    EXPECT_EQ(m_gone, Names{"d"});
    EXPECT_EQ(m_kept, (Kept{{"c", "is not there any more"}, {"f", "has changed since it was found"}}));
    EXPECT_EQ(m_missing, (std::set<std::string>{"a", "c"}));
}

TEST_F(Removal, DoesNotCountOneFileUnderAnotherNameAsACopy)
{
    Files::write(path("a"), "the same");
    fs::create_hard_link(path("a"), path("b"));
    const auto numbers = m_groups.itemsOf(m_groups.add(0, {item("a"), item("b")}));
    m_groups.setChosen(numbers[1], true);
    remove();
    EXPECT_EQ(left(), (Names{"a", "b"}));
    EXPECT_EQ(m_kept, (Kept{{"b", "is the last copy that is left"}}));
}

TEST_F(Removal, DoesNotCountOneFileThatTwoFileSystemsShowAsACopy)
{
    for (const char* folder : {"under", "empty", "over"})
        fs::create_directory(path(folder));
    Files::write(path("under/a"), "the only one");
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // In a namespace that ends with this process.
        const std::string folders = "lowerdir=" + path("under").string() + ':' + path("empty").string();
        const bool isMounted = (::unshare(CLONE_NEWNS) == 0 || ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0) &&
                               ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                               ::mount("none", path("over").c_str(), "overlay", 0, folders.c_str()) == 0;
        if (!isMounted)
            ::_exit(3);
        const auto numbers = m_groups.itemsOf(m_groups.add(0, {item("over/a"), item("under/a")}));
        m_groups.setChosen(numbers[1], true);
        remove();
        ::_exit(fs::exists(path("under/a")) &&
                        m_kept == Kept{{"a", "may be the same file as its copy, in two places"}}
                    ? 0
                    : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_NE(WEXITSTATUS(status), 3) << "nothing could be mounted";
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(Removal, DoesNotCountALinkAsACopy)
{
    group({"a", "b"});
    fs::remove(path("a"));
    fs::create_symlink(path("b"), path("a"));
    remove();
    EXPECT_EQ(left(), (Names{"a", "b"}));
    EXPECT_EQ(m_gone, Names());
}

TEST_F(Removal, KeepsWhatHasChangedSinceItWasFound)
{
    group({"a", "b", "c"});
    Files::write(path("b"), "something else");
    fs::remove(path("c"));
    fs::create_symlink(path("a"), path("c"));
    remove();
    EXPECT_EQ(left(), (Names{"a", "b", "c"}));
    EXPECT_EQ(m_kept["b"], "has changed since it was found");
    EXPECT_EQ(m_kept.size(), 2);
}

TEST_F(Removal, KeepsWhatIsNoLongerTheSameUnderTheSameTimes)
{
    group({"a", "b"});
    // Of the same length, and with the old time.
    const auto numbers = m_groups.itemsOf(0);
    struct stat status = {};
    ASSERT_EQ(::stat(path("a").c_str(), &status), 0);
    Files::write(path("a"), "the sAme");
    const timespec times[2] = {status.st_atim, status.st_mtim};
    ASSERT_EQ(::utimensat(AT_FDCWD, path("a").c_str(), times, 0), 0);
    ASSERT_EQ(item("a").state, m_groups.item(numbers[0]).state);
    remove();
    EXPECT_EQ(left(), (Names{"a", "b"}));
    EXPECT_EQ(m_kept, (Kept{{"b", "is not the same as its copy"}}));
}

TEST_F(Removal, DoesNotWaitForAPipeInAFilesPlace)
{
    group({"a", "b", "c"}, 2);
    for (const char* name : {"a", "c"}) {
        fs::remove(path(name));
        ASSERT_EQ(::mkfifo(path(name).c_str(), 0600), 0);
    }
    remove();
    EXPECT_EQ(left(), (Names{"a", "b", "c"}));
    EXPECT_EQ(m_kept, (Kept{{"c", "has changed since it was found"}}));
}

TEST_F(Removal, KeepsOneWhereTwoRemoveWhatTheOtherKeeps)
{
    // The other one begins while this one compares.
    group({"a", "b"});
    Groups groups;
    const auto numbers = groups.itemsOf(groups.add(0, {item("a"), item("b")}));
    groups.setChosen(numbers[0], true);
    std::vector<std::string> othersReasons;
    m_check = [&](const OpenedItem& going, const OpenedItem& staying, const std::stop_token& stop) {
        removeChosen(groups, {.check = haveEqualBytes, .trash = m_moveToTrash},
                     {.removed = [](ItemNumber) { FAIL(); },
                      .kept = [&](ItemNumber, const std::string& why) { othersReasons.push_back(why); },
                      .missing = [](ItemNumber) { FAIL(); }},
                     stop);
        return haveEqualBytes(going, staying, stop);
    };
    remove();
    EXPECT_EQ(left(), Names{"a"});
    EXPECT_EQ(othersReasons, Names{"is in use by another program"});
}

TEST_F(Removal, LeavesWhatAnotherProgramHasLocked)
{
    group({"a", "b", "c"});
    const LinuxDesktop::FileDescriptor file(::open(path("b").c_str(), O_RDONLY | O_CLOEXEC));
    ASSERT_EQ(::flock(file.get(), LOCK_SH), 0);
    remove();
    EXPECT_EQ(left(), (Names{"a", "b"}));
    EXPECT_EQ(m_kept, (Kept{{"b", "is in use by another program"}}));
}

TEST_F(Removal, TellsWhatTheTrashDidNotTakeAndGoesOn)
{
    group({"a", "b", "c"});
    const auto toTrash = m_moveToTrash;
    m_moveToTrash = [&](const std::string& item) -> std::optional<std::string> {
        if (item == path("b"))
            return "could not be moved to the trash: it is full";
        return toTrash(item);
    };
    remove();
    EXPECT_EQ(left(), (Names{"a", "b"}));
    EXPECT_EQ(m_kept, (Kept{{"b", "could not be moved to the trash: it is full"}}));
}

TEST_F(Removal, TheFindersOwnCheckHasTheLastWord)
{
    group({"a", "b", "c"}, 2);
    std::vector<std::string> asked;
    m_check = [&](const OpenedItem& going, const OpenedItem& staying,
                  const std::stop_token&) -> std::optional<std::string> {
        asked.push_back(fs::path(going.item.path).filename().native() +
                        fs::path(staying.item.path).filename().native());
        return "is another picture";
    };
    remove();
    EXPECT_EQ(asked, (Names{"ca", "cb"}));
    EXPECT_EQ(m_kept, (Kept{{"c", "is another picture"}}));
}

TEST_F(Removal, StopsWhenItIsAskedTo)
{
    group({"a", "b", "c", "d"});
    const auto toTrash = m_moveToTrash;
    m_moveToTrash = [&](const std::string& item) {
        m_stop.request_stop();
        return toTrash(item);
    };
    remove();
    EXPECT_EQ(m_gone, Names{"b"});
    EXPECT_EQ(left(), (Names{"a", "c", "d"}));
    EXPECT_EQ(m_kept, Kept());
}

TEST_F(Removal, ComparesLargeFilesToTheirLastByte)
{
    std::string content(3 * 256 * 1024 + 5, 'x');
    group({"a", "b"}, 1, content);
    remove();
    EXPECT_EQ(m_gone, Names{"b"});

    group({"c", "d"}, 1, content);
    const auto numbers = m_groups.itemsOf(1);
    content.back() = 'y';
    Files::write(path("d"), content);
    Item changed = item("d");
    const Item kept = m_groups.item(numbers[0]);
    Groups groups;
    const auto again = groups.itemsOf(groups.add(0, {kept, changed}));
    groups.setChosen(again[1], true);
    m_groups = std::move(groups);
    remove();
    EXPECT_EQ(left(), (Names{"a", "c", "d"}));
    EXPECT_EQ(m_kept, (Kept{{"d", "is not the same as its copy"}}));
}
