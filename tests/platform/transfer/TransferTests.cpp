#include "TransferTest.h"
#include "support/Files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <linux/magic.h>
#include <optional>
#include <sched.h>
#include <set>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <tuple>
#include <unistd.h>

namespace {

using namespace MenuExtension::Transfers;
namespace fs = std::filesystem;

/// For an ordinary user, who may mount something then.
bool becomeRootOfOneself()
{
    const auto user = std::to_string(::geteuid());
    const auto group = std::to_string(::getegid());
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    Files::write("/proc/self/setgroups", "deny");
    Files::write("/proc/self/uid_map", user + ' ' + user + " 1");
    Files::write("/proc/self/gid_map", group + ' ' + group + " 1");
    return true;
}

/// In a process of its own, whose mounts end with it.
void expectAmongMounts(const std::function<bool()>& mount, const std::function<void()>& body)
{
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const bool isMounted = (::unshare(CLONE_NEWNS) == 0 || becomeRootOfOneself()) &&
                               ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 && mount();
        if (!isMounted)
            ::_exit(3);
        try {
            body();
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
        ::_exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_NE(WEXITSTATUS(status), 3) << "nothing could be mounted";
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

bool mountMemory(const fs::path& at, const char* options = nullptr)
{
    return ::mount("memory", at.c_str(), "tmpfs", 0, options) == 0;
}

/// The folder once more, by another way.
bool mountAgain(const fs::path& folder, const fs::path& at)
{
    return ::mount(folder.c_str(), at.c_str(), nullptr, MS_BIND, nullptr) == 0;
}

ino_t numberOf(const fs::path& path)
{
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 ? status.st_ino : 0;
}

/// Everything that holds for moves and copies, within a file system and between two.
class Transfers : public TransferTest, public testing::WithParamInterface<std::tuple<bool, bool>> {
protected:
    Transfers() : TransferTest(std::get<1>(GetParam()) ? Disks::Two : Disks::One) {}

    [[nodiscard]] static What what() { return isMove() ? What::Move : What::Copy; }
    [[nodiscard]] static bool isMove() { return std::get<0>(GetParam()); }
    [[nodiscard]] static bool isBetweenTwo() { return std::get<1>(GetParam()); }

    Result run(const std::vector<fs::path>& items) { return TransferTest::run(what(), items); }
    /// Nothing is wrong, and so many are done.
    void expectDone(const Result& result, std::size_t count = 1)
    {
        EXPECT_EQ(result.done, count);
        EXPECT_EQ(kindsOf(result), std::vector<Kind>{});
        EXPECT_FALSE(result.isRefused);
        EXPECT_FALSE(result.isCancelled);
    }
    void expectAtSource(const fs::path& item, bool isThere)
    {
        EXPECT_EQ(fs::exists(fs::symlink_status(item)), isThere);
    }
};

INSTANTIATE_TEST_SUITE_P(Everywhere, Transfers, testing::Combine(testing::Bool(), testing::Bool()),
                         [](const auto& run) {
                             return std::string(std::get<0>(run.param) ? "Move" : "Copy") +
                                    (std::get<1>(run.param) ? "BetweenFileSystems" : "WithinAFileSystem");
                         });

TEST_P(Transfers, KeepEverythingOfEveryKindOfItem)
{
    makeEveryKind(source() / "all");
    const Tree before = treeOf(source() / "all");
    expectDone(run({source() / "all"}));
    EXPECT_EQ(treeOf(target() / "all"), before);
    EXPECT_EQ(progress.files, progress.totalFiles);
    expectAtSource(source() / "all", !isMove());
    struct stat sparse = {};
    ASSERT_EQ(::stat((target() / "all/sparse").c_str(), &sparse), 0);
    EXPECT_LT(sparse.st_blocks * 512, 1 << 18);
    EXPECT_EQ(namesIn(target()), std::vector<std::string>{"all"});
    forget();
    expectNoLeftovers();
}

TEST_P(Transfers, OfAnOrdinaryUserKeepEverythingToo)
{
    const fs::path item = file(source() / "all/read-only");
    fs::permissions(item, fs::perms(0444));
    if (haveAttributes()) {
        EXPECT_EQ(::setxattr(item.c_str(), "user.orvik", "a value", 7, 0), 0);
    }
    // More than a new one gets.
    for (const mode_t kind : {S_IFIFO, S_IFSOCK}) {
        const fs::path node = source() / "all" / std::to_string(kind);
        EXPECT_EQ(::mknod(node.c_str(), kind | 0600U, 0), 0);
        fs::permissions(node, fs::perms(0666));
    }
    const OrdinaryUser user = becomeOrdinaryUser();
    const Tree before = treeOf(source() / "all");
    expectDone(run({source() / "all"}));
    EXPECT_EQ(treeOf(target() / "all"), before);
    expectAtSource(source() / "all", !isMove());
}

TEST_P(Transfers, CanBeUndone)
{
    makeEveryKind(source() / "all");
    const fs::path second = file(source() / "second");
    const Tree before = treeOf(source(), false);
    expectDone(run({source() / "all", second}), 2);
    const Result undone = undo();
    EXPECT_EQ(undone.done, 2U);
    EXPECT_EQ(kindsOf(undone), std::vector<Kind>{});
    EXPECT_EQ(treeOf(source(), false), before);
    EXPECT_EQ(namesIn(target()), std::vector<std::string>{});
    EXPECT_EQ(trashed.size(), isMove() ? 0U : 2U);
    forget();
    expectNoLeftovers();
}

TEST_P(Transfers, TakeManyItemsOfSeveralFolders)
{
    std::vector<fs::path> items;
    for (int number = 0; number < 300; ++number)
        items.push_back(file(source() / std::to_string(number % 7) / std::to_string(number), std::to_string(number)));
    expectDone(run(items), items.size());
    EXPECT_EQ(namesIn(target()).size(), items.size());
    for (const fs::path& item : items) {
        EXPECT_EQ(contentOf(target() / item.filename()), item.filename());
        expectAtSource(item, !isMove());
    }
    EXPECT_EQ(progress.files, progress.totalFiles);
    EXPECT_EQ(progress.bytes, progress.totalBytes);
}

TEST_P(Transfers, LeaveWhatIsSkipped)
{
    const fs::path item = file(source() / "name", "new");
    file(target() / "name", "old");
    answers.always = {Resolution::Skip};
    const Result result = run({item});
    EXPECT_EQ(result.done, 0U);
    EXPECT_EQ(result.skipped, 1U);
    EXPECT_EQ(contentOf(target() / "name"), "old");
    EXPECT_EQ(contentOf(item), "new");
    ASSERT_EQ(answers.asked.size(), 1U);
    EXPECT_EQ(answers.asked[0].source.path, item);
    EXPECT_EQ(answers.asked[0].target.path, target() / "name");
    EXPECT_EQ(answers.asked[0].source.status.st_size, 3);
    EXPECT_TRUE(answers.asked[0].canReplace);
    EXPECT_FALSE(answers.asked[0].canMerge);
}

TEST_P(Transfers, KeepBothUnderAFreeName)
{
    const fs::path item = file(source() / "name.txt", "new");
    file(target() / "name.txt", "old");
    file(target() / "name 2.txt", "older");
    answers.always = {Resolution::KeepBoth};
    expectDone(run({item}));
    EXPECT_EQ(namesIn(target()), (std::vector<std::string>{"name 2.txt", "name 3.txt", "name.txt"}));
    EXPECT_EQ(contentOf(target() / "name 3.txt"), "new");
    EXPECT_EQ(contentOf(target() / "name.txt"), "old");
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    EXPECT_EQ(namesIn(target()), (std::vector<std::string>{"name 2.txt", "name.txt"}));
    EXPECT_EQ(contentOf(item), "new");
}

TEST_P(Transfers, ReplaceAFileAndGiveItBack)
{
    const fs::path item = file(source() / "name", "new");
    file(target() / "name", "old");
    const Tree before = treeOf(target(), false);
    answers.always = {Resolution::Replace};
    expectDone(run({item}));
    EXPECT_EQ(contentOf(target() / "name"), "new");
    expectAtSource(item, !isMove());
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    forget();
    EXPECT_EQ(treeOf(target(), false), before);
    EXPECT_EQ(contentOf(item), "new");
    expectNoLeftovers();
}

TEST_P(Transfers, ReplaceAFolderWithAllThatIsInIt)
{
    makeEveryKind(source() / "name");
    const Tree before = treeOf(source() / "name");
    file(target() / "name/old/file", "old");
    answers.always = {Resolution::Replace};
    expectDone(run({source() / "name"}));
    EXPECT_EQ(treeOf(target() / "name"), before);
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    forget();
    EXPECT_EQ(contentOf(target() / "name/old/file"), "old");
    EXPECT_EQ(namesIn(target() / "name"), std::vector<std::string>{"old"});
    EXPECT_EQ(treeOf(source() / "name", false).size(), before.size());
    expectNoLeftovers();
}

TEST_P(Transfers, ReplaceAFolderByAFileAndAFileByAFolder)
{
    const fs::path one = file(source() / "one", "file");
    const fs::path other = file(source() / "other/file", "file").parent_path();
    file(target() / "one/file", "old");
    file(target() / "other", "old");
    answers.always = {Resolution::Replace, true};
    expectDone(run({one, other}), 2);
    EXPECT_EQ(answers.asked.size(), 1U);
    EXPECT_EQ(contentOf(target() / "one"), "file");
    EXPECT_EQ(contentOf(target() / "other/file"), "file");
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    EXPECT_EQ(contentOf(target() / "one/file"), "old");
    EXPECT_EQ(contentOf(target() / "other"), "old");
}

TEST_P(Transfers, GiveBackOneThatWasReplacedByTheNext)
{
    const fs::path one = file(source() / "one/name", "first");
    const fs::path other = file(source() / "other/name", "second");
    file(target() / "name", "old");
    const Tree sourceBefore = treeOf(source(), false);
    const Tree targetBefore = treeOf(target(), false);
    answers.always = {Resolution::Replace, true};
    expectDone(run({one, other}), 2);
    EXPECT_EQ(contentOf(target() / "name"), "second");
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    forget();
    EXPECT_EQ(treeOf(source(), false), sourceBefore);
    EXPECT_EQ(treeOf(target(), false), targetBefore);
    expectNoLeftovers();
}

TEST_P(Transfers, ForgetWhatWasReplacedInTheEnd)
{
    file(target() / "name", "old");
    answers.always = {Resolution::Replace};
    expectDone(run({file(source() / "name", "new")}));
    forget();
    EXPECT_EQ(namesIn(target()), std::vector<std::string>{"name"});
    expectNoLeftovers();
}

TEST_P(Transfers, MergeFolders)
{
    file(source() / "album/new", "new");
    file(source() / "album/both", "newer");
    file(source() / "album/deep/er/new", "new");
    file(source() / "album/deep/both", "newer");
    file(target() / "album/old", "old");
    file(target() / "album/both", "old");
    file(target() / "album/deep/both", "old");
    const Tree sourceBefore = treeOf(source(), false);
    const Tree targetBefore = treeOf(target(), false);
    answers.each = [](const Conflict& conflict) {
        return conflict.canMerge                             ? Decision{Resolution::Merge, true}
               : conflict.source.path.ends_with("deep/both") ? Decision{Resolution::Skip}
                                                             : Decision{Resolution::Replace};
    };
    const Result result = run({source() / "album"});
    expectDone(result, 0);
    EXPECT_TRUE(result.isInPart);
    EXPECT_EQ(answers.asked.size(), 3U);
    EXPECT_EQ(namesIn(target() / "album"), (std::vector<std::string>{"both", "deep", "new", "old"}));
    EXPECT_EQ(contentOf(target() / "album/both"), "newer");
    EXPECT_EQ(contentOf(target() / "album/deep/both"), "old");
    EXPECT_EQ(contentOf(target() / "album/deep/er/new"), "new");
    // What was skipped is where it was, and so are the folders that it lies in.
    EXPECT_EQ(contentOf(source() / "album/deep/both"), "newer");
    expectAtSource(source() / "album/both", !isMove());
    expectAtSource(source() / "album/deep/er", !isMove());
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    forget();
    EXPECT_EQ(treeOf(source(), false), sourceBefore);
    EXPECT_EQ(treeOf(target(), false), targetBefore);
    expectNoLeftovers();
}

TEST_P(Transfers, AreNoneWhereAllOfAMergedFolderIsLeft)
{
    file(source() / "album/both", "newer");
    file(target() / "album/both", "old");
    for (const Resolution resolution : {Resolution::Skip, Resolution::Cancel}) {
        answers.each = [&](const Conflict& conflict) {
            return Decision{conflict.canMerge ? Resolution::Merge : resolution};
        };
        const Result result = run({source() / "album"});
        EXPECT_EQ(result.done, 0U);
        EXPECT_FALSE(result.isInPart);
        EXPECT_EQ(contentOf(source() / "album/both"), "newer");
        EXPECT_EQ(contentOf(target() / "album/both"), "old");
    }
}

TEST_P(Transfers, OfPartsOfFoldersComeBackManyAtATime)
{
    constexpr int many = 10'050;
    for (int number = 0; number < many; ++number)
        file(source() / "album" / std::to_string(number), "");
    file(target() / "album/old", "old");
    answers.always = {Resolution::Merge};
    expectDone(run({source() / "album"}));
    const Result undone = undo();
    EXPECT_EQ(kindsOf(undone), std::vector<Kind>{});
    EXPECT_EQ(undone.done, static_cast<std::size_t>(many));
    EXPECT_EQ(progress.files, static_cast<std::uint64_t>(many));
    EXPECT_EQ(progress.totalFiles, static_cast<std::uint64_t>(many));
    EXPECT_EQ(namesIn(source() / "album").size(), static_cast<std::size_t>(many));
    EXPECT_EQ(namesIn(target() / "album"), std::vector<std::string>{"old"});
}

TEST_P(Transfers, TakeNoFileForAnotherWhereADiskIsMountedInTheTarget)
{
    file(source() / "other", "other");
    file(source() / "one name", "of two");
    folder(source() / "below");
    fs::rename(source() / "other", source() / "below/other");
    fs::create_hard_link(source() / "one name", source() / "below/other name");
    folder(target() / "below");
    answers.always = {Resolution::Merge};
    expectAmongMounts([&] { return mountMemory(target() / "below"); },
                      [&] {
                          const Result result = run({source() / "one name", source() / "below"});
                          EXPECT_EQ(kindsOf(result), std::vector<Kind>{});
                          EXPECT_EQ(contentOf(target() / "one name"), "of two");
                          EXPECT_EQ(contentOf(target() / "below/other name"), "of two");
                          EXPECT_EQ(contentOf(target() / "below/other"), "other");
                      });
}

TEST_P(Transfers, KeepTheNamesOfAFileTogetherHoweverManyItemsThereAre)
{
    // From two folders in turn, so that some are in their places before others are copied.
    std::vector<fs::path> items;
    for (int number = 0; number < 500; ++number)
        items.push_back(file(source() / (number % 2 == 0 ? "one" : "other") / std::to_string(number), ""));
    const std::array named{0U, 150U, 250U, 499U};
    for (const std::size_t number : named) {
        if (number == 0) {
            file(items[0], "of several names");
        } else {
            fs::remove(items[number]);
            fs::create_hard_link(items[0], items[number]);
        }
    }
    // The first of all is in a folder.
    fs::create_hard_link(items[0], folder(source() / "album/deep") / "name");
    items.insert(items.begin(), source() / "album");
    const ino_t before = numberOf(source() / "one/0");
    expectDone(run(items), items.size());
    const ino_t placed = numberOf(target() / "0");
    EXPECT_EQ(placed == before, isMove() && !isBetweenTwo());
    for (const std::size_t number : named)
        EXPECT_EQ(numberOf(target() / std::to_string(number)), placed) << number;
    EXPECT_EQ(numberOf(target() / "album/deep/name"), placed);
    EXPECT_EQ(fs::hard_link_count(target() / "0"), named.size() + 1);
    EXPECT_EQ(contentOf(target() / "0"), "of several names");
}

TEST_P(Transfers, TakeNoFileForAnotherThatWasPutInItsPlaceMeanwhile)
{
    std::vector<fs::path> items;
    for (int number = 0; number < 250; ++number)
        items.push_back(file(source() / (number % 2 == 0 ? "one" : "other") / std::to_string(number), ""));
    file(items[0], "of two names");
    file(items[1], "of two names");
    for (const std::size_t number : {0U, 1U}) {
        fs::remove(items[248 + number]);
        fs::create_hard_link(items[number], items[248 + number]);
    }
    // The last of the items are asked about when the first are in their places.
    file(target() / "247", "old");
    answers.each = [&](const Conflict&) {
        file(target() / "0", "WRITTEN ANEW");
        fs::remove(target() / "1");
        file(target() / "1", "WRITTEN ANEW");
        return Decision{Resolution::Replace};
    };
    expectDone(run(items), items.size());
    const bool isRenamed = isMove() && !isBetweenTwo();
    EXPECT_EQ(contentOf(target() / "248"), isRenamed ? "WRITTEN ANEW" : "of two names");
    EXPECT_EQ(contentOf(target() / "249"), "of two names");
}

TEST_P(Transfers, MergeFoldersSoThatNothingIsLeft)
{
    file(source() / "album/deep/new", "new");
    file(target() / "album/deep/old", "old");
    const Tree before = treeOf(source(), false);
    answers.always = {Resolution::Merge, true};
    expectDone(run({source() / "album"}));
    EXPECT_EQ(namesIn(target() / "album/deep"), (std::vector<std::string>{"new", "old"}));
    expectAtSource(source() / "album", !isMove());
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    EXPECT_EQ(treeOf(source(), false), before);
    EXPECT_EQ(namesIn(target() / "album/deep"), (std::vector<std::string>{"old"}));
}

TEST_P(Transfers, GiveMergedFoldersBackAsTheyWere)
{
    const fs::path album = source() / "album";
    file(album / "deep/new");
    file(target() / "album/deep/old");
    constexpr std::array old{timespec{1'000'000'000, 5}, timespec{1'000'000'000, 5}};
    for (const fs::path& each : {album / "deep", album}) {
        // Where the file system has them.
        static_cast<void>(::setxattr(each.c_str(), "user.orvik", "a value", 7, 0));
        fs::permissions(each, fs::perms(01777));
        ASSERT_EQ(::utimensat(AT_FDCWD, each.c_str(), old.data(), 0), 0);
    }
    const Tree before = treeOf(album);
    answers.always = {Resolution::Merge, true};
    expectDone(run({album}));
    expectAtSource(album, !isMove());
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    EXPECT_EQ(treeOf(album), before);
}

TEST_P(Transfers, AskOnceForAllTheRestOfAKind)
{
    std::vector<fs::path> items;
    for (const char* name : {"1", "2", "3"}) {
        items.push_back(file(source() / name, "new"));
        file(target() / name, "old");
    }
    answers.always = {Resolution::Replace, true};
    expectDone(run(items), 3);
    EXPECT_EQ(answers.asked.size(), 1U);
    for (const char* name : {"1", "2", "3"})
        EXPECT_EQ(contentOf(target() / name), "new");
}

TEST_P(Transfers, ReplaceNothingButWhatWasAskedAbout)
{
    const std::vector items{file(source() / "1", "new"), file(source() / "2", "new")};
    file(target() / "1", "old");
    file(target() / "2", "old");
    // While the first questions are open.
    answers.each = [&](const Conflict& conflict) {
        if (S_ISDIR(conflict.target.status.st_mode))
            return Decision{Resolution::KeepBoth};
        if (conflict.target.status.st_size > 3)
            return Decision{Resolution::Skip};
        if (conflict.target.path.ends_with('1')) {
            fs::remove(target() / "1");
            file(target() / "1/another", "precious");
        } else {
            file(target() / "2", "written meanwhile");
        }
        return Decision{Resolution::Replace};
    };
    const Result result = run(items);
    EXPECT_EQ(answers.asked.size(), 4U);
    EXPECT_EQ(result.done, 1U);
    EXPECT_EQ(result.skipped, 1U);
    EXPECT_EQ(namesIn(target()), (std::vector<std::string>{"1", "1 2", "2"}));
    EXPECT_EQ(contentOf(target() / "1/another"), "precious");
    EXPECT_EQ(contentOf(target() / "1 2"), "new");
    EXPECT_EQ(contentOf(target() / "2"), "written meanwhile");
    EXPECT_EQ(contentOf(items[1]), "new");
}

TEST_P(Transfers, EndWhereAQuestionIsCancelled)
{
    const fs::path one = file(source() / "1", "new");
    file(target() / "1", "old");
    const fs::path other = file(source() / "2", "new");
    const Result result = run({one, other});
    EXPECT_TRUE(result.isCancelled);
    EXPECT_EQ(result.done, 0U);
    EXPECT_EQ(contentOf(target() / "1"), "old");
    EXPECT_EQ(contentOf(one), "new");
    EXPECT_EQ(contentOf(other), "new");
    EXPECT_EQ(namesIn(target()), std::vector<std::string>{"1"});
}

TEST_P(Transfers, ReplaceAnotherNameOfTheSameFile)
{
    if (isBetweenTwo())
        return;
    const fs::path item = file(source() / "name", "content");
    fs::create_hard_link(item, target() / "name");
    answers.always = {Resolution::Replace};
    expectDone(run({item}));
    EXPECT_EQ(contentOf(target() / "name"), "content");
    expectAtSource(item, !isMove());
}

TEST_P(Transfers, DoNotReplaceTheFolderThatTheItemLiesIn)
{
    const fs::path item = file(target() / "name/name", "inner");
    answers.each = [](const Conflict& conflict) {
        EXPECT_FALSE(conflict.canReplace);
        EXPECT_FALSE(conflict.canMerge);
        return Decision{Resolution::KeepBoth};
    };
    expectDone(TransferTest::run(what(), {item}));
    EXPECT_EQ(answers.asked.size(), 1U);
    EXPECT_EQ(contentOf(target() / "name 2"), "inner");
    expectAtSource(item, !isMove());
}

TEST_P(Transfers, DoNotReplaceWhatTheLinkLeadsTo)
{
    file(target() / "file", "old");
    file(target() / "folder/file", "old");
    fs::create_symlink("file", target() / "first link");
    fs::create_symlink(target() / "first link", source() / "file");
    fs::create_symlink(target() / "folder", source() / "folder");
    // On its way, and inside of it.
    fs::create_symlink("file", target() / "way");
    fs::create_symlink(target() / "way", source() / "way");
    file(target() / "inside/below/file", "old");
    fs::create_symlink(target() / "inside/below", source() / "inside");
    fs::create_symlink("nowhere", source() / "another");
    file(target() / "another");
    std::map<std::string, bool> canReplace;
    answers.each = [&](const Conflict& conflict) {
        canReplace[fs::path(conflict.source.path).filename()] = conflict.canReplace;
        return Decision{conflict.canReplace ? Resolution::Replace : Resolution::KeepBoth, true};
    };
    expectDone(run({source() / "another", source() / "file", source() / "folder"}), 3);
    expectDone(run({source() / "inside"}), 1);
    expectDone(run({source() / "way"}), 1);
    EXPECT_EQ(canReplace,
              (std::map<std::string, bool>{
                  {"another", true}, {"file", false}, {"folder", false}, {"inside", false}, {"way", false}}));
    EXPECT_EQ(contentOf(target() / "file"), "old");
    EXPECT_EQ(contentOf(target() / "file 2"), "old");
    EXPECT_EQ(contentOf(target() / "folder 2/file"), "old");
}

TEST_P(Transfers, KeepNoFolderOpenThatNobodyNeeds)
{
    const auto areOpen = [&] {
        const auto isBelow = [&](const fs::path& descriptor) {
            std::error_code error;
            const std::string path = fs::read_symlink(descriptor, error);
            return path.starts_with(source().native()) || path.starts_with(target().native());
        };
        const fs::directory_iterator descriptors("/proc/self/fd");
        return std::any_of(begin(descriptors), end(descriptors), isBelow);
    };
    file(source() / "folder/file");
    file(source() / "file", "new");
    expectDone(run({source() / "folder", source() / "file"}), 2);
    EXPECT_FALSE(areOpen());
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});

    file(target() / "file", "old");
    answers.always = {Resolution::Replace};
    expectDone(run({source() / "file"}), 1);
    EXPECT_TRUE(areOpen()) << "what was replaced is kept";
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    EXPECT_EQ(contentOf(target() / "file"), "old");
}

TEST_P(Transfers, RefuseAFolderIntoItself)
{
    const fs::path item = folder(source() / "outer/inner").parent_path();
    for (const fs::path& to : {item, item / "inner"}) {
        const Result result = TransferTest::run(what(), {item}, to);
        EXPECT_TRUE(result.isRefused);
        EXPECT_EQ(kindsOf(result), std::vector{Kind::IntoItself});
    }
    // By another way.
    fs::create_directory_symlink(item / "inner", target() / "link");
    EXPECT_EQ(kindsOf(TransferTest::run(what(), {item}, target() / "link")), std::vector{Kind::IntoItself});
    EXPECT_EQ(treeOf(item).size(), 2U);
}

TEST_P(Transfers, SayBeforeAnythingIsWrittenWhatCannotBeDone)
{
    const fs::path inner = folder(source() / "outer/target");
    const fs::path good = file(source() / "good");
    answers.goesOn = false;
    Result result = TransferTest::run(what(), {source() / "outer", source() / "gone", good}, inner);
    EXPECT_TRUE(result.isCancelled);
    EXPECT_EQ(answers.told.size(), 2U);
    EXPECT_EQ(namesIn(inner), std::vector<std::string>{});
    expectAtSource(good, true);

    progress.cancelled = false;
    answers.goesOn = true;
    result = TransferTest::run(what(), {source() / "outer", source() / "gone", good}, inner);
    expectDone(result);
    EXPECT_EQ(namesIn(inner), std::vector<std::string>{"good"});
}

TEST_P(Transfers, SayBeforeAnythingIsWrittenWhatCannotBeRead)
{
    const fs::path secret = file(source() / "folder/secret");
    fs::permissions(secret, fs::perms(0));
    file(source() / "folder/file");
    const OrdinaryUser user = becomeOrdinaryUser();
    if (isMove() && !isBetweenTwo()) {
        expectDone(run({source() / "folder"}));
        return;
    }
    answers.goesOn = false;
    EXPECT_TRUE(run({source() / "folder"}).isCancelled);
    ASSERT_EQ(answers.told.size(), 1U);
    EXPECT_EQ(answers.told[0].kind, Kind::SourceUnusable);
    EXPECT_EQ(answers.told[0].path, secret);
    EXPECT_EQ(answers.told[0].error, EACCES);
    EXPECT_EQ(namesIn(source() / "folder").size(), 2U);
    EXPECT_EQ(namesIn(target()), std::vector<std::string>{});

    progress.cancelled = false;
    EXPECT_TRUE(run({secret}).isRefused);
}

TEST_P(Transfers, SayBeforeAnythingIsWrittenWhatIsHeldForItsOwner)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can be somebody else";
    constexpr uid_t another = 65533;
    const fs::path shared = folder(source() / "folder/shared");
    const fs::path others = file(shared / "theirs");
    const fs::path own = file(shared / "own");
    for (const fs::path& item : {shared, others})
        ASSERT_EQ(::chown(item.c_str(), another, another), 0);
    fs::permissions(shared, fs::perms(01777));
    const OrdinaryUser user = becomeOrdinaryUser();
    const Result result = run({others, own});
    EXPECT_EQ(result.done, isMove() ? 1U : 2U);
    expectAtSource(others, true);
    expectAtSource(own, !isMove());
    ASSERT_EQ(answers.told.size(), isMove() ? 1U : 0U);
    if (isMove()) {
        EXPECT_EQ(answers.told[0].kind, Kind::CannotLeave);
        EXPECT_EQ(answers.told[0].path, others);
    }

