#include "Support.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <mutex>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace DefaultsTests;
using namespace std::chrono_literals;
using LinuxDesktop::Store;
namespace fs = std::filesystem;

class StoreFiles : public SettingsTest, public ::testing::Test {};

/// Remembers the order of the calls that change the folder.
class Recorder : public LinuxDesktop::FileOperations {
public:
    [[nodiscard]] std::vector<std::string> calls() const
    {
        const std::lock_guard lock(m_mutex);
        return m_calls;
    }

    LinuxDesktop::FileDescriptor open(const std::string& path, int flags, mode_t mode) override
    {
        auto opened = FileOperations::open(path, flags, mode);
        if ((flags & O_CREAT) != 0)
            record("create " + kind(path));
        return opened;
    }
    ssize_t write(int descriptor, const void* bytes, std::size_t count) override
    {
        record("write");
        return FileOperations::write(descriptor, bytes, count);
    }
    int syncFile(int descriptor) override
    {
        record("flush file");
        return FileOperations::syncFile(descriptor);
    }
    int syncFolder(int descriptor) override
    {
        record("flush folder");
        return FileOperations::syncFolder(descriptor);
    }
    int rename(const std::string& from, const std::string& to) override
    {
        record("rename to " + kind(to));
        return FileOperations::rename(from, to);
    }

private:
    static std::string kind(const std::string& path)
    {
        const auto temporary = path.find(".tmp-");
        return temporary == std::string::npos ? fs::path(path).extension().native() : "temporary";
    }
    void record(std::string call)
    {
        const std::lock_guard lock(m_mutex);
        m_calls.push_back(std::move(call));
    }

    mutable std::mutex m_mutex;
    std::vector<std::string> m_calls;
};

/// Makes whoever flushes the last good copy, the second file that is flushed, wait for a permission.
class SlowDisk : public LinuxDesktop::FileOperations {
public:
    void permit() { m_permission.set_value(); }
    [[nodiscard]] bool isWaiting() const { return m_waiting; }

    int syncFile(int descriptor) override
    {
        if (++m_flushes == 2) {
            m_waiting = true;
            m_permitted.wait_for(60s);
            m_waiting = false;
        }
        return FileOperations::syncFile(descriptor);
    }

private:
    std::atomic<int> m_flushes{0};
    std::atomic<bool> m_waiting{false};
    std::promise<void> m_permission;
    const std::shared_future<void> m_permitted = m_permission.get_future().share();
};

/// Makes whoever creates the last good copy wait for a permission.
class SlowCopy : public LinuxDesktop::FileOperations {
public:
    void permit() { m_permission.set_value(); }

    int rename(const std::string& from, const std::string& to) override
    {
        if (to.ends_with(".bak"))
            m_permitted.wait_for(10s);
        return FileOperations::rename(from, to);
    }

private:
    std::promise<void> m_permission;
    const std::shared_future<void> m_permitted = m_permission.get_future().share();
};

