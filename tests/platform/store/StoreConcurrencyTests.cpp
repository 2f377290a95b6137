#include "Support.h"
#include "platform/linux/store/PropertyList.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using namespace DefaultsTests;
using namespace std::chrono_literals;
using LinuxDesktop::FileDescriptor;
using LinuxDesktop::Store;

class StoreConcurrency : public SettingsTest, public ::testing::Test {
protected:
    // Without a disk to wait for, the processes meet as often as they can.
    StoreConcurrency() : SettingsTest(Place::Memory) {}

    /// A process that writes the numbers up to `last` under `key`, each synchronised. Its status is 0 when every
    /// write went well.
    [[nodiscard]] pid_t startWriter(const std::string& key, int last) const
    {
        const pid_t pid = ::fork();
        if (pid == 0) {
            bool well = true;
            {
                Store store(folder());
                const auto domain = store.open(domainName);
                for (int i = 1; i <= last && well; ++i) {
                    domain->setObject_forKey(i, key);
                    well = domain->synchronize() && domain->objectForKey(key) == NS::Value(i);
                }
            }
            ::_exit(well ? 0 : 1);
        }
        return pid;
    }
};

TEST_F(StoreConcurrency, TwoWritersOfDifferentKeysLoseNothingAndNoReaderSeesAPart)
{
    constexpr int last = 10000;
    store({{"untouched", "value"}});
    std::vector<pid_t> writers{startWriter("one", last), startWriter("two", last)};

    Store store(folder());
    const auto domain = store.open(domainName);
    const auto numberOf = [](const std::optional<NS::Value>& value) { return value ? *value->integer() : 0; };
    std::int64_t one = 0;
    std::int64_t two = 0;
    std::size_t running = writers.size();
    std::vector<int> statuses;
    while (running > 0) {
        const std::string bytes = readFile(file());
        const auto whole = LinuxDesktop::PropertyList::parse(bytes);
        ASSERT_TRUE(whole) << whole.error() << "\n" << bytes;
        ASSERT_TRUE(whole->dictionary()->contains("untouched"));

        const auto nextOne = numberOf(domain->objectForKey("one"));
        const auto nextTwo = numberOf(domain->objectForKey("two"));
        ASSERT_GE(nextOne, one);
        ASSERT_GE(nextTwo, two);
        one = nextOne;
        two = nextTwo;

        int status = 0;
        if (::waitpid(-1, &status, WNOHANG) > 0) {
            statuses.push_back(status);
            --running;
        }
    }
    EXPECT_EQ(statuses, (std::vector<int>{0, 0}));
    EXPECT_EQ(domain->objectForKey("one"), NS::Value(last));
    EXPECT_EQ(domain->objectForKey("two"), NS::Value(last));
    EXPECT_EQ(domain->objectForKey("untouched"), NS::Value("value"));
    EXPECT_TRUE(files(".tmp-").empty());
    EXPECT_TRUE(files(".corrupt-").empty());
}

TEST_F(StoreConcurrency, NobodyStarvesWhileOthersWriteWithoutABreak)
{
    makeFolder();
    std::vector<pid_t> writers;
    for (const char* key : {"a", "b", "c"})
        writers.push_back(startWriter(key, 1000000));
    Store store(folder());
    const auto domain = store.open(domainName);
    std::chrono::steady_clock::duration longest{};
    for (int i = 0; i < 100; ++i) {
        domain->setObject_forKey(i, "patient");
        const auto start = std::chrono::steady_clock::now();
        EXPECT_TRUE(domain->synchronize());
        longest = std::max(longest, std::chrono::steady_clock::now() - start);
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    for (const pid_t writer : writers) {
        ::kill(writer, SIGKILL);
        ::waitpid(writer, nullptr, 0);
    }
    EXPECT_LT(longest, std::chrono::seconds(2));
}

TEST_F(StoreConcurrency, ALockThatIsLetGoIsTakenAtOnce)
{
    store({{"k", 0}});
    Store store(folder());
    const auto domain = store.open(domainName);
    std::vector<std::chrono::steady_clock::duration> waited;
    for (int i = 1; i <= 15; ++i) {
        FileDescriptor lock(::open(file(".lock").c_str(), O_RDWR | O_CLOEXEC));
        ASSERT_EQ(::flock(lock.get(), LOCK_EX), 0);
        std::chrono::steady_clock::time_point freed;
        std::thread holding([&] {
            std::this_thread::sleep_for(30ms);
            freed = std::chrono::steady_clock::now();
            lock.close();
        });
        domain->setObject_forKey(i, "k");
        EXPECT_TRUE(domain->synchronize());
        const auto done = std::chrono::steady_clock::now();
        holding.join();
        waited.push_back(done - freed);
    }
    // Not at the next look of a slow pace.
    std::ranges::sort(waited);
    EXPECT_LT(waited[waited.size() / 2], 50ms);
}

TEST_F(StoreConcurrency, AProgramThatReplacesTheFileIsPickedUpByARunningWriter)
{
    store({{"mine", 1}});
    Store store(folder());
    const auto domain = store.open(domainName);
    const auto result = runPython("import plistlib, os, sys\n"
                                  "path = '" +
                                  file() +
                                  "'\n"
                                  "values = plistlib.load(open(path, 'rb'))\n"
                                  "values['theirs'] = [1.5, b'x']\n"
                                  "plistlib.dump(values, open(path + '.python', 'wb'))\n"
                                  "os.rename(path + '.python', path)\n");
    ASSERT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(domain->objectForKey("theirs"), NS::Value(NS::Value::Array{NS::Value(1.5), NS::Value(NS::Data{'x'})}));
    domain->setObject_forKey(2, "mine");
    ASSERT_TRUE(domain->synchronize());
    EXPECT_TRUE(stored("theirs"));
    EXPECT_EQ(stored("mine"), NS::Value(2));
}

} // namespace