    EXPECT_EQ(run({source() / "folder"}).isRefused, isMove() && isBetweenTwo());
    EXPECT_EQ(fs::exists(target() / "folder"), !isMove() || !isBetweenTwo());
    expectAtSource(others, !isMove() || isBetweenTwo());
}

TEST_P(Transfers, RefuseATargetThatIsNoFolder)
{
    const fs::path item = file(source() / "item");
    for (const fs::path& to : {file(source() / "file"), source() / "gone"}) {
        const Result result = TransferTest::run(what(), {item}, to);
        EXPECT_TRUE(result.isRefused);
        EXPECT_EQ(kindsOf(result), std::vector{Kind::TargetUnusable});
    }
}

TEST_P(Transfers, FollowNoLink)
{
    const fs::path outside = file(source() / "outside/file", "outside").parent_path();
    fs::create_directory_symlink(outside, source() / "link");
    expectDone(run({source() / "link"}));
    EXPECT_EQ(fs::read_symlink(target() / "link"), outside);
    EXPECT_EQ(contentOf(outside / "file"), "outside");
    expectAtSource(source() / "link", !isMove());
}

TEST_P(Transfers, GoTogetherWithOthersToTheSameFolder)
{
    // Two processes with the same names at the same time: nothing is overwritten.
    const fs::path one = file(source() / "one/name", "one");
    const fs::path other = file(source() / "other/name", "other");
    answers.always = {Resolution::KeepBoth};
    expectDone(run({one, other}), 2);
    EXPECT_EQ(answers.asked.size(), 1U);
    EXPECT_EQ(contentOf(target() / "name"), "one");
    EXPECT_EQ(contentOf(target() / "name 2"), "other");
}

