#include "Support.h"

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <sys/file.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace DefaultsTests;
using namespace std::chrono_literals;
using LinuxDesktop::FileDescriptor;
using LinuxDesktop::Store;

class StoreRemovals : public SettingsTest, public ::testing::Test {
protected:
    Store m_store{folder()};
    std::shared_ptr<LinuxDesktop::Domain> m_domain = m_store.open(domainName);
};

TEST_F(StoreRemovals, OfAnAbsentKeyDeleteNothingThatIsWrittenLater)
{
    EXPECT_FALSE(m_domain->objectForKey("k"));
    m_domain->removeObjectForKey("k");
    store({{"k", "later"}});
    EXPECT_EQ(m_domain->objectForKey("k"), NS::Value("later"));
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_EQ(stored("k"), NS::Value("later"));
}

TEST_F(StoreRemovals, RemoveOnlyTheValueThatWasSeen)
{
    store({{"k", "old"}});
    EXPECT_EQ(m_domain->objectForKey("k"), NS::Value("old"));
    m_domain->removeObjectForKey("k");
    EXPECT_FALSE(m_domain->objectForKey("k"));
    store({{"k", "new"}});
    EXPECT_EQ(m_domain->objectForKey("k"), NS::Value("new"));
    EXPECT_EQ(m_domain->contents(), (NS::Value::Dictionary{{"k", "new"}}));
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_EQ(stored("k"), NS::Value("new"));
}

TEST_F(StoreRemovals, ConcernWhatWasSeenAndNotWhatIsThereByThen)
{
    store({{"k", "old"}});
    EXPECT_EQ(m_domain->objectForKey("k"), NS::Value("old"));
    store({{"k", "new"}});
    m_domain->removeObjectForKey("k");
    EXPECT_EQ(m_domain->objectForKey("k"), NS::Value("new"));
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_EQ(stored("k"), NS::Value("new"));
}