ino_t inodeOf(const std::string& path)
{
    struct stat status {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return status.st_ino;
}

mode_t modeOf(const std::string& path)
{
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777U;
}

TEST_F(StoreFiles, FileAndFolderAreTheirOwnersAlone)
{
    store({{"k", 1}});
    EXPECT_EQ(modeOf(file()), 0600U);
    EXPECT_EQ(modeOf(file(".bak")), 0600U);
    EXPECT_EQ(modeOf(folder()), 0700U);
    fs::permissions(file(), fs::perms(0644));
    store({{"k", 2}});
    EXPECT_EQ(modeOf(file()), 0600U);
}

TEST_F(StoreFiles, MissingFoldersAreMade)
{
    Store store(root() + "/a/b/orvik-menu");
    store.open(domainName)->setObject_forKey(1, "k");
    EXPECT_TRUE(store.open(domainName)->synchronize());
    EXPECT_EQ(modeOf(root() + "/a"), 0700U);
    EXPECT_TRUE(fs::exists(root() + "/a/b/orvik-menu/" + std::string(domainName) + ".plist"));
}

TEST_F(StoreFiles, DataReachTheDiskBeforeTheNameAndTheNameBeforeTheAnswer)
{
    makeFolder();
    const auto recorder = std::make_shared<Recorder>();
    const std::vector<std::string> beforeTheAnswer{"create .lock", "create temporary", "write",
                                                   "flush file",   "rename to .plist", "flush folder"};
    const std::vector<std::string> afterIt{"create temporary", "write", "flush file", "create .lock",
                                           "rename to .bak"};
    {
        Store store(folder(), recorder);
        const auto domain = store.open(domainName);
        domain->setObject_forKey(1, "k");
        ASSERT_TRUE(domain->synchronize());
        const auto calls = recorder->calls();
        EXPECT_TRUE(std::ranges::mismatch(beforeTheAnswer, calls).in1 == beforeTheAnswer.end());
    }
    auto all = beforeTheAnswer;
    all.insert(all.end(), afterIt.begin(), afterIt.end());
    EXPECT_EQ(recorder->calls(), all);
}

TEST_F(StoreFiles, SynchronizeWaitsForTheSettingsAndNotForTheirCopy)
{
    const auto operations = std::make_shared<SlowCopy>();
    {
        Store store(folder(), operations);
        const auto domain = store.open(domainName);
        domain->setObject_forKey(1, "k");
        ASSERT_TRUE(domain->synchronize());
        EXPECT_FALSE(fs::exists(file(".bak")));
        operations->permit();
    }
    EXPECT_EQ(readFile(file(".bak")), readFile(file()));
}

TEST_F(StoreFiles, NobodyWaitsUntilTheCopyIsOnDisk)
{
    const auto disk = std::make_shared<SlowDisk>();
    {
        Store store(folder(), disk);
        const auto domain = store.open(domainName);
        domain->setObject_forKey(0, "k");
        ASSERT_TRUE(domain->synchronize());
        ASSERT_TRUE(holdsWithin(10s, [&] { return disk->isWaiting(); }));
        for (int i = 1; i < 10; ++i) {
            domain->setObject_forKey(i, "k");
            EXPECT_TRUE(domain->synchronize());
        }
        EXPECT_TRUE(disk->isWaiting());
        disk->permit();
    }
    EXPECT_EQ(stored("k"), NS::Value(9));
    EXPECT_EQ(readFile(file(".bak")), readFile(file()));
}

TEST_F(StoreFiles, WritingWithoutABreakDoesNotPutTheCopyOffForGood)
{
    Store store(folder());
    const auto domain = store.open(domainName);
    int i = 0;
    EXPECT_TRUE(holdsWithin(20s, [&] {
        domain->setObject_forKey(++i, "k");
        return domain->synchronize() && fs::exists(file(".bak"));
    }));
}

TEST_F(StoreFiles, AWriteThatChangesNothingMakesTheCopyThatAKilledWriterDidNot)
{
    store({{"k", 1}});
    writeFile(file(), propertyList("<dict><key>k</key><integer>2</integer></dict>"));
    {
        Store store(folder());
        store.open(domainName)->setObject_forKey(2, "k");
    }
    EXPECT_EQ(readFile(file(".bak")), readFile(file()));
}

TEST_F(StoreFiles, ATemporaryWhoseWriterLivesStays)
{
    makeFolder();
    LinuxDesktop::FileOperations files;
    const std::string target = folder() + "/target";
    auto made = LinuxDesktop::NewFile::make(files, {"bytes", target, "target.tmp-"});
    ASSERT_TRUE(made);
    LinuxDesktop::removeStaleTemporaries(files, target, "target.tmp-");
    EXPECT_TRUE(std::move(*made).takePlace());
    EXPECT_EQ(readFile(target), "bytes");
}

TEST_F(StoreFiles, ARunningProgramMakesTheCopySoon)
{
    Store store(folder());
    const auto domain = store.open(domainName);
    for (int i = 0; i < 3; ++i) {
        domain->setObject_forKey(i, "k");
        ASSERT_TRUE(domain->synchronize());
        EXPECT_TRUE(holdsWithin(2s, [&] { return readFile(file(".bak")) == readFile(file()); })) << i;
    }
}

TEST_F(StoreFiles, AHandleThatOutlivesTheStoreMakesTheCopyAtOnce)
{
    std::shared_ptr<LinuxDesktop::Domain> domain = Store(folder()).open(domainName);
    for (int i = 1; i <= 3; ++i) {
        domain->setObject_forKey(i, "k");
        EXPECT_EQ(stored("k"), NS::Value(i));
        EXPECT_EQ(readFile(file(".bak")), readFile(file()));
    }
}

TEST_F(StoreFiles, AWriteThatChangesNothingOnlyFlushes)
{
    store({{"k", 1}, {"nan", std::numeric_limits<double>::quiet_NaN()}});
    const ino_t before = inodeOf(file());
    const auto recorder = std::make_shared<Recorder>();
    Store again(folder(), recorder);
    const auto domain = again.open(domainName);
    domain->setObject_forKey(1, "k");
    domain->setObject_forKey(std::numeric_limits<double>::quiet_NaN(), "nan");
    domain->removeObjectForKey("absent");
    ASSERT_TRUE(domain->synchronize());
    EXPECT_EQ(inodeOf(file()), before);
    EXPECT_EQ(recorder->calls(), (std::vector<std::string>{"create .lock", "flush file", "flush folder"}));
}

TEST_F(StoreFiles, RemovingWhatIsNotThereMakesNoFile)
{
    Store store(folder());
    store.open(domainName)->removeObjectForKey("k");
    EXPECT_TRUE(store.open(domainName)->synchronize());
    EXPECT_FALSE(fs::exists(file()));
}

TEST_F(StoreFiles, TheLastGoodCopyIsAFileOfItsOwnWithTheSameContent)
{
    store({{"k", 1}});
    store({{"k", 2}});
    EXPECT_EQ(readFile(file(".bak")), readFile(file()));
    EXPECT_NE(inodeOf(file(".bak")), inodeOf(file()));
}

TEST_F(StoreFiles, TheNextWriterRemovesWhatKilledOnesLeft)
{
    store({{"k", 1}});
    writeFile(file(".tmp-0123456789abcdef"), "half");
    // Names that look alike but are somebody else's.
    writeFile(file(".tmp-0123456789abcdef.plist"), propertyList("<dict/>"));
    writeFile(file(".tmp-0123456789ABCDEF"), "theirs");
    writeFile(file(".tmp-"), "theirs");
    store({{"k", 2}});
    EXPECT_EQ(files(".tmp-").size(), 3U);
    EXPECT_FALSE(fs::exists(file(".tmp-0123456789abcdef")));
}

TEST_F(StoreFiles, ASymbolicLinkStaysAndItsTargetIsReplaced)
{
    makeFolder();
    fs::create_directories(root() + "/dotfiles");
    const std::string target = root() + "/dotfiles/settings";
    writeFile(target, propertyList("<dict><key>a</key><true/></dict>"));
    writeFile(root() + "/dotfiles/" + std::string(domainName) + ".plist.tmp-0123456789abcdef", "half");
    fs::create_symlink("../dotfiles/second", file());
    fs::create_symlink(target, root() + "/dotfiles/second");
    const ino_t before = inodeOf(target);
    {
        Store store(folder());
        const auto domain = store.open(domainName);
        ASSERT_TRUE(domain);
        EXPECT_EQ(domain->objectForKey("a"), NS::Value(true));
        domain->setObject_forKey(1, "k");
        ASSERT_TRUE(domain->synchronize());
    }
    EXPECT_TRUE(fs::is_symlink(file()));
    EXPECT_TRUE(fs::is_symlink(root() + "/dotfiles/second"));
    EXPECT_NE(inodeOf(target), before);
    EXPECT_EQ(stored("k"), NS::Value(1));
    EXPECT_EQ(stored("a"), NS::Value(true));
    EXPECT_EQ(std::distance(fs::directory_iterator(root() + "/dotfiles"), {}), 2);
}

TEST_F(StoreFiles, ADanglingLinkIsAnEmptyDomainWhoseTargetIsMade)
{
    makeFolder();
    fs::create_symlink(root() + "/target", file());
    Store store(folder());
    const auto domain = store.open(domainName);
    ASSERT_TRUE(domain);
    EXPECT_FALSE(domain->objectForKey("k"));
    domain->setObject_forKey(1, "k");
    ASSERT_TRUE(domain->synchronize());
    EXPECT_TRUE(fs::is_symlink(file()));
    EXPECT_TRUE(fs::is_regular_file(root() + "/target"));
    EXPECT_EQ(stored("k"), NS::Value(1));
}

TEST_F(StoreFiles, ALinkThatIsTurnedElsewhereIsFollowedThere)
{
    makeFolder();
    writeFile(root() + "/one", propertyList("<dict><key>k</key><integer>1</integer></dict>"));
    writeFile(root() + "/two", propertyList("<dict><key>k</key><integer>2</integer></dict>"));
    fs::create_symlink(root() + "/one", file());
    Store store(folder());
    const auto domain = store.open(domainName);
    EXPECT_EQ(domain->objectForKey("k"), NS::Value(1));
    fs::remove(file());
    fs::create_symlink(root() + "/two", file());
    EXPECT_EQ(domain->objectForKey("k"), NS::Value(2));
}

TEST_F(StoreFiles, WhatIsNoFileIsNotOpenedAndStays)
{
    makeFolder();
    const auto isOpened = [&] { return Store(folder()).open(domainName) != nullptr; };

    fs::create_directory(file());
    EXPECT_FALSE(isOpened());
    EXPECT_TRUE(fs::is_directory(file()));
    fs::remove(file());

    ASSERT_EQ(::mkfifo(file().c_str(), 0600), 0);
    EXPECT_FALSE(isOpened());
    EXPECT_TRUE(fs::is_fifo(file()));
    fs::remove(file());

    fs::create_symlink(file(), file());
    EXPECT_FALSE(isOpened());
    EXPECT_TRUE(fs::is_symlink(file()));
    fs::remove(file());

    fs::create_symlink("/dev/null", file());
    EXPECT_FALSE(isOpened());
    fs::remove(file());

    const LinuxDesktop::FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(file().size(), sizeof(address.sun_path));
    file().copy(address.sun_path, sizeof(address.sun_path) - 1);
    ASSERT_EQ(::bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    EXPECT_FALSE(isOpened());
    EXPECT_TRUE(fs::is_socket(file()));
}

TEST_F(StoreFiles, AFileInTheFoldersPlaceIsNotOpened)
{
    writeFile(folder(), "not a folder");
    EXPECT_FALSE(Store(folder()).open(domainName));
}

TEST_F(StoreFiles, ADomainBecomesReadableWhenTheObstacleGoes)
{
    makeFolder();
    fs::create_directory(file());
    Store store(folder());
    EXPECT_FALSE(store.open(domainName));
    fs::remove(file());
    const auto domain = store.open(domainName);
    ASSERT_TRUE(domain);
    domain->setObject_forKey(1, "k");
    EXPECT_TRUE(domain->synchronize());
}

TEST_F(StoreFiles, NoFileTakesTheNumberOfAClosedStandardStream)
{
    const auto result = inChild([&] {
        ::close(STDIN_FILENO);
        ::close(STDOUT_FILENO);
        Store store(folder());
        const auto domain = store.open(domainName);
        domain->setObject_forKey(1, "k");
        return domain->synchronize() && ::fcntl(STDIN_FILENO, F_GETFD) == -1 && ::fcntl(STDOUT_FILENO, F_GETFD) == -1;
    });
    EXPECT_EQ(result.status, 0) << result.errors;
}

} // namespace
