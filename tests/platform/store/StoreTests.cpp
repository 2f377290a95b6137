#include "Support.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using namespace DefaultsTests;
using namespace std::chrono_literals;
using LinuxDesktop::Store;

class StoreOfOneDomain : public SettingsTest, public ::testing::Test {
protected:
    Store m_store{folder()};
    std::shared_ptr<NS::UserDefaults> m_defaults = m_store.open(domainName);
};

TEST_F(StoreOfOneDomain, ADomainWithoutAFileIsEmptyAndReadingItMakesNothing)
{
    ASSERT_TRUE(m_defaults);
    EXPECT_FALSE(m_defaults->objectForKey("k"));
    EXPECT_TRUE(m_defaults->synchronize());
    EXPECT_FALSE(std::filesystem::exists(folder()));
}

TEST_F(StoreOfOneDomain, AWriteIsVisibleThroughEveryHandleAtOnce)
{
    const auto other = m_store.open(domainName);
    m_defaults->setObject_forKey(7, "k");
    EXPECT_EQ(m_defaults->objectForKey("k"), NS::Value(7));
    EXPECT_EQ(other->objectForKey("k"), NS::Value(7));
    EXPECT_EQ(m_store.open(domainName)->objectForKey("k"), NS::Value(7));
    other->removeObjectForKey("k");
    EXPECT_FALSE(m_defaults->objectForKey("k"));
}

TEST_F(StoreOfOneDomain, SynchronizeReturnsWhenOthersSeeTheWrite)
{
    m_defaults->setObject_forKey("v", "k");
    ASSERT_TRUE(m_defaults->synchronize());
    EXPECT_EQ(stored("k"), NS::Value("v"));
    m_defaults->removeObjectForKey("k");
    ASSERT_TRUE(m_defaults->synchronize());
    EXPECT_FALSE(stored("k"));
}

TEST_F(StoreOfOneDomain, SeveralSettingsAreNeverInTheFileByHalves)
{
    const auto domain = m_store.open(domainName);
    std::atomic<bool> ended = false;
    std::thread writing([&] {
        for (int number = 1; number <= 50; ++number) {
            domain->setObjects({{"a", number}, {"b", number}});
            domain->synchronize();
        }
        ended = true;
    });
    while (!ended) {
        Store other{folder()};
        const auto values = other.open(domainName)->contents();
        EXPECT_TRUE(!values || (values->contains("b") && values->at("a") == values->at("b")));
    }
    writing.join();
    EXPECT_EQ(stored("b"), NS::Value(50));
}

TEST_F(StoreOfOneDomain, AWriteWithoutSynchronizeReachesTheFileWithinASecond)
{
    m_defaults->setObject_forKey(1, "k");
    EXPECT_TRUE(holdsWithin(1s, [&] { return stored("k") == NS::Value(1); }));
    m_defaults->setObject_forKey(2, "k");
    EXPECT_TRUE(holdsWithin(1s, [&] { return stored("k") == NS::Value(2); }));
}

TEST_F(StoreOfOneDomain, KeptWritingDoesNotPutOffTheFirstWrite)
{
    m_defaults->setObject_forKey(1, "first");
    int i = 0;
    EXPECT_TRUE(holdsWithin(1s, [&] {
        m_defaults->setObject_forKey(++i, "other");
        return stored("first") == NS::Value(1);
    }));
}

TEST_F(StoreOfOneDomain, TheStoresEndWritesWhatIsUnwritten)
{
    {
        Store store(folder());
        store.open("one")->setObject_forKey(1, "k");
        store.open("two")->setObject_forKey(2, "k");
    }
    Store store(folder());
    EXPECT_EQ(store.open("one")->objectForKey("k"), NS::Value(1));
    EXPECT_EQ(store.open("two")->objectForKey("k"), NS::Value(2));
}

TEST_F(StoreOfOneDomain, AHandleThatOutlivesItsStoreWritesAtOnce)
{
    std::shared_ptr<NS::UserDefaults> defaults;
    {
        Store store(folder());
        defaults = store.open(domainName);
        defaults->setObject_forKey(0, "k");
    }
    EXPECT_EQ(stored("k"), NS::Value(0));
    for (int i = 1; i <= 3; ++i) {
        defaults->setObject_forKey(i, "k");
        EXPECT_EQ(stored("k"), NS::Value(i));
        EXPECT_EQ(defaults->objectForKey("k"), NS::Value(i));
    }
}