/// A folder with what somebody else keeps for an undo in it.
class Kept {
public:
    Kept(SystemCalls& calls, const fs::path& folder, const fs::path& records)
        : m_record(calls, {records}),
          m_staging(Staging::make(
              calls, shareFolder(calls, calls.open(AT_FDCWD, folder.c_str(), O_RDONLY | O_DIRECTORY), folder),
              m_record)),
          m_name(namesIn(folder).at(0))
    {
        Files::write(folder / m_name / "1", "kept");
    }
    [[nodiscard]] const std::string& name() const { return m_name; }

private:
    StagingRecord m_record;
    std::optional<Staging> m_staging;
    std::string m_name;
};

TEST_P(Transfers, LeaveWhatIsKeptForAnUndoToItsOwner)
{
    const fs::path album = folder(source() / "album");
    {
        const Kept kept(systemCalls, album, records());
        file(album / "photo");
        file(album / "deep/photo");
        const Result result = run({album});
        if (isMove() && !isBetweenTwo()) {
            // It goes with the folder, and its owner has it open.
            EXPECT_EQ(contentOf(target() / "album" / kept.name() / "1"), "kept");
        } else {
            EXPECT_EQ(namesIn(target() / "album"), (std::vector<std::string>{"deep", "photo"}));
            EXPECT_EQ(contentOf(album / kept.name() / "1"), "kept");
            EXPECT_EQ(kindsOf(result), isMove() ? std::vector{Kind::NotRemoved} : std::vector<Kind>{});
            EXPECT_EQ(namesIn(album).size(), isMove() ? 1U : 3U);
        }
        EXPECT_EQ(progress.files, progress.totalFiles);
    }
    forget();
    expectNoLeftovers();
}