TEST_F(StoreRemovals, AreNotWidenedByAskingAgainWithoutLooking)
{
    store({{"k", "old"}});
    EXPECT_EQ(m_domain->objectForKey("k"), NS::Value("old"));
    // So that the first removal waits still.
    FileDescriptor lock(::open(file(".lock").c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(::flock(lock.get(), LOCK_EX), 0);
    m_domain->removeObjectForKey("k");
    writeFile(file(), propertyList("<dict><key>k</key><string>new</string></dict>"));
    m_domain->removeObjectForKey("k");
    lock.close();
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_EQ(stored("k"), NS::Value("new"));
}

TEST_F(StoreRemovals, ThatWaitTogetherAreDroppedTogether)
{
    store({{"path", "/p"}, {"date", NS::Date{1.0}}});
    EXPECT_TRUE(m_domain->objectForKey("path"));
    EXPECT_TRUE(m_domain->objectForKey("date"));
    m_domain->removeObjectForKey("path");
    m_domain->removeObjectForKey("date");
    store({{"path", "/p"}, {"date", NS::Date{2.0}}});
    EXPECT_EQ(m_domain->objectForKey("path"), NS::Value("/p"));
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_EQ(stored("path"), NS::Value("/p"));
    EXPECT_EQ(stored("date"), NS::Value(NS::Date{2.0}));

    // Now they were seen.
    EXPECT_EQ(m_domain->objectForKey("date"), NS::Value(NS::Date{2.0}));
    m_domain->removeObjectForKey("path");
    m_domain->removeObjectForKey("date");
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_FALSE(stored("path"));
    EXPECT_FALSE(stored("date"));
}

TEST_F(StoreRemovals, OfAKeyThatWasNeverLookedAtAreDroppedWithOneThatWasSeenToBeAbsent)
{
    EXPECT_FALSE(m_domain->objectForKey("path"));
    store({{"path", "/p"}, {"date", NS::Date{2.0}}});
    m_domain->removeObjectForKey("path");
    m_domain->removeObjectForKey("date");
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_EQ(stored("path"), NS::Value("/p"));
    EXPECT_EQ(stored("date"), NS::Value(NS::Date{2.0}));
}

TEST_F(StoreRemovals, OfAKeyThatWasNeverLookedAtRemoveWhatIsThere)
{
    store({{"date", NS::Date{1.0}}, {"other", 1}});
    EXPECT_FALSE(m_domain->objectForKey("path"));
    m_domain->removeObjectForKey("path");
    m_domain->removeObjectForKey("date");
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_FALSE(stored("date"));
    EXPECT_EQ(stored("other"), NS::Value(1));

    // The removal has been carried out, so it is looked at anew.
    store({{"date", NS::Date{3.0}}});
    m_domain->removeObjectForKey("date");
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_FALSE(stored("date"));
}

TEST_F(StoreRemovals, AreCarriedOutWhereAnotherProgramHasRemovedOneOfTheValues)
{
    store({{"path", "/p"}, {"date", NS::Date{1.0}}});
    EXPECT_TRUE(m_domain->objectForKey("path"));
    EXPECT_TRUE(m_domain->objectForKey("date"));
    m_domain->removeObjectForKey("path");
    m_domain->removeObjectForKey("date");
    store({{"date", NS::Date{1.0}}});
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_FALSE(stored("date"));
}

TEST_F(StoreRemovals, OfAValueThatWasSetHereRemoveWhatItReplacedToo)
{
    store({{"k", "old"}});
    m_domain->setObject_forKey("mine", "k");
    m_domain->removeObjectForKey("k");
    EXPECT_FALSE(m_domain->objectForKey("k"));
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_FALSE(stored("k"));

    m_domain->setObject_forKey("mine", "k");
    EXPECT_TRUE(m_domain->synchronize());
    m_domain->removeObjectForKey("k");
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_FALSE(stored("k"));

    m_domain->setObject_forKey("mine", "k");
    m_domain->removeObjectForKey("k");
    store({{"k", "theirs"}});
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_EQ(stored("k"), NS::Value("theirs"));
}

TEST_F(StoreRemovals, AfterAReplacementOfEverythingLeaveNothing)
{
    store({{"a", 1}, {"b", 2}});
    m_domain->replaceContents({{"a", 3}, {"c", 4}});
    m_domain->removeObjectForKey("a");
    m_domain->removeObjectForKey("b");
    EXPECT_EQ(m_domain->contents(), (NS::Value::Dictionary{{"c", 4}}));
    EXPECT_TRUE(m_domain->synchronize());
    EXPECT_EQ(m_domain->contents(), (NS::Value::Dictionary{{"c", 4}}));
}

/// A request to send an item by mail, as the two programs exchange it. Two in a row are for the same item.
struct Request {
    explicit Request(int number) : path("/item " + std::to_string(number / 2)), date(NS::Date{1700000000.0 + number})
    {}

    NS::Value path;
    NS::Value date;
};

/// Looks for a request and takes it away, as the panel does. Gives its date.
std::optional<NS::Value> takeRequest(NS::UserDefaults& suite)
{
    auto path = suite.objectForKey("path");
    std::optional<NS::Value> date;
    for (std::optional<NS::Value> before; path && path != before;) {
        before = path;
        date = suite.objectForKey("date");
        path = suite.objectForKey("path");
    }
    suite.removeObjectForKey("path");
    suite.removeObjectForKey("date");
    return path ? date : std::nullopt;
}

class NextRequest : public SettingsTest, public ::testing::TestWithParam<bool> {
protected:
    /// How many requests to make: ORVIK_REQUESTS, or 100.
    static int requests()
    {
        const char* wanted = std::getenv("ORVIK_REQUESTS");
        return wanted ? std::atoi(wanted) : 100;
    }
};

INSTANTIATE_TEST_SUITE_P(Lock, NextRequest, ::testing::Bool(),
                         [](const auto& held) { return held.param ? "HeldForAWhile" : "Free"; });

/// For each byte it reads: waits up to 50 ms, then writes the next request at one go, and answers.
[[noreturn]] void writeRequests(const std::string& folder, std::string_view domainName, int asked, int answers)
{
    Store store(folder);
    const auto domain = store.open(domainName);
    for (int number = 0;; ++number) {
        char byte = 0;
        if (::read(asked, &byte, 1) != 1)
            ::_exit(0);
        std::this_thread::sleep_for(std::chrono::milliseconds(number * 7 % 51));
        const Request request(number);
        domain->replaceContents({{"path", request.path}, {"date", request.date}});
        if (!domain->synchronize() || ::write(answers, &byte, 1) != 1)
            ::_exit(1);
    }
}

TEST_P(NextRequest, IsNeverRemovedUnseenWithTheOneBefore)
{
    std::array<int, 2> asked{};
    std::array<int, 2> answers{};
    ASSERT_EQ(::pipe2(asked.data(), O_CLOEXEC), 0);
    ASSERT_EQ(::pipe2(answers.data(), O_CLOEXEC), 0);
    makeFolder();
    const pid_t writer = ::fork();
    if (writer == 0) {
        ::close(asked[1]);
        writeRequests(folder(), domainName, asked[0], answers[1]);
    }
    const FileDescriptor ask(asked[1]);
    const FileDescriptor answer(answers[0]);
    ::close(asked[0]);
    ::close(answers[1]);

    Store store(folder());
    const auto suite = store.open(domainName);
    int lost = 0;
    for (int number = 0; number < requests(); ++number) {
        FileDescriptor lock;
        if (GetParam()) {
            lock = FileDescriptor(::open(file(".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
            ASSERT_EQ(::flock(lock.get(), LOCK_EX), 0);
        }
        char byte = 0;
        ASSERT_EQ(::write(ask.get(), &byte, 1), 1);
        auto taken = takeRequest(*suite);
        if (lock) {
            std::this_thread::sleep_for(std::chrono::milliseconds(number * 11 % 53));
            lock.close();
        }
        ASSERT_EQ(::read(answer.get(), &byte, 1), 1);
        // What waits still is carried out sooner or later.
        if (number % 2 == 0)
            std::this_thread::sleep_for(40ms);
        else
            ASSERT_TRUE(suite->synchronize());
        const Request request(number);
        if (taken != request.date && (stored("path") != request.path || stored("date") != request.date))
            ++lost;
    }
    EXPECT_EQ(lost, 0) << "of " << requests();
    ::kill(writer, SIGKILL);
    ::waitpid(writer, nullptr, 0);
}

} // namespace