TEST_F(StoreOfOneDomain, AChangeByAnotherProcessIsSeenAtTheNextRead)
{
    store({{"k", 1}});
    EXPECT_EQ(m_defaults->objectForKey("k"), NS::Value(1));
    store({{"k", 2}});
    EXPECT_EQ(m_defaults->objectForKey("k"), NS::Value(2));
    std::filesystem::remove(file());
    EXPECT_FALSE(m_defaults->objectForKey("k"));
}

TEST_F(StoreOfOneDomain, AChangeInPlaceOfTheSameLengthIsSeenHoweverSoonItComes)
{
    makeFolder();
    for (int i = 0; i < 500; ++i) {
        const int value = 100 + i;
        writeFile(file(), propertyList("<dict><key>k</key><integer>" + std::to_string(value) + "</integer></dict>"));
        ASSERT_EQ(m_defaults->objectForKey("k"), NS::Value(value));
    }
}

TEST_F(StoreOfOneDomain, AReplacementThatGetsTheOldInodeNumberIsSeen)
{
    makeFolder();
    for (int i = 0; i < 200; ++i) {
        const int value = 100 + i;
        writeFile(file(".new"),
                  propertyList("<dict><key>k</key><integer>" + std::to_string(value) + "</integer></dict>"));
        std::filesystem::remove(file());
        std::filesystem::rename(file(".new"), file());
        ASSERT_EQ(m_defaults->objectForKey("k"), NS::Value(value));
    }
}

TEST_F(StoreOfOneDomain, WhatOthersWroteSurvivesAWrite)
{
    EXPECT_FALSE(m_defaults->objectForKey("mine"));
    makeFolder();
    writeFile(file(), propertyList("<dict><key>theirs</key><array><date>2024-01-01T00:00:05.25Z</date>"
                                   "<integer>18446744073709551615</integer><real>nan</real></array>"
                                   "<key>mine</key><false/></dict>"));
    m_defaults->setObject_forKey(true, "mine");
    ASSERT_TRUE(m_defaults->synchronize());
    const auto theirs = stored("theirs");
    ASSERT_TRUE(theirs && theirs->array() && theirs->array()->size() == 3);
    EXPECT_EQ(theirs->array()->at(0), NS::Value(NS::Date{1704067205.25}));
    EXPECT_EQ(theirs->array()->at(1), NS::Value(std::numeric_limits<std::uint64_t>::max()));
    EXPECT_EQ(stored("mine"), NS::Value(true));
    EXPECT_NE(readFile(file()).find("<date>2024-01-01T00:00:05.25Z</date>"), std::string::npos);
}

TEST_F(StoreOfOneDomain, AnUnwrittenChangeLiesOverWhatOthersWrite)
{
    m_defaults->setObject_forKey("mine", "k");
    store({{"k", "theirs"}, {"other", 1}});
    EXPECT_EQ(m_defaults->objectForKey("k"), NS::Value("mine"));
    EXPECT_EQ(m_defaults->objectForKey("other"), NS::Value(1));
}

TEST_F(StoreOfOneDomain, ADateIsStoredInWholeSeconds)
{
    m_defaults->setObject_forKey(NS::Date{1704067205.75}, "k");
    EXPECT_EQ(m_defaults->objectForKey("k"), NS::Value(NS::Date{1704067205.0}));
    ASSERT_TRUE(m_defaults->synchronize());
    EXPECT_EQ(stored("k"), NS::Value(NS::Date{1704067205.0}));
    EXPECT_NE(readFile(file()).find("<date>2024-01-01T00:00:05Z</date>"), std::string::npos);
}

TEST_F(StoreOfOneDomain, AFractionThatAFileHoldsSurvivesAChangeBesideIt)
{
    makeFolder();
    writeFile(file(), propertyList("<dict><key>menuArrayDic</key><array><dict><key>title</key><string>New</string>"
                                   "<key>state</key><true/><key>since</key><date>2024-01-01T00:00:05.25Z</date>"
                                   "</dict></array></dict>"));
    auto items = m_defaults->arrayForKey("menuArrayDic");
    ASSERT_TRUE(items && items->size() == 1);
    auto item = *items->front().dictionary();
    item.insert_or_assign("state", false);
    m_defaults->setObject_forKey(NS::Value::Array{NS::Value(item)}, "menuArrayDic");
    ASSERT_TRUE(m_defaults->synchronize());
    EXPECT_EQ(stored("menuArrayDic"), NS::Value(NS::Value::Array{NS::Value(item)}));
    EXPECT_NE(readFile(file()).find("<date>2024-01-01T00:00:05.25Z</date>"), std::string::npos);
}