TEST_P(Transfers, MergeNothingThatIsKeptForAnUndo)
{
    const fs::path album = folder(source() / "album");
    file(target() / "album/old");
    {
        const Kept kept(systemCalls, album, records());
        file(album / "photo");
        answers.always = {Resolution::Merge};
        expectDone(run({album}));
        EXPECT_EQ(namesIn(target() / "album"), (std::vector<std::string>{"old", "photo"}));
        EXPECT_EQ(contentOf(album / kept.name() / "1"), "kept");
    }
    forget();
    expectNoLeftovers();
}

TEST_P(Transfers, TakeAPersonsOwnItemsOfASimilarName)
{
    file(source() / "album/.orvik-menu-pictures/1", "own");
    file(source() / "album/.orvik-menu-0123456789abcdef", "own");
    expectDone(run({source() / "album"}));
    EXPECT_EQ(contentOf(target() / "album/.orvik-menu-pictures/1"), "own");
    EXPECT_EQ(contentOf(target() / "album/.orvik-menu-0123456789abcdef"), "own");
    expectAtSource(source() / "album", !isMove());
}

class Orders : public TransferTest {};

TEST_F(Orders, AreOfTheOutermostItems)
{
    const fs::path item = file(source() / "folder/below/inner");
    file(source() / "folder 2");
    fs::create_directory_symlink(source() / "folder", source() / "link");
    const auto pathsOf = [&](const std::vector<std::string>& names) {
        std::vector<std::string> paths;
        for (const std::string& name : names)
            paths.push_back(source() / name);
        return paths;
    };
    EXPECT_EQ(outermost(pathsOf({"folder/below/inner", "folder 2", "folder", "folder/below", "folder"})),
              pathsOf({"folder 2", "folder"}));
    EXPECT_EQ(outermost(pathsOf({"link", "link/below/inner"})), pathsOf({"link", "link/below/inner"}));
}

class Copies : public TransferTest {};

TEST_F(Copies, WithinTheSameFolderHaveAnotherName)
{
    const fs::path item = file(source() / "report.tar.gz");
    const Result result = run(What::Copy, {item}, source());
    EXPECT_EQ(result.done, 1U);
    EXPECT_TRUE(answers.asked.empty());
    EXPECT_EQ(namesIn(source()), (std::vector<std::string>{"report 2.tar.gz", "report.tar.gz"}));
}

class Moves : public TransferTest {};

