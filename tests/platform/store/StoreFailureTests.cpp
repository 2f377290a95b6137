#include "Support.h"
#include "platform/linux/store/PropertyList.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <gtest/gtest.h>
#include <numeric>
#include <sched.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using namespace DefaultsTests;
using namespace std::chrono_literals;
using LinuxDesktop::FileDescriptor;
using LinuxDesktop::Store;
namespace fs = std::filesystem;

/// Fails one of the calls that a write makes, as long as it is told to.
class FailingOperations : public LinuxDesktop::FileOperations {
public:
    enum class Call { None, Open, Write, ShortWrite, SyncFile, Rename, SyncFolder };
    std::atomic<Call> failing = Call::None;

    FileDescriptor open(const std::string& path, int flags, mode_t mode) override
    {
        if (failing == Call::Open && (flags & O_EXCL) != 0) {
            errno = ENOSPC;
            return {};
        }
        return FileOperations::open(path, flags, mode);
    }
    ssize_t write(int descriptor, const void* bytes, std::size_t count) override
    {
        if (failing == Call::ShortWrite && count > 10)
            return FileOperations::write(descriptor, bytes, 10);
        if (fails(Call::Write) || fails(Call::ShortWrite))
            return -1;
        return FileOperations::write(descriptor, bytes, count);
    }
    int syncFile(int descriptor) override
    {
        return fails(Call::SyncFile) ? -1 : FileOperations::syncFile(descriptor);
    }
    int syncFolder(int descriptor) override
    {
        return fails(Call::SyncFolder) ? -1 : FileOperations::syncFolder(descriptor);
    }
    int rename(const std::string& from, const std::string& to) override
    {
        return fails(Call::Rename) ? -1 : FileOperations::rename(from, to);
    }

private:
    [[nodiscard]] bool fails(Call call) const
    {
        errno = ENOSPC;
        return failing == call;
    }
};

class StoreFailures : public SettingsTest, public ::testing::Test {};

class FailingStep : public SettingsTest, public ::testing::TestWithParam<FailingOperations::Call> {};

std::ptrdiff_t linesOf(const std::string& text)
{
    return std::ranges::count(text, '\n');
}

TEST_P(FailingStep, KeepsTheFileWholeAndTheValueInMemoryUntilItSucceeds)
{
    store({{"old", 1}});
    const std::string before = readFile(file());
    const auto operations = std::make_shared<FailingOperations>();
    Store store(folder(), operations);
    const auto domain = store.open(domainName);

    operations->failing = GetParam();
    testing::internal::CaptureStderr();
    domain->setObject_forKey(2, "new");
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(domain->synchronize());
    const std::string complaint = testing::internal::GetCapturedStderr();
    EXPECT_EQ(linesOf(complaint), 1) << complaint;
    EXPECT_NE(complaint.find("No space left on device"), std::string::npos) << complaint;

    EXPECT_EQ(domain->objectForKey("new"), NS::Value(2));
    EXPECT_EQ(stored("old"), NS::Value(1));
    // The write that is made later without being asked for may be at it.
    EXPECT_TRUE(holdsWithin(2s, [&] { return files(".tmp-").empty(); }));
    if (GetParam() != FailingOperations::Call::SyncFolder) {
        EXPECT_EQ(readFile(file()), before);
    }

    operations->failing = FailingOperations::Call::None;
    EXPECT_TRUE(domain->synchronize());
    EXPECT_EQ(stored("new"), NS::Value(2));
    EXPECT_EQ(stored("old"), NS::Value(1));

    // A new episode is told of again.
    operations->failing = GetParam();
    testing::internal::CaptureStderr();
    domain->setObject_forKey(3, "new");
    EXPECT_FALSE(domain->synchronize());
    EXPECT_EQ(linesOf(testing::internal::GetCapturedStderr()), 1);
    operations->failing = FailingOperations::Call::None;
}