TEST_F(StoreOfOneDomain, ReplacingTheContentsLeavesNothingElse)
{
    store({{"a", 1}, {"b", 2}});
    const auto domain = m_store.open(domainName);
    domain->setObject_forKey(3, "c");
    domain->replaceContents({{"b", 4}});
    EXPECT_EQ(domain->contents(), (NS::Value::Dictionary{{"b", 4}}));
    domain->setObject_forKey(5, "d");
    ASSERT_TRUE(domain->synchronize());
    EXPECT_EQ(domain->contents(), (NS::Value::Dictionary{{"b", 4}, {"d", 5}}));
    domain->replaceContents({});
    EXPECT_FALSE(domain->objectForKey("b"));
    ASSERT_TRUE(domain->synchronize());
    EXPECT_EQ(domain->contents(), NS::Value::Dictionary{});
}

TEST_F(StoreOfOneDomain, OnlyNamesOfDomainsAreOpened)
{
    for (const std::string_view name : {"", ".", "..", "a/b", "/", "../escape"})
        EXPECT_FALSE(m_store.open(name)) << name;
    EXPECT_FALSE(m_store.open(std::string_view("a\0b", 3)));
    makeFolder();
    EXPECT_FALSE(m_store.open(std::string(300, 'a')));
    EXPECT_TRUE(m_store.open("..."));
}

TEST_F(StoreOfOneDomain, WithoutAFolderNothingIsOpened)
{
    Store store(std::nullopt);
    EXPECT_FALSE(store.open(domainName));
}

TEST_F(StoreOfOneDomain, AnUnstorableValueIsFatal)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(m_defaults->setObject_forKey("\x01", "k"), "fatal error: a value that cannot be stored");
    EXPECT_DEATH(m_defaults->setObject_forKey(1, "\xff"), "fatal error: a key that cannot be stored");
}

TEST_F(StoreOfOneDomain, ManyThreadsUseOneStore)
{
    constexpr int threads = 6;
    constexpr int writes = 60;
    std::atomic<int> wrong{0};
    std::vector<std::thread> running;
    for (int i = 0; i < threads; ++i) {
        running.emplace_back([&, i] {
            const std::string key = "key" + std::to_string(i);
            for (int n = 1; n <= writes; ++n) {
                const auto defaults = m_store.open(domainName);
                defaults->setObject_forKey(n, key);
                if (n % 4 == 0 && !defaults->synchronize())
                    ++wrong;
                if (defaults->objectForKey(key) != NS::Value(n))
                    ++wrong;
                static_cast<void>(defaults->objectForKey("key0"));
                defaults->removeObjectForKey("scratch" + std::to_string(i));
            }
        });
    }
    for (std::thread& thread : running)
        thread.join();
    EXPECT_EQ(wrong, 0);
    ASSERT_TRUE(m_defaults->synchronize());
    for (int i = 0; i < threads; ++i)
        EXPECT_EQ(stored("key" + std::to_string(i)), NS::Value(writes));
}

TEST(SettingsFolder, TheVariableCountsWhereItIsAnAbsolutePath)
{
    const auto folderWith = [](const char* configuration) {
        return inChild([&] {
                   ::setenv("HOME", "/home/someone", 1);
                   ::unsetenv("XDG_CONFIG_HOME");
                   if (configuration)
                       ::setenv("XDG_CONFIG_HOME", configuration, 1);
                   std::fputs(LinuxDesktop::settingsFolder().value_or("none").c_str(), stderr);
                   std::fflush(stderr);
                   return true;
               })
            .errors;
    };
    EXPECT_EQ(folderWith("/somewhere"), "/somewhere/orvik-menu");
    EXPECT_EQ(folderWith(nullptr), "/home/someone/.config/orvik-menu");
    EXPECT_EQ(folderWith(""), "/home/someone/.config/orvik-menu");
    EXPECT_EQ(folderWith("relative"), "/home/someone/.config/orvik-menu");
}

TEST(SettingsFolder, WithoutAHomeThereIsNone)
{
    const auto result = inChild([] {
        ::unsetenv("HOME");
        ::unsetenv("XDG_CONFIG_HOME");
        // A user of whom the system knows nothing.
        if (::geteuid() == 0 && ::setresuid(54321, 54321, 54321) != 0)
            return false;
        const auto folder = LinuxDesktop::settingsFolder();
        return ::geteuid() == 54321 ? !folder : folder.has_value();
    });
    EXPECT_EQ(result.status, 0);
}

} // namespace