TEST_F(Moves, IntoTheSameFolderAreSaidToBeThereAlready)
{
    const fs::path item = file(source() / "item");
    const Result result = run(What::Move, {item}, source());
    EXPECT_TRUE(result.isRefused);
    EXPECT_EQ(kindsOf(result), std::vector{Kind::AlreadyThere});
    EXPECT_EQ(namesIn(source()), std::vector<std::string>{"item"});
}

TEST_F(Moves, AreNotUndoneWhereAnotherItemHasTheNameByNow)
{
    run(What::Move, {file(source() / "item", "moved")});
    fs::rename(target() / "item", target() / "elsewhere");
    file(target() / "item", "another");
    EXPECT_EQ(kindsOf(undo()), std::vector{Kind::NotUndone});
    EXPECT_EQ(contentOf(target() / "item"), "another");
}

TEST_F(Moves, ComeBackBesideWhatIsThereByNow)
{
    run(What::Move, {file(source() / "item", "moved")});
    file(source() / "item", "another");
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    EXPECT_EQ(contentOf(source() / "item"), "another");
    EXPECT_EQ(contentOf(source() / "item 2"), "moved");
}

TEST_F(Moves, NeverComeBackInThePlaceOfAnother)
{
    // As large and as old, but another.
    const fs::path item = file(source() / "item", "moved");
    const auto time = fs::last_write_time(item);
    run(What::Move, {item});
    fs::last_write_time(file(item, "other"), time);
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    EXPECT_EQ(contentOf(source() / "item"), "other");
    EXPECT_EQ(contentOf(source() / "item 2"), "moved");
}

TEST_F(Moves, SayWhatCannotComeBack)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can be somebody else";
    constexpr uid_t another = 65533;
    const fs::path others = file(source() / "theirs");
    const fs::path own = file(source() / "own");
    for (const fs::path& item : {others, target()})
        ASSERT_EQ(::chown(item.c_str(), another, another), 0);
    fs::permissions(target(), fs::perms(01777));
    const OrdinaryUser user = becomeOrdinaryUser();
    EXPECT_EQ(kindsOf(run(What::Move, {others, own})), std::vector<Kind>{});
    const Result undone = undo();
    ASSERT_EQ(kindsOf(undone), std::vector{Kind::CannotLeave});
    EXPECT_EQ(undone.problems.kept()[0].path, target() / "theirs");
    EXPECT_EQ(namesIn(source()), std::vector<std::string>{"own"});
    EXPECT_EQ(namesIn(target()), std::vector<std::string>{"theirs"});
}

TEST_F(Moves, KeepWhatTheyReplacedWhereItCannotComeBack)
{
    const fs::path item = file(source() / "album/name", "new").parent_path();
    file(target() / "album/name", "old");
    answers.each = [](const Conflict& conflict) {
        return Decision{conflict.canMerge ? Resolution::Merge : Resolution::Replace};
    };
    EXPECT_EQ(run(What::Move, {item}).done, 1U);
    fs::rename(target() / "album", target() / "renamed");
    EXPECT_EQ(kindsOf(undo()), (std::vector{Kind::NotUndone, Kind::NotUndone}));
    forget();
    EXPECT_EQ(contentOf(target() / "renamed/name"), "new");
    EXPECT_EQ(contentOf(target() / "name 2"), "old");
}

TEST_F(Moves, KeepTheNameThatTheyAreNumberedByBetweenMountsOfOneFileSystem)
{
    file(source() / "disk/report.pdf", "new");
    file(target() / "report.pdf", "old");
    folder(source() / "mount");
    answers.always = {Resolution::KeepBoth};
    expectAmongMounts([&] { return mountAgain(source() / "disk", source() / "mount"); },
                      [&] {
                          EXPECT_EQ(kindsOf(run(What::Move, {source() / "mount/report.pdf"})), std::vector<Kind>{});
                          EXPECT_EQ(namesIn(target()), (std::vector<std::string>{"report 2.pdf", "report.pdf"}));
                          EXPECT_EQ(namesIn(source() / "disk"), std::vector<std::string>{});
                      });
}

TEST_F(Moves, MergeIntoAFolderWhereAnotherOfItsFileSystemIsMounted)
{
    file(source() / "album/below/new", "new");
    file(source() / "album/below/both", "newer");
    file(target() / "album/below/hidden");
    file(target() / "other/both", "old");
    answers.each = [](const Conflict& conflict) {
        return Decision{conflict.canMerge ? Resolution::Merge : Resolution::Replace};
    };
    const fs::path below = target() / "album/below";
    expectAmongMounts([&] { return mountAgain(target() / "other", below); },
                      [&] {
                          EXPECT_EQ(kindsOf(run(What::Move, {source() / "album"})), std::vector<Kind>{});
                          EXPECT_EQ(contentOf(below / "new"), "new");
                          EXPECT_EQ(contentOf(below / "both"), "newer");
                          EXPECT_FALSE(fs::exists(source() / "album"));
                          EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
                          forget();
                          EXPECT_EQ(namesIn(below), std::vector<std::string>{"both"});
                          EXPECT_EQ(contentOf(below / "both"), "old");
                          EXPECT_EQ(contentOf(source() / "album/below/both"), "newer");
                      });
}

TEST_F(Copies, OfWriteProtectedFoldersCanBeUndone)
{
    const fs::path item = file(source() / "folder/file").parent_path();
    fs::permissions(item, fs::perms(0555));
    const OrdinaryUser user = becomeOrdinaryUser();
    EXPECT_EQ(run(What::Copy, {item}).done, 1U);
    trashTrouble = "no trash here";
    EXPECT_EQ(kindsOf(undo()), std::vector{Kind::NotTrashed});
    EXPECT_EQ(fs::status(target() / "folder").permissions(), fs::perms(0555));

    EXPECT_EQ(run(What::Copy, {item}, folder(target() / "other")).done, 1U);
    trashTrouble.reset();
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    EXPECT_EQ(namesIn(target() / "other"), std::vector<std::string>{});
    EXPECT_EQ(contentOf(trash() / "0/file"), "content");
}

TEST_F(Copies, ThatTheTrashDoesNotTakeStay)
{
    run(What::Copy, {file(source() / "item")});
    trashTrouble = "no trash here";
    const Result result = undo();
    ASSERT_EQ(kindsOf(result), std::vector{Kind::NotTrashed});
    EXPECT_EQ(result.problems.kept()[0].words, "no trash here");
    EXPECT_TRUE(fs::exists(target() / "item"));
}

/// A disk or an item as it is seldom met.
class UnusualCalls : public SystemCalls {
public:
    std::function<void(struct statfs&)> changeFileSystem = [](struct statfs&) {};
    std::function<void(const std::string&, struct stat&)> changeStatus = [](const std::string&, struct stat&) {};
    std::function<void()> beforeRead = [] {};
    bool canExchange = true;
    bool canRenameNew = true;
    bool canLink = true;
    bool hasRoomForAttributes = true;
    bool canSetTimes = true;
    bool canRemoveByPath = true;
    bool hasMountsByFolder = false;
    /// As one that shares bytes, where it counts what it is asked to share.
    std::optional<int> shared;

    std::uint64_t mount(int file) override
    {
        struct stat status = {};
        return hasMountsByFolder && ::fstat(file, &status) == 0 ? status.st_ino : SystemCalls::mount(file);
    }
    int fileSystem(int file, struct statfs& status) override
    {
        const int result = SystemCalls::fileSystem(file, status);
        changeFileSystem(status);
        return result;
    }
    int status(int folder, const char* name, struct stat& status) override
    {
        const int result = SystemCalls::status(folder, name, status);
        if (result == 0)
            changeStatus(name, status);
        return result;
    }
    ssize_t read(int file, void* bytes, std::size_t count, off_t at) override
    {
        beforeRead();
        return SystemCalls::read(file, bytes, count, at);
    }
    int rename(int from, const char* name, int to, const char* newName, unsigned flags) override
    {
        if (((flags & RENAME_EXCHANGE) != 0 && !canExchange) || ((flags & RENAME_NOREPLACE) != 0 && !canRenameNew)) {
            errno = EINVAL;
            return -1;
        }
        return SystemCalls::rename(from, name, to, newName, flags);
    }
    int clone(int from, int to) override
    {
        struct stat one = {};
        struct stat other = {};
        if (!shared || ::fstat(from, &one) != 0 || ::fstat(to, &other) != 0)
            return SystemCalls::clone(from, to);
        if (one.st_dev != other.st_dev) {
            errno = EXDEV;
            return -1;
        }
        ++*shared;
        return ::copy_file_range(from, nullptr, to, nullptr, static_cast<std::size_t>(one.st_size), 0) == one.st_size
                   ? 0
                   : -1;
    }
    int link(int from, const char* name, int to, const char* newName) override
    {
        if (!canLink) {
            errno = EPERM;
            return -1;
        }
        return SystemCalls::link(from, name, to, newName);
    }
    int remove(int folder, const char* name, int flags) override
    {
        if (canRemoveByPath || folder != AT_FDCWD)
            return SystemCalls::remove(folder, name, flags);
        errno = EIO;
        return -1;
    }
    int setAttribute(int file, const char* name, const void* value, std::size_t size) override
    {
        if (hasRoomForAttributes)
            return SystemCalls::setAttribute(file, name, value, size);
        errno = ENOSPC;
        return -1;
    }
    int setTimes(int folder, const char* name, const std::array<timespec, 2>& times) override
    {
        // Of what is open.
        if (canSetTimes || *name != '\0')
            return SystemCalls::setTimes(folder, name, times);
        errno = EIO;
        return -1;
    }
};