std::string nameOfStep(const ::testing::TestParamInfo<FailingOperations::Call>& step)
{
    constexpr std::array names{"None", "Create", "Write", "ShortWrite", "SyncFile", "Rename", "SyncFolder"};
    return names.at(static_cast<std::size_t>(step.param));
}

INSTANTIATE_TEST_SUITE_P(Store, FailingStep,
                         ::testing::Values(FailingOperations::Call::Open, FailingOperations::Call::Write,
                                           FailingOperations::Call::ShortWrite, FailingOperations::Call::SyncFile,
                                           FailingOperations::Call::Rename, FailingOperations::Call::SyncFolder),
                         nameOfStep);

TEST_F(StoreFailures, TheNextWriteTriesAFailedOneAgain)
{
    const auto operations = std::make_shared<FailingOperations>();
    Store store(folder(), operations);
    const auto domain = store.open(domainName);
    operations->failing = FailingOperations::Call::Write;
    testing::internal::CaptureStderr();
    domain->setObject_forKey(1, "first");
    EXPECT_FALSE(domain->synchronize());
    testing::internal::GetCapturedStderr();
    operations->failing = FailingOperations::Call::None;
    domain->setObject_forKey(2, "second");
    EXPECT_TRUE(holdsWithin(1s, [&] { return stored("first") == NS::Value(1) && stored("second") == NS::Value(2); }));
}

TEST_F(StoreFailures, TheStoresEndTriesAFailedWriteAgain)
{
    const auto operations = std::make_shared<FailingOperations>();
    {
        Store store(folder(), operations);
        const auto domain = store.open(domainName);
        operations->failing = FailingOperations::Call::Rename;
        testing::internal::CaptureStderr();
        domain->setObject_forKey(1, "k");
        EXPECT_FALSE(domain->synchronize());
        testing::internal::GetCapturedStderr();
        operations->failing = FailingOperations::Call::None;
    }
    EXPECT_EQ(stored("k"), NS::Value(1));
}

class StoreOfManyMegabytes : public SettingsTest, public ::testing::Test {
protected:
    StoreOfManyMegabytes() : SettingsTest(Place::Memory) {}
};

TEST_F(StoreOfManyMegabytes, SettingsThatGrowBeyondTheBoundAreNotWritten)
{
    store({{"a", std::string(40U << 20U, 'a')}});
    const std::string before = readFile(file());
    Store store(folder());
    const auto domain = store.open(domainName);
    testing::internal::CaptureStderr();
    domain->setObject_forKey(std::string(40U << 20U, 'b'), "b");
    EXPECT_FALSE(domain->synchronize());
    EXPECT_EQ(linesOf(testing::internal::GetCapturedStderr()), 1);
    EXPECT_EQ(readFile(file()), before);
    domain->removeObjectForKey("b");
    EXPECT_TRUE(domain->synchronize());
}

TEST_F(StoreFailures, AnUnreadableFileIsNotOpened)
{
    store({{"k", 1}});
    fs::permissions(file(), fs::perms::none);
    const auto result = inChild([&] {
        obeyPermissions(root());
        return Store(folder()).open(domainName) == nullptr;
    });
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(fs::exists(file()));
}

TEST_F(StoreFailures, AFolderThatMayNotBeSearchedIsNotOpened)
{
    store({{"k", 1}});
    fs::permissions(folder(), fs::perms::none);
    const auto result = inChild([&] {
        obeyPermissions(root());
        return Store(folder()).open(domainName) == nullptr;
    });
    EXPECT_EQ(result.status, 0) << result.errors;
    fs::permissions(folder(), fs::perms::owner_all);
}

