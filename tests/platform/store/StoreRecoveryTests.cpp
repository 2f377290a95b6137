#include "Support.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace DefaultsTests;
using namespace std::chrono_literals;
using LinuxDesktop::Store;
namespace fs = std::filesystem;

class StoreRecovery : public SettingsTest, public ::testing::Test {
protected:
    /// Damages the file as somebody did who is gone by now.
    void damage(std::string_view bytes) const
    {
        writeFile(file(), bytes);
        age();
    }
    void age() const { fs::last_write_time(file(), fs::file_time_type::clock::now() - 10s); }
};

TEST_F(StoreRecovery, ADamagedFileIsKeptAndTheLastGoodCopyTakesItsPlace)
{
    store({{"k", "good"}});
    damage("<plist><dict><key>k</k");
    testing::internal::CaptureStderr();
    EXPECT_EQ(stored("k"), NS::Value("good"));
    const std::string line = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::ranges::count(line, '\n'), 1) << line;
    const auto kept = files(".corrupt-");
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_NE(line.find(kept[0]), std::string::npos) << line;
    EXPECT_NE(line.find("last good copy"), std::string::npos) << line;
    EXPECT_EQ(readFile(folder() + "/" + kept[0]), "<plist><dict><key>k</k");
    EXPECT_EQ(readFile(file()), readFile(file(".bak")));
    testing::internal::CaptureStderr();
    EXPECT_EQ(stored("k"), NS::Value("good"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(StoreRecovery, EveryKindOfDamageIsRecoveredFrom)
{
    for (const std::string& bytes :
         {std::string(), std::string(4096, '\0'), std::string("bplist00"), propertyList("<array/>"),
          propertyList("<string>root</string>"), std::string("\xff\xfe")}) {
        store({{"k", "good"}});
        damage(bytes);
        testing::internal::CaptureStderr();
        EXPECT_EQ(stored("k"), NS::Value("good"));
        EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    }
}

TEST_F(StoreRecovery, WithoutAGoodCopyTheDomainStartsEmpty)
{
    makeFolder();
    damage("garbage");
    testing::internal::CaptureStderr();
    Store store(folder());
    const auto domain = store.open(domainName);
    ASSERT_TRUE(domain);
    EXPECT_FALSE(domain->objectForKey("k"));
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_FALSE(fs::exists(file()));
    EXPECT_EQ(files(".corrupt-").size(), 1U);
    domain->setObject_forKey(1, "k");
    EXPECT_TRUE(domain->synchronize());
    EXPECT_EQ(stored("k"), NS::Value(1));
}

TEST_F(StoreRecovery, ACopyThatIsDamagedTooIsNotBroughtBack)
{
    store({{"k", 1}});
    writeFile(file(".bak"), "garbage too");
    damage("garbage");
    testing::internal::CaptureStderr();
    EXPECT_FALSE(stored("k"));
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(files(".corrupt-").size(), 1U);
    EXPECT_EQ(readFile(file(".bak")), "garbage too");
}

TEST_F(StoreRecovery, AMissingFileIsAnEmptyDomainEvenWithAGoodCopy)
{
    store({{"k", 1}});
    fs::remove(file());
    EXPECT_FALSE(stored("k"));
    EXPECT_FALSE(fs::exists(file()));
}

TEST_F(StoreRecovery, ARunningProgramRecoversAtItsNextReadAndKeepsItsUnwrittenChanges)
{
    Store store(folder());
    const auto domain = store.open(domainName);
    domain->setObject_forKey("good", "k");
    ASSERT_TRUE(domain->synchronize());
    domain->setObject_forKey("new", "other");
    damage("garbage");
    testing::internal::CaptureStderr();
    EXPECT_EQ(domain->objectForKey("k"), NS::Value("good"));
    EXPECT_TRUE(domain->synchronize());
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(stored("k"), NS::Value("good"));
    EXPECT_EQ(stored("other"), NS::Value("new"));
}

TEST_F(StoreRecovery, DamageRightAfterAWriteLosesNothingToTheProgramThatWrote)
{
    store({{"k", "old"}});
    Store store(folder());
    const auto domain = store.open(domainName);
    // Each time the copy may have been made or not.
    for (int i = 0; i < 30; ++i) {
        domain->setObject_forKey(i, "k");
        ASSERT_TRUE(domain->synchronize());
        std::this_thread::sleep_for(std::chrono::milliseconds(i));
        damage("garbage");
        testing::internal::CaptureStderr();
        EXPECT_EQ(domain->objectForKey("k"), NS::Value(i));
        EXPECT_EQ(stored("k"), NS::Value(i));
        testing::internal::GetCapturedStderr();
    }
}

TEST_F(StoreRecovery, DamageRightAfterAWriteLosesNothingWhileTheLockIsHeld)
{
    store({{"k", "old"}});
    Store store(folder());
    const auto domain = store.open(domainName);
    domain->setObject_forKey("new", "k");
    ASSERT_TRUE(domain->synchronize());
    const LinuxDesktop::FileDescriptor lock(::open(file(".lock").c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(::flock(lock.get(), LOCK_EX), 0);
    damage("garbage");
    testing::internal::CaptureStderr();
    EXPECT_EQ(domain->objectForKey("k"), NS::Value("new"));
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(readFile(file()), "garbage");
}

TEST_F(StoreRecovery, WhatAnotherProgramWroteLaterIsNotUndoneByTheProgramThatWroteBefore)
{
    Store store(folder());
    const auto domain = store.open(domainName);
    for (int i = 0; i < 20; ++i) {
        domain->setObject_forKey("mine " + std::to_string(i), "k");
        ASSERT_TRUE(domain->synchronize());
        const std::string theirs = "theirs " + std::to_string(i);
        this->store({{"k", theirs}});
        damage("garbage");
        testing::internal::CaptureStderr();
        EXPECT_EQ(domain->objectForKey("k"), NS::Value(theirs));
        testing::internal::GetCapturedStderr();
    }
}

TEST_F(StoreRecovery, AWriterSetsADamagedFileAsideToo)
{
    store({{"k", "good"}});
    Store store(folder());
    const auto domain = store.open(domainName);
    domain->setObject_forKey(1, "new");
    damage("garbage");
    testing::internal::CaptureStderr();
    EXPECT_TRUE(domain->synchronize());
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(stored("k"), NS::Value("good"));
    EXPECT_EQ(stored("new"), NS::Value(1));
    EXPECT_EQ(files(".corrupt-").size(), 1U);
}

TEST_F(StoreRecovery, AtMostFiveDamagedFilesAreKeptTheNewestOnes)
{
    store({{"k", "good"}});
    writeFile(file(".corrupt-notes"), "somebody else's");
    testing::internal::CaptureStderr();
    for (int i = 0; i < 8; ++i) {
        damage("garbage " + std::to_string(i));
        EXPECT_EQ(stored("k"), NS::Value("good"));
    }
    testing::internal::GetCapturedStderr();
    std::vector<std::string> contents;
    for (const std::string& name : files(".corrupt-2"))
        contents.push_back(readFile(folder() + "/" + name));
    EXPECT_EQ(contents, (std::vector<std::string>{"garbage 3", "garbage 4", "garbage 5", "garbage 6", "garbage 7"}));
    EXPECT_TRUE(fs::exists(file(".corrupt-notes")));
}

TEST_F(StoreRecovery, AClockThatWasSetBackDropsNoneOfTheNewerOnes)
{
    store({{"k", "good"}});
    for (int i = 0; i < 5; ++i)
        writeFile(file(".corrupt-29991231T235959.99999" + std::to_string(i + 5) + "Z"), "older " + std::to_string(i));
    testing::internal::CaptureStderr();
    for (int i = 0; i < 3; ++i) {
        damage("garbage " + std::to_string(i));
        EXPECT_EQ(stored("k"), NS::Value("good"));
    }
    testing::internal::GetCapturedStderr();
    std::vector<std::string> contents;
    for (const std::string& name : files(".corrupt-"))
        contents.push_back(readFile(folder() + "/" + name));
    EXPECT_EQ(contents, (std::vector<std::string>{"older 3", "older 4", "garbage 0", "garbage 1", "garbage 2"}));
}

/// Does not let the last good copy be read, as long as it is told to.
class NoCopyToRead : public LinuxDesktop::FileOperations {
public:
    explicit NoCopyToRead(int error) : m_error(error) {}
    std::atomic<bool> failing = true;

    LinuxDesktop::FileDescriptor open(const std::string& path, int flags, mode_t mode) override
    {
        if (failing && path.ends_with(".bak")) {
            errno = m_error;
            return {};
        }
        return FileOperations::open(path, flags, mode);
    }

private:
    int m_error;
};

TEST_F(StoreRecovery, ACopyThatCannotBeReadIsNotTakenForNone)
{
    store({{"k", "good"}});
    damage("garbage");
    for (const int error : {EMFILE, EIO, EACCES}) {
        const auto operations = std::make_shared<NoCopyToRead>(error);
        Store store(folder(), operations);
        testing::internal::CaptureStderr();
        EXPECT_FALSE(store.open(domainName));
        EXPECT_FALSE(store.open(domainName));
        EXPECT_EQ(std::ranges::count(testing::internal::GetCapturedStderr(), '\n'), 1);
        EXPECT_EQ(readFile(file()), "garbage");
        EXPECT_TRUE(files(".corrupt-").empty());
    }
    const auto operations = std::make_shared<NoCopyToRead>(EMFILE);
    Store store(folder(), operations);
    testing::internal::CaptureStderr();
    EXPECT_FALSE(store.open(domainName));
    operations->failing = false;
    const auto domain = store.open(domainName);
    testing::internal::GetCapturedStderr();
    ASSERT_TRUE(domain);
    EXPECT_EQ(domain->objectForKey("k"), NS::Value("good"));
}

TEST_F(StoreRecovery, ARunningProgramKeepsWhatItHasReadAndWrittenWhereNoCopyCanBeRead)
{
    store({{"k", "good"}});
    const auto operations = std::make_shared<NoCopyToRead>(EMFILE);
    Store store(folder(), operations);
    const auto domain = store.open(domainName);
    EXPECT_EQ(domain->objectForKey("k"), NS::Value("good"));
    damage("garbage");
    testing::internal::CaptureStderr();
    EXPECT_EQ(domain->objectForKey("k"), NS::Value("good"));
    domain->setObject_forKey(1, "new");
    EXPECT_FALSE(domain->synchronize());
    EXPECT_EQ(readFile(file()), "garbage");
    operations->failing = false;
    EXPECT_TRUE(domain->synchronize());
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(stored("k"), NS::Value("good"));
    EXPECT_EQ(stored("new"), NS::Value(1));
}

TEST_F(StoreRecovery, WhoeverWritesInPlaceAtThisMomentMayFinish)
{
    store({{"k", "old"}});
    const std::string whole = propertyList("<dict><key>k</key><string>new</string></dict>");
    Store store(folder());
    const auto domain = store.open(domainName);
    testing::internal::CaptureStderr();
    writeFile(file(), whole.substr(0, 50));
    std::thread finishing([&] {
        std::this_thread::sleep_for(40ms);
        writeFile(file(), whole);
    });
    EXPECT_EQ(domain->objectForKey("k"), NS::Value("new"));
    finishing.join();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_TRUE(files(".corrupt-").empty());
}

TEST_F(StoreRecovery, AHugeFileIsSetAsideUnread)
{
    store({{"k", "good"}});
    fs::resize_file(file(), 100U << 20U);
    age();
    testing::internal::CaptureStderr();
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(stored("k"), NS::Value("good"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 500ms);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    ASSERT_EQ(files(".corrupt-").size(), 1U);
    EXPECT_EQ(fs::file_size(folder() + "/" + files(".corrupt-")[0]), 100U << 20U);
}

TEST_F(StoreRecovery, ALinkToADamagedFileStays)
{
    store({{"k", "good"}});
    fs::rename(file(), root() + "/target");
    fs::create_symlink(root() + "/target", file());
    damage("garbage");
    testing::internal::CaptureStderr();
    EXPECT_EQ(stored("k"), NS::Value("good"));
    testing::internal::GetCapturedStderr();
    EXPECT_TRUE(fs::is_symlink(file()));
    ASSERT_EQ(files(".corrupt-").size(), 1U);
    const std::string kept = folder() + "/" + files(".corrupt-")[0];
    EXPECT_FALSE(fs::is_symlink(kept));
    EXPECT_EQ(readFile(kept), "garbage");
    EXPECT_EQ(readFile(root() + "/target"), readFile(file(".bak")));
}

/// A file system without hard links.
class NoLinks : public LinuxDesktop::FileOperations {
public:
    int link(const std::string&, const std::string&) override
    {
        errno = EXDEV;
        return -1;
    }
};

TEST_F(StoreRecovery, WhereNoSecondNameCanBeHadTheDamagedFileIsCopied)
{
    store({{"k", "good"}});
    const std::string garbage(200000, 'g');
    damage(garbage);
    testing::internal::CaptureStderr();
    Store store(folder(), std::make_shared<NoLinks>());
    EXPECT_EQ(store.open(domainName)->objectForKey("k"), NS::Value("good"));
    testing::internal::GetCapturedStderr();
    ASSERT_EQ(files(".corrupt-").size(), 1U);
    EXPECT_EQ(readFile(folder() + "/" + files(".corrupt-")[0]), garbage);
}

TEST_F(StoreRecovery, InAReadOnlyFolderTheCopyServesAndTheFileStays)
{
    store({{"k", "good"}});
    damage("garbage");
    const auto result = inChild([&] {
        obeyPermissions(root());
        fs::permissions(folder(), fs::perms::owner_read | fs::perms::owner_exec);
        fs::permissions(file(".lock"), fs::perms::owner_read);
        Store store(folder());
        const auto domain = store.open(domainName);
        if (!domain)
            return false;
        for (int i = 0; i < 3; ++i)
            if (domain->objectForKey("k") != NS::Value("good"))
                return false;
        return true;
    });
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(std::ranges::count(result.errors, '\n'), 1) << result.errors;
    EXPECT_EQ(readFile(file()), "garbage");
    EXPECT_TRUE(files(".corrupt-").empty());
}

TEST_F(StoreRecovery, ADamagedFileThatCannotBeSetAsideIsNotOverwritten)
{
    store({{"k", "good"}});
    damage("garbage");
    const auto result = inChild([&] {
        obeyPermissions(root());
        fs::permissions(folder(), fs::perms::owner_read | fs::perms::owner_exec);
        Store store(folder());
        const auto domain = store.open(domainName);
        domain->setObject_forKey("new", "k");
        const bool refused = !domain->synchronize();
        const bool whole = readFile(file()) == "garbage";
        fs::permissions(folder(), fs::perms::owner_all);
        return refused && whole && domain->synchronize();
    });
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(stored("k"), NS::Value("new"));
    EXPECT_EQ(files(".corrupt-").size(), 1U);
}

TEST_F(StoreRecovery, WhileTheLockIsHeldTheCopyServes)
{
    store({{"k", "good"}});
    damage("garbage");
    const LinuxDesktop::FileDescriptor lock(::open(file(".lock").c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(::flock(lock.get(), LOCK_EX), 0);
    Store store(folder());
    testing::internal::CaptureStderr();
    const auto start = std::chrono::steady_clock::now();
    const auto domain = store.open(domainName);
    ASSERT_TRUE(domain);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 2500ms);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(domain->objectForKey("k"), NS::Value("good"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 2500ms);
    const std::string lines = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::ranges::count(lines, '\n'), 1) << lines;
    EXPECT_EQ(readFile(file()), "garbage");
}

TEST_F(StoreRecovery, StoresThatFindTheDamageTogetherKeepOneFile)
{
    store({{"k", "good"}});
    damage("garbage");
    testing::internal::CaptureStderr();
    std::vector<std::thread> readers;
    for (int i = 0; i < 4; ++i)
        readers.emplace_back([&] { EXPECT_EQ(stored("k"), NS::Value("good")); });
    for (std::thread& reader : readers)
        reader.join();
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(files(".corrupt-").size(), 1U);
}

} // namespace