class UnusualTransfers : public Transfers {
protected:
    UnusualTransfers() { calls = &unusual; }
    ~UnusualTransfers() override { forget(); }
    UnusualCalls unusual;
};

INSTANTIATE_TEST_SUITE_P(Everywhere, UnusualTransfers, testing::Combine(testing::Bool(), testing::Bool()),
                         [](const auto& run) {
                             return std::string(std::get<0>(run.param) ? "Move" : "Copy") +
                                    (std::get<1>(run.param) ? "BetweenFileSystems" : "WithinAFileSystem");
                         });

TEST_P(UnusualTransfers, RefuseADiskThatCannotBeWritten)
{
    unusual.changeFileSystem = [](struct statfs& status) { status.f_flags |= ST_RDONLY; };
    const Result result = run({file(source() / "item")});
    EXPECT_TRUE(result.isRefused);
    ASSERT_EQ(kindsOf(result), std::vector{Kind::TargetUnusable});
    EXPECT_EQ(result.problems.kept()[0].error, EROFS);
    EXPECT_EQ(namesIn(target()), std::vector<std::string>{});
}

TEST_P(UnusualTransfers, RefuseADiskWithoutRoom)
{
    unusual.changeFileSystem = [](struct statfs& status) { status.f_bfree = status.f_bavail = 10; };
    const Result result = run({file(source() / "item", std::string(1 << 20, 'x'))});
    // A move within a file system takes none.
    EXPECT_EQ(result.isRefused, !isMove() || isBetweenTwo());
    if (result.isRefused) {
        EXPECT_EQ(kindsOf(result), std::vector{Kind::Full});
    }
}

TEST_P(UnusualTransfers, CountEachNameOfAFileWhereATargetHasNoLinks)
{
    file(source() / "item/1", std::string(1 << 20, 'x'));
    fs::create_hard_link(source() / "item/1", source() / "item/2");
    unusual.changeFileSystem = [](struct statfs& status) {
        status.f_type = MSDOS_SUPER_MAGIC;
        status.f_bfree = status.f_bavail = static_cast<fsblkcnt_t>((3 << 19) / status.f_bsize);
    };
    EXPECT_EQ(run({source() / "item"}).isRefused, !isMove() || isBetweenTwo());
}

TEST_P(UnusualTransfers, NeedNoRoomWhereBytesAreShared)
{
    const fs::path item = file(source() / "item", std::string(1 << 20, 'x'));
    for (const bool isOneOfTwoVolumes : {false, true}) {
        unusual.changeFileSystem = [&](struct statfs& status) {
            status.f_type = BTRFS_SUPER_MAGIC;
            status.f_bfree = status.f_bavail = 10;
            if (isOneOfTwoVolumes)
                status.f_fsid.__val[0] = 1;
        };
        const Result result = run({item});
        EXPECT_EQ(result.isRefused, isBetweenTwo() && !isOneOfTwoVolumes);
        EXPECT_EQ(kindsOf(result), result.isRefused ? std::vector{Kind::Full} : std::vector<Kind>{});
        if (!result.isRefused)
            break;
    }
}

TEST_P(UnusualTransfers, SayWhichNamesAreTooLong)
{
    unusual.changeFileSystem = [](struct statfs& status) { status.f_namelen = 10; };
    file(source() / "short/a name that is long");
    const fs::path item = file(source() / "another long name");
    answers.goesOn = false;
    Result result = run({item, source() / "short"});
    EXPECT_TRUE(result.isCancelled);
    // A folder of the same file system moves with all that is in it.
    EXPECT_EQ(answers.told.size(), isMove() && !isBetweenTwo() ? 1U : 2U);
    EXPECT_EQ(answers.told[0].kind, Kind::NameTooLong);
    EXPECT_EQ(namesIn(target()), std::vector<std::string>{});
}

TEST_P(UnusualTransfers, SayWhichFilesAreTooLarge)
{
    if (isMove() && !isBetweenTwo())
        return;
    unusual.changeFileSystem = [](struct statfs& status) { status.f_type = 0x4d44; };
    const fs::path item = file(source() / "item");
    ASSERT_EQ(::truncate(item.c_str(), (off_t{4} << 30U) + 1), 0);
    const Result result = run({item});
    EXPECT_TRUE(result.isRefused);
    EXPECT_EQ(kindsOf(result), std::vector{Kind::TooLarge});
}

TEST_P(UnusualTransfers, ManageWithoutTheNewerKindsOfRenaming)
{
    for (const bool canLink : {true, false}) {
        unusual.canExchange = unusual.canRenameNew = false;
        unusual.canLink = canLink;
        makeEveryKind(source() / "all");
        file(source() / "file", "new");
        file(source() / "folder/file", "new");
        file(target() / "file", "old");
        file(target() / "folder/file", "old");
        const Tree before = treeOf(target(), false);
        const Tree sourceBefore = treeOf(source(), false);
        answers.always = {Resolution::Replace};
        expectDone(run({source() / "all", source() / "file", source() / "folder"}), 3);
        EXPECT_EQ(contentOf(target() / "file"), "new");
        EXPECT_EQ(contentOf(target() / "folder/file"), "new");
        EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
        forget();
        EXPECT_EQ(treeOf(target(), false), before);
        if (canLink) {
            EXPECT_EQ(treeOf(source(), false), sourceBefore);
        }
        expectNoLeftovers();
        fs::remove_all(source());
        fs::remove_all(target());
        fs::create_directory(source());
        fs::create_directory(target());
    }
}

/// Some file systems of a network tell the second name of a file from its first.
TEST_P(UnusualTransfers, AreUndoneWhereAnItemIsAnotherByAnotherName)
{
    unusual.canExchange = unusual.canRenameNew = false;
    unusual.changeStatus = [&](const std::string&, struct stat& status) {
        struct stat placed = {};
        if (::lstat((target() / "item").c_str(), &placed) == 0 && placed.st_dev == status.st_dev &&
            placed.st_ino == status.st_ino)
            status.st_ino += 1;
    };
    file(source() / "one/item", "first");
    file(source() / "other/item", "second");
    const Tree before = treeOf(source(), false);
    answers.always = {Resolution::Replace};
    expectDone(run({source() / "one/item", source() / "other/item"}), 2);
    EXPECT_EQ(contentOf(target() / "item"), "second");
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    forget();
    EXPECT_EQ(namesIn(target()), std::vector<std::string>{});
    EXPECT_EQ(treeOf(source(), false), before);
}

TEST_P(UnusualTransfers, SayWhatIsNotBackWhereTheUndoIsCancelled)
{
    std::vector<fs::path> items;
    for (const char* name : {"1", "2", "3"})
        items.push_back(file(source() / name, name));
    file(target() / "1", "old");
    answers.always = {Resolution::Replace};
    expectDone(run(items), items.size());
    unusual.changeStatus = [&](const std::string&, struct stat&) {
        const auto isBack = [](const fs::path& item) { return fs::exists(item); };
        progress.cancelled =
            progress.cancelled || !trashed.empty() || (isMove() && std::ranges::any_of(items, isBack));
    };
    const Result undone = undo();
    EXPECT_TRUE(undone.isCancelled);
    std::set<std::string> told;
    for (const Problem& problem : undone.problems.kept()) {
        EXPECT_EQ(problem.kind, Kind::NotUndone);
        EXPECT_EQ(problem.error, ECANCELED);
        told.insert(problem.path);
    }
    EXPECT_FALSE(told.empty());
    forget();
    std::set<std::string> left;
    for (const std::string& name : namesIn(target()))
        left.insert((target() / name).native());
    EXPECT_EQ(told, left);
    for (const fs::path& item : items)
        EXPECT_EQ(fs::exists(item), !isMove() || !told.contains((target() / item.filename()).native())) << item;
}