TEST_F(StoreFailures, WhatWasReadIsStillThereWhenTheFileBecomesUnreadable)
{
    store({{"k", 1}});
    const auto result = inChild([&] {
        obeyPermissions(root());
        Store store(folder());
        const auto domain = store.open(domainName);
        const bool before = domain->objectForKey("k") == NS::Value(1);
        fs::permissions(file(), fs::perms::none);
        const bool after = domain->objectForKey("k") == NS::Value(1);
        domain->setObject_forKey(2, "k");
        const bool refused = !domain->synchronize() && !store.open(domainName);
        fs::permissions(file(), fs::perms::owner_read);
        return before && after && refused && domain->synchronize();
    });
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(stored("k"), NS::Value(2));
}

TEST_F(StoreFailures, AReadOnlyFolderIsReadAndNotWritten)
{
    store({{"k", 1}});
    const std::string before = readFile(file());
    fs::remove(file(".lock"));
    const auto result = inChild([&] {
        obeyPermissions(root());
        fs::permissions(folder(), fs::perms::owner_read | fs::perms::owner_exec);
        Store store(folder());
        const auto domain = store.open(domainName);
        if (!domain || domain->objectForKey("k") != NS::Value(1))
            return false;
        domain->setObject_forKey(2, "k");
        return !domain->synchronize() && !domain->synchronize() && domain->objectForKey("k") == NS::Value(2);
    });
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(linesOf(result.errors), 1) << result.errors;
    EXPECT_NE(result.errors.find("Permission denied"), std::string::npos) << result.errors;
    EXPECT_EQ(readFile(file()), before);
}

TEST_F(StoreFailures, AFolderThatCannotBeMadeIsAnEmptyDomain)
{
    const auto result = inChild([&] {
        obeyPermissions(root());
        fs::permissions(root(), fs::perms::owner_read | fs::perms::owner_exec);
        Store store(folder());
        const auto domain = store.open(domainName);
        if (!domain || domain->objectForKey("k"))
            return false;
        domain->setObject_forKey(1, "k");
        const bool refused = !domain->synchronize();
        fs::permissions(root(), fs::perms::owner_all);
        return refused && domain->synchronize();
    });
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(stored("k"), NS::Value(1));
}

TEST_F(StoreFailures, AnotherUsersFileIsReplacedInAFolderOfOnesOwn)
{
    store({{"theirs", 1}});
    fs::permissions(file(), fs::perms(0644));
    const auto result = inChild([&] {
        obeyPermissions(root());
        Store store(folder());
        const auto domain = store.open(domainName);
        domain->setObject_forKey(2, "mine");
        return domain->synchronize() && fs::status(file()).permissions() == fs::perms(0600);
    });
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(stored("theirs"), NS::Value(1));
    EXPECT_EQ(stored("mine"), NS::Value(2));
}

TEST_F(StoreFailures, ALockThatCannotBeOpenedFailsTheWriteAtOnce)
{
    store({{"k", 1}});
    fs::remove(file(".lock"));
    fs::create_directory(file(".lock"));
    Store store(folder());
    const auto domain = store.open(domainName);
    domain->setObject_forKey(2, "k");
    testing::internal::CaptureStderr();
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(domain->synchronize());
    EXPECT_LT(std::chrono::steady_clock::now() - start, 500ms);
    EXPECT_FALSE(domain->synchronize());
    EXPECT_EQ(linesOf(testing::internal::GetCapturedStderr()), 1);
    EXPECT_EQ(stored("k"), NS::Value(1));
    fs::remove(file(".lock"));
    EXPECT_TRUE(domain->synchronize());
    EXPECT_EQ(stored("k"), NS::Value(2));
}

