#include "Support.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace DefaultsTests;
using LinuxDesktop::FileDescriptor;
using LinuxDesktop::Store;
namespace fs = std::filesystem;

/// A number and a text in one value, which is written whole; of two values the first may be on disk before the
/// second is set.
NS::Value record(std::int64_t number, std::size_t length)
{
    return NS::Value::Dictionary{{"number", number}, {"text", std::string(length, 'x')}};
}

/// The length of the text that goes with a number.
std::size_t lengthFor(std::int64_t number)
{
    return static_cast<std::size_t>(number % 7 * 1500);
}

/// In memory a kill meets every step of a write alike; on a disk it mostly meets the waiting for it.
class StoreCrash : public SettingsTest, public ::testing::TestWithParam<Place> {
protected:
    StoreCrash() : SettingsTest(GetParam()) {}

    /// How often to kill: ORVIK_KILLS, or 2,000 times; on a disk a twentieth of that.
    static int kills()
    {
        const char* wanted = std::getenv("ORVIK_KILLS");
        const int count = wanted ? std::atoi(wanted) : 2000;
        return GetParam() == Place::Memory ? count : count / 20;
    }

    /// How long a process takes to store something.
    [[nodiscard]] std::chrono::microseconds timeOfWrite() const
    {
        constexpr int writes = 10;
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < writes; ++i)
            store({{"record", record(i - writes + 1, 0)}});
        return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start) /
               writes;
    }

    void sleepUpTo(std::chrono::microseconds longest)
    {
        std::this_thread::sleep_for(
            std::chrono::microseconds(std::uniform_int_distribution<std::int64_t>(0, longest.count())(m_random)));
    }

    std::mt19937 m_random{20010324};
};

INSTANTIATE_TEST_SUITE_P(Files, StoreCrash, ::testing::Values(Place::Memory, Place::Disk),
                         [](const auto& place) { return place.param == Place::Memory ? "InMemory" : "OnDisk"; });

/// Writes number after number, each with a text of another length, and tells of each once it is on disk.
[[noreturn]] void writeForever(const std::string& folder, std::string_view domainName, int told)
{
    Store store(folder);
    const auto domain = store.open(domainName);
    const auto last = domain->objectForKey("record");
    for (std::int64_t number = *last->dictionary()->at("number").integer();;) {
        ++number;
        domain->setObject_forKey(record(number, lengthFor(number)), "record");
        if (domain->synchronize() && ::write(told, &number, sizeof(number)) != sizeof(number))
            ::_exit(1);
    }
}

TEST_P(StoreCrash, AKilledWriterLosesNothingThatItWasToldIsOnDisk)
{
    const int count = kills();
    // The time to fork and a few writes.
    const auto longest = timeOfWrite() * 4 + std::chrono::milliseconds(1);
    std::int64_t lastTold = 0;
    for (int i = 0; i < count; ++i) {
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
        FileDescriptor reading(ends[0]);
        FileDescriptor writing(ends[1]);
        const pid_t child = ::fork();
        if (child == 0)
            writeForever(folder(), domainName, writing.get());
        writing.close();
        sleepUpTo(longest);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        std::int64_t told = 0;
        while (::read(reading.get(), &told, sizeof(told)) == sizeof(told))
            lastTold = told;

        testing::internal::CaptureStderr();
        const auto found = stored("record");
        ASSERT_EQ(testing::internal::GetCapturedStderr(), "");
        ASSERT_TRUE(found && found->dictionary());
        const std::int64_t number = *found->dictionary()->at("number").integer();
        // The write that was killed may have come through or not.
        ASSERT_GE(number, lastTold);
        ASSERT_LE(number, lastTold + 1);
        ASSERT_EQ(found->dictionary()->at("text").string()->size(), lengthFor(number));
        lastTold = number;
    }
    EXPECT_GT(lastTold, count / 4);
    store({{"k", 1}});
    EXPECT_TRUE(files(".tmp-").empty());
    EXPECT_TRUE(files(".corrupt-").empty());
}

TEST_P(StoreCrash, AKillWhileADamagedFileIsSetAsideLosesNeitherItNorTheCopy)
{
    const int count = kills() / 4;
    const auto longest = timeOfWrite() * 3 + std::chrono::milliseconds(1);
    store({{"k", "good"}});
    for (int i = 0; i < count; ++i) {
        const std::string garbage = "garbage " + std::to_string(i);
        writeFile(file(), garbage);
        fs::last_write_time(file(), fs::file_time_type::clock::now() - std::chrono::seconds(10));
        const pid_t child = ::fork();
        if (child == 0) {
            ::close(STDERR_FILENO);
            static_cast<void>(stored("k"));
            ::_exit(0);
        }
        sleepUpTo(longest);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);

        testing::internal::CaptureStderr();
        ASSERT_EQ(stored("k"), NS::Value("good"));
        testing::internal::GetCapturedStderr();
        const auto kept = files(".corrupt-");
        // Each damaged file has got one name, however often its rescue was begun.
        ASSERT_EQ(kept.size(), static_cast<std::size_t>(std::min(i + 1, 5)));
        ASSERT_EQ(readFile(folder() + "/" + kept.back()), garbage);
    }
}

} // namespace