TEST_P(UnusualTransfers, AreCountedBetweenTwoMountsOfOneFileSystem)
{
    for (const char* name : {"folder/1", "folder/2", "folder/3"})
        file(source() / name);
    unusual.hasMountsByFolder = true;
    expectDone(run({source() / "folder"}));
    EXPECT_EQ(progress.totalFiles, 3U);
}

TEST_P(Transfers, GiveNobodyRightsThatTheTargetGives)
{
    // Version 2; the kind, the rights and the user of each entry.
    constexpr std::array<std::uint32_t, 11> everythingForNobody{
        2, 0x70001, 0xffffffff, 0x70002, 65534, 0x50004, 0xffffffff, 0x70010, 0xffffffff, 0x50020, 0xffffffff};
    if (::setxattr(target().c_str(), "system.posix_acl_default", everythingForNobody.data(),
                   sizeof everythingForNobody, 0) != 0)
        GTEST_FAIL() << strerrorname_np(errno);
    fs::permissions(file(source() / "folder/item"), fs::perms(0640));
    expectDone(run({source() / "folder"}));
    std::array<char, 256> names{};
    for (const char* name : {"folder", "folder/item"})
        EXPECT_EQ(::listxattr((target() / name).c_str(), names.data(), names.size()), 0) << name << names.data();
}

TEST_P(UnusualTransfers, NeitherOverwriteWhatComesMeanwhile)
{
    unusual.canRenameNew = false;
    const fs::path item = file(source() / "item", "new");
    // Between the first look at the target and the renaming.
    bool isLate = false;
    unusual.changeStatus = [&](const std::string& name, struct stat&) {
        if (!isLate && name == "item" && fs::exists(source() / "item")) {
            isLate = true;
            file(target() / "item", "quicker");
        }
    };
    answers.always = {Resolution::KeepBoth};
    expectDone(run({item}));
    EXPECT_EQ(contentOf(target() / "item"), "quicker");
    EXPECT_EQ(contentOf(target() / "item 2"), "new");
}

class UnusualCopies : public TransferTest {
protected:
    UnusualCopies() : TransferTest(Disks::Two) { calls = &unusual; }
    ~UnusualCopies() override { forget(); }
    UnusualCalls unusual;
};

TEST_F(UnusualCopies, OfAFileOfSeveralNamesTakeTheRoomOfOne)
{
    constexpr int names = 10;
    file(source() / "item/1", std::string(1 << 20, 'x'));
    for (int name = 2; name <= names; ++name)
        fs::create_hard_link(source() / "item/1", source() / "item" / std::to_string(name));
    // Memory counts names; disks do not.
    unusual.changeFileSystem = [](struct statfs& status) { status.f_ffree = 4; };
    expectAmongMounts([&] { return mountMemory(target(), "size=3m"); },
                      [&] {
                          EXPECT_EQ(kindsOf(run(What::Copy, {source() / "item"})), std::vector<Kind>{});
                          EXPECT_EQ(treeOf(target() / "item"), treeOf(source() / "item"));
                          EXPECT_EQ(progress.files, progress.totalFiles);
                      });
}

TEST_F(UnusualCopies, ShareBytesAfterOneThatCannot)
{
    unusual.shared = 0;
    const fs::path own = file(target() / "own/item", "content");
    const fs::path elsewhere = file(source() / "another", "content");
    EXPECT_EQ(run(What::Copy, {elsewhere, own}).done, 2U);
    EXPECT_EQ(unusual.shared, 1);
    EXPECT_EQ(contentOf(target() / "item"), "content");
}

TEST_F(UnusualCopies, OfDevicesAreNotMade)
{
    unusual.changeStatus = [](const std::string& name, struct stat& status) {
        if (name == "device")
            status.st_mode = S_IFCHR | 0600;
    };
    file(source() / "folder/device");
    file(source() / "folder/file");
    const Result result = run(What::Copy, {source() / "folder"});
    EXPECT_EQ(answers.told.size(), 1U);
    EXPECT_EQ(kindsOf(result), std::vector{Kind::IsDevice});
    EXPECT_EQ(namesIn(target() / "folder"), std::vector<std::string>{"file"});
}

TEST_F(UnusualCopies, OfAFileThatKeepsChangingAreNotKept)
{
    const fs::path item = file(source() / "folder/changing", "a");
    file(source() / "folder/other", "b");
    int changes = 0;
    unusual.beforeRead = [&] {
        if (++changes < 100)
            Files::write(item, std::string(static_cast<std::size_t>(changes), 'x'));
    };
    for (const What what : {What::Copy, What::Move}) {
        changes = 0;
        const Result result = run(what, {source() / "folder"});
        EXPECT_EQ(kindsOf(result).front(), Kind::Changed);
        EXPECT_EQ(namesIn(target() / "folder"), std::vector<std::string>{"other"});
        EXPECT_TRUE(fs::exists(item));
        fs::remove_all(target() / "folder");
    }
}

TEST_F(UnusualCopies, AreMadeAnewWhereTheFileChangesOnce)
{
    const fs::path item = file(source() / "item", "first");
    bool hasChanged = false;
    unusual.beforeRead = [&] {
        if (!std::exchange(hasChanged, true))
            Files::write(item, "second and longer");
    };
    EXPECT_EQ(kindsOf(run(What::Move, {item})), std::vector<Kind>{});
    EXPECT_EQ(contentOf(target() / "item"), "second and longer");
    EXPECT_FALSE(fs::exists(item));
}

class CopiesToADisk : public TransferTest {
protected:
    CopiesToADisk() : TransferTest(Disks::Two) {}
};