TEST_F(StoreFailures, ALockHeldByAnotherProgramIsWaitedForTwoSecondsAndTriedAgain)
{
    store({{"k", 1}});
    Store store(folder());
    const auto domain = store.open(domainName);
    ProcessResult holder;
    testing::internal::CaptureStderr();
    std::thread holding([&] {
        holder = runProcess(
            {"/usr/bin/flock", file(".lock"), "/bin/sh", "-c", "echo held > \"$0\"; exec sleep 4", root() + "/held"});
    });
    EXPECT_TRUE(holdsWithin(2s, [&] { return fs::exists(root() + "/held"); }));

    domain->setObject_forKey(2, "k");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(domain->synchronize());
    const auto waited = std::chrono::steady_clock::now() - start;
    EXPECT_GE(waited, 1900ms);
    EXPECT_LT(waited, 2500ms);
    EXPECT_EQ(domain->objectForKey("k"), NS::Value(2));
    EXPECT_EQ(stored("k"), NS::Value(1));
    holding.join();
    EXPECT_TRUE(holdsWithin(4s, [&] { return stored("k") == NS::Value(2); }));
    const std::string complaint = testing::internal::GetCapturedStderr();
    EXPECT_EQ(linesOf(complaint), 1) << complaint;
    EXPECT_NE(complaint.find("lock"), std::string::npos) << complaint;
    EXPECT_EQ(holder.status, 0);
}

std::chrono::microseconds processorTime(const rusage& usage)
{
    return std::chrono::seconds(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           std::chrono::microseconds(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec);
}

TEST_F(StoreFailures, ALockThatIsKeptIsWaitedForOnceAndWithoutBusyness)
{
    store({{"k", 0}});
    {
        Store store(folder());
        const auto domain = store.open(domainName);
        FileDescriptor lock(::open(file(".lock").c_str(), O_RDWR | O_CLOEXEC));
        ASSERT_EQ(::flock(lock.get(), LOCK_EX), 0);
        testing::internal::CaptureStderr();
        rusage before{};
        rusage after{};
        ::getrusage(RUSAGE_SELF, &before);
        domain->setObject_forKey(1, "k");
        EXPECT_FALSE(domain->synchronize());
        ::getrusage(RUSAGE_SELF, &after);
        EXPECT_LT(after.ru_nvcsw - before.ru_nvcsw, 200);
        EXPECT_LT(processorTime(after) - processorTime(before), 500ms);

        std::vector<std::chrono::steady_clock::duration> waits;
        for (int i = 2; i <= 20; ++i) {
            const auto start = std::chrono::steady_clock::now();
            domain->setObject_forKey(i, "k");
            EXPECT_FALSE(domain->synchronize());
            waits.push_back(std::chrono::steady_clock::now() - start);
        }
        // A busy machine may hold up some of them, but no two seconds in all.
        std::ranges::sort(waits);
        EXPECT_LT(waits[waits.size() / 2], 50ms);
        EXPECT_LT(std::reduce(waits.begin(), waits.end()), 1900ms);
        const std::string complaint = testing::internal::GetCapturedStderr();
        EXPECT_EQ(linesOf(complaint), 1) << complaint;
        EXPECT_EQ(stored("k"), NS::Value(0));

        lock.close();
        EXPECT_TRUE(holdsWithin(4s, [&] { return stored("k") == NS::Value(20); }));
    }
    EXPECT_EQ(readFile(file(".bak")), readFile(file()));
}

TEST_F(StoreFailures, WhoLeavesNothingForLaterIsPromisedNothing)
{
    store({{"k", 0}});
    const FileDescriptor lock(::open(file(".lock").c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(::flock(lock.get(), LOCK_EX), 0);
    // Nothing is written before it is asked for.
    std::promise<void> asked;
    const auto queue = std::make_shared<LinuxDesktop::DelayedQueue>();
    ASSERT_TRUE(queue->post([&] { asked.get_future().wait(); }, 0ms));
    const auto domain = std::make_shared<LinuxDesktop::Domain>(std::make_shared<LinuxDesktop::FileOperations>(),
                                                               queue, folder(), domainName);
    domain->setObject_forKey(1, "k");
    testing::internal::CaptureStderr();
    EXPECT_FALSE(domain->finish());
    asked.set_value();
    queue->stop();
    const std::string complaint = testing::internal::GetCapturedStderr();
    EXPECT_NE(complaint.find("is held by another program; what was written is not stored\n"), std::string::npos)
        << complaint;
    EXPECT_EQ(linesOf(complaint), 1) << complaint;
}

TEST_F(StoreFailures, TheStoresEndWaitsForTheLockOnceMore)
{
    store({{"k", 0}});
    FileDescriptor lock(::open(file(".lock").c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(::flock(lock.get(), LOCK_EX), 0);
    std::thread holding;
    {
        Store store(folder());
        const auto domain = store.open(domainName);
        domain->setObject_forKey(1, "k");
        testing::internal::CaptureStderr();
        EXPECT_FALSE(domain->synchronize());
        testing::internal::GetCapturedStderr();
        holding = std::thread([&] {
            std::this_thread::sleep_for(300ms);
            lock.close();
        });
    }
    holding.join();
    EXPECT_EQ(stored("k"), NS::Value(1));
}

TEST_F(StoreFailures, ReadsDoNotWaitForAWriteThatWaitsForTheLock)
{
    store({{"k", 1}});
    Store store(folder());
    const auto domain = store.open(domainName);
    const FileDescriptor lock(::open(file(".lock").c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(::flock(lock.get(), LOCK_EX), 0);
    domain->setObject_forKey(2, "k");
    testing::internal::CaptureStderr();
    std::thread writing([&] { EXPECT_FALSE(domain->synchronize()); });
    std::this_thread::sleep_for(200ms);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(domain->objectForKey("k"), NS::Value(2));
    domain->setObject_forKey(3, "k");
    EXPECT_LT(std::chrono::steady_clock::now() - start, 200ms);
    writing.join();
    testing::internal::GetCapturedStderr();
    ASSERT_EQ(::flock(lock.get(), LOCK_UN), 0);
}

TEST_F(StoreFailures, AFolderRemovedUnderAWriterIsMadeAgain)
{
    Store store(folder());
    const auto domain = store.open(domainName);
    domain->setObject_forKey(1, "k");
    ASSERT_TRUE(domain->synchronize());
    fs::remove_all(folder());
    EXPECT_FALSE(domain->objectForKey("k"));
    domain->setObject_forKey(2, "k");
    ASSERT_TRUE(domain->synchronize());
    EXPECT_EQ(stored("k"), NS::Value(2));
}

/// In a child: makes the folder's disk hold next to nothing, or at least this process's files.
bool limitDisk(const std::string& folder)
{
    if (::unshare(CLONE_NEWNS) == 0 || ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0)
        if (::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
            ::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k") == 0)
            return true;
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{32768, 32768};
    return ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

TEST_F(StoreFailures, OnAFullDiskTheOldFileStaysWholeAndLaterTheWriteSucceeds)
{
    makeFolder();
    const auto result = inChild([&] {
        if (!limitDisk(folder()))
            return false;
        Store store(folder());
        const auto domain = store.open(domainName);
        domain->setObject_forKey(1, "small");
        if (!domain->synchronize())
            return false;
        const std::string before = readFile(file());
        domain->setObject_forKey(std::string(100000, 'x'), "large");
        if (domain->synchronize() || readFile(file()) != before || !files(".tmp-").empty())
            return false;
        if (domain->objectForKey("small") != NS::Value(1) || !domain->objectForKey("large"))
            return false;
        domain->setObject_forKey("fits", "large");
        return domain->synchronize() && stored("large") == NS::Value("fits");
    });
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(linesOf(result.errors), 1) << result.errors;
}

TEST_F(StoreFailures, AFileSizeLimitFailsTheWriteAndNothingElse)
{
    store({{"k", 1}});
    const std::string before = readFile(file());
    const auto result = inChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{16, 16};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return false;
        Store store(folder());
        const auto domain = store.open(domainName);
        domain->setObject_forKey(2, "k");
        return !domain->synchronize() && domain->objectForKey("k") == NS::Value(2);
    });
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(readFile(file()), before);
}

} // namespace