TEST_F(CopiesToADisk, GoOnWithoutAnAttributeThatItHasNoRoomFor)
{
    const std::string large(20'000, 'x');
    const auto hasLarge = [&](const fs::path& item) {
        return ::setxattr(item.c_str(), "user.large", large.data(), large.size(), 0) == 0;
    };
    const fs::path item = file(target() / "folder/1");
    file(target() / "folder/2");
    ASSERT_TRUE(hasLarge(item)) << "files in memory have no attributes";
    ASSERT_FALSE(hasLarge(file(source() / "probe"))) << "the disk has room for large attributes";
    const Tree before = treeOf(target() / "folder");
    Result result = run(What::Copy, {target() / "folder"}, source());
    EXPECT_EQ(kindsOf(result), std::vector{Kind::WithoutAttributes});
    EXPECT_EQ(result.problems.kept()[0].path, item);
    EXPECT_EQ(namesIn(source() / "folder"), (std::vector<std::string>{"1", "2"}));
    EXPECT_EQ(contentOf(source() / "folder/1"), "content");
    EXPECT_EQ(treeOf(target() / "folder"), before);

    fs::remove_all(source() / "folder");
    const fs::path other = file(target() / "other");
    result = run(What::Move, {target() / "folder", other}, source());
    EXPECT_EQ(kindsOf(result), (std::vector{Kind::WithoutAttributes, Kind::NotRemoved}));
    EXPECT_EQ(result.done, 2U);
    EXPECT_EQ(namesIn(target() / "folder"), std::vector<std::string>{"1"});
    EXPECT_EQ(treeOf(target() / "folder").at("/1"), before.at("/1"));
    EXPECT_FALSE(fs::exists(other));
    // The original stays then too, and the copy goes.
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    EXPECT_EQ(namesIn(target() / "folder"), (std::vector<std::string>{"1", "2"}));
    EXPECT_EQ(treeOf(target() / "folder").at("/1"), before.at("/1"));
    EXPECT_TRUE(fs::exists(other));
    EXPECT_FALSE(fs::exists(source() / "folder"));
}

TEST_F(UnusualCopies, KeepEachNameOfAFileThatTheyLackAttributesOf)
{
    ASSERT_TRUE(haveAttributes()) << "files in memory have no attributes";
    const fs::path first = file(source() / "1");
    ASSERT_EQ(::setxattr(first.c_str(), "user.orvik", "a value", 7, 0), 0);
    const fs::path second = source() / "2";
    fs::create_hard_link(first, second);
    unusual.hasRoomForAttributes = false;
    const Result result = run(What::Move, {first, second});
    ASSERT_EQ(kindsOf(result),
              (std::vector{Kind::WithoutAttributes, Kind::WithoutAttributes, Kind::NotRemoved, Kind::NotRemoved}));
    EXPECT_EQ(result.problems.kept()[1].path, second);
    EXPECT_EQ(namesIn(source()), (std::vector<std::string>{"1", "2"}));
    EXPECT_EQ(fs::hard_link_count(target() / "1"), 2U);
}

TEST_F(UnusualCopies, ThatCannotGoAgainAreTold)
{
    ASSERT_TRUE(haveAttributes()) << "files in memory have no attributes";
    const fs::path item = file(source() / "folder/file");
    ASSERT_EQ(::setxattr(item.c_str(), "user.orvik", "a value", 7, 0), 0);
    const Tree before = treeOf(item);
    unusual.hasRoomForAttributes = false;
    run(What::Move, {source() / "folder"});
    unusual.canRemoveByPath = false;
    const Result undone = undo();
    ASSERT_EQ(kindsOf(undone), std::vector{Kind::NotUndone});
    EXPECT_EQ(undone.problems.kept()[0].path, target() / "folder/file");
    EXPECT_EQ(treeOf(item), before);
    EXPECT_EQ(contentOf(target() / "folder/file"), "content");
}

TEST_F(UnusualCopies, DoNotLackAttributesThatAnotherLacked)
{
    ASSERT_TRUE(haveAttributes()) << "files in memory have no attributes";
    const fs::path item = file(source() / "1");
    ASSERT_EQ(::setxattr(item.c_str(), "user.orvik", "a value", 7, 0), 0);
    const fs::path link = source() / "2";
    fs::create_symlink("nowhere", link);
    unusual.hasRoomForAttributes = false;
    unusual.canSetTimes = false;
    EXPECT_EQ(kindsOf(run(What::Move, {item, link})), std::vector{Kind::NotTransferred});
    EXPECT_EQ(namesIn(source()), std::vector<std::string>{"1"});
    EXPECT_EQ(namesIn(target()), std::vector<std::string>{"2"});
}

TEST_F(UnusualCopies, SayWhichFolderIsNotBackWithAllItsAttributes)
{
    ASSERT_TRUE(haveAttributes()) << "files in memory have no attributes";
    const fs::path merged = file(source() / "folder/file").parent_path();
    ASSERT_EQ(::setxattr(merged.c_str(), "user.orvik", "a value", 7, 0), 0);
    folder(target() / "folder");
    answers.always = {Resolution::Merge};
    EXPECT_EQ(kindsOf(run(What::Move, {merged})), std::vector<Kind>{});
    EXPECT_FALSE(fs::exists(merged));
    unusual.hasRoomForAttributes = false;
    const Result undone = undo();
    ASSERT_EQ(kindsOf(undone), std::vector{Kind::NotUndone});
    EXPECT_EQ(undone.problems.kept()[0].path, merged);
    EXPECT_EQ(undone.problems.kept()[0].error, ENOSPC);
    EXPECT_EQ(namesIn(merged), std::vector<std::string>{"file"});
}

TEST_F(UnusualCopies, NeverTakeAwayWhatCameOrChangedAfterwards)
{
    file(source() / "folder/old", "old");
    file(source() / "folder/changed", "as it was copied");
    bool isCopied = false;
    // What stands in the folder when it is in its place at the target.
    unusual.changeStatus = [&](const std::string&, struct stat&) {
        if (!isCopied && fs::exists(target() / "folder")) {
            isCopied = true;
            file(source() / "folder/new", "new");
            Files::write(source() / "folder/changed", "as it is now, longer");
        }
    };
    const Result result = run(What::Move, {source() / "folder"});
    EXPECT_EQ(kindsOf(result), std::vector{Kind::NotRemoved});
    EXPECT_EQ(namesIn(source() / "folder"), (std::vector<std::string>{"changed", "new"}));
    EXPECT_EQ(namesIn(target() / "folder"), (std::vector<std::string>{"changed", "old"}));
    // And it becomes one again.
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    EXPECT_EQ(contentOf(source() / "folder/old"), "old");
    EXPECT_EQ(contentOf(source() / "folder/changed"), "as it is now, longer");
    EXPECT_EQ(contentOf(source() / "folder/changed 2"), "as it was copied");
    EXPECT_FALSE(fs::exists(target() / "folder"));
}

TEST_F(UnusualCopies, AreNoMovesOfWhatHasAnotherNameMeanwhile)
{
    file(source() / "folder/file");
    unusual.changeStatus = [&](const std::string&, struct stat&) {
        if (fs::exists(target() / "folder") && fs::exists(source() / "folder"))
            fs::rename(source() / "folder", source() / "renamed");
    };
    EXPECT_EQ(kindsOf(run(What::Move, {source() / "folder"})), std::vector{Kind::NotRemoved});
    EXPECT_EQ(contentOf(source() / "renamed/file"), "content");
    EXPECT_EQ(contentOf(target() / "folder/file"), "content");
}

TEST_F(UnusualCopies, EndSoonWhenTheyAreCancelled)
{
    file(source() / "folder/one", Files::noise(700'000));
    file(source() / "folder/two", Files::noise(700'000));
    int reads = 0;
    unusual.beforeRead = [&] {
        if (++reads == 3)
            progress.cancelled = true;
    };
    const Result result = run(What::Move, {source() / "folder"});
    EXPECT_TRUE(result.isCancelled);
    EXPECT_EQ(result.done, 0U);
    EXPECT_EQ(reads, 3);
    EXPECT_EQ(namesIn(source() / "folder").size(), 2U);
    forget();
    EXPECT_EQ(namesIn(target()), std::vector<std::string>{});
}

TEST_F(UnusualCopies, GoOnWithoutAFileThatCannotBeRead)
{
    if (::geteuid() == 0)
        unusual.changeStatus = [](const std::string& name, struct stat&) { static_cast<void>(name); };
    file(source() / "folder/one");
    file(source() / "folder/vanished");
    bool isGone = false;
    unusual.changeStatus = [&](const std::string& name, struct stat&) {
        // After the look that the copy begins with.
        if (name == "vanished" && progress.phase == Progress::Phase::Working)
            isGone = fs::remove(source() / "folder/vanished") || isGone;
    };
    const Result result = run(What::Move, {source() / "folder"});
    EXPECT_TRUE(isGone);
    EXPECT_EQ(kindsOf(result), std::vector{Kind::NotTransferred});
    EXPECT_EQ(result.problems.kept()[0].path, source() / "folder/vanished");
    EXPECT_EQ(namesIn(target() / "folder"), std::vector<std::string>{"one"});
    EXPECT_FALSE(fs::exists(source() / "folder"));
}

class Leftovers : public TransferTest {};

TEST_F(Leftovers, OfAnotherProcessThatRunsAreLeftAlone)
{
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    LinuxDesktop::FileDescriptor reading(ends[0]);
    LinuxDesktop::FileDescriptor writing(ends[1]);
    const pid_t child = ::fork();
    if (child == 0) {
        StagingRecord record(systemCalls, {records()});
        const auto target =
            shareFolder(systemCalls, systemCalls.open(AT_FDCWD, this->target().c_str(), O_RDONLY), this->target());
        auto staging = Staging::make(systemCalls, target, record);
        static_cast<void>(::write(writing.get(), "x", 1));
        ::pause();
        ::_exit(0);
    }
    char byte = 0;
    ASSERT_EQ(::read(reading.get(), &byte, 1), 1);
    startAnew();
    EXPECT_EQ(namesIn(target()).size(), 1U);
    file(target() / namesIn(target())[0] / "1/file");
    fs::permissions(target() / namesIn(target())[0] / "1", fs::perms(0500));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    startAnew();
    EXPECT_EQ(namesIn(target()), std::vector<std::string>{});
    expectNoLeftovers();
}

TEST_F(Leftovers, AreOnlyWhatTheRecordsNameByTheirPrefix)
{
    file(target() / "mine/file");
    file(records() / "transfer-1", std::string(target() / "mine") + '\0' + "relative" + '\0' + "cut off");
    file(records() / "other", std::string(target() / "mine") + '\0');
    startAnew();
    EXPECT_TRUE(fs::exists(target() / "mine/file"));
    EXPECT_EQ(namesIn(records()), std::vector<std::string>{"other"});
}

TEST_F(Leftovers, OnADiskThatIsNotThereAreRememberedUntilItIs)
{
    folder(records());
    Files::write(records() / "transfer-1", (target() / "disk/.orvik-menu-1").native() + '\0');
    startAnew();
    EXPECT_EQ(namesIn(records()).size(), 1U);
    file(target() / "disk/.orvik-menu-1/2/file");
    startAnew();
    EXPECT_EQ(namesIn(records()).size(), 0U);
    EXPECT_EQ(namesIn(target() / "disk"), std::vector<std::string>{});
}

} // namespace
