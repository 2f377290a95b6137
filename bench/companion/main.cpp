// Measures how long it takes from a setting changed in one program to the companion's word on the bus that it has
// changed, against the least that this needs: the same bytes written and flushed, and a call to the companion and its
// answer. Needs a session bus that nobody else uses. The files lie in the current folder, which should be on a disk.

#include "../store/Settings.h"
#include "../store/TemporaryFolder.h"
#include "extension/bus/Handles.h"
#include "platform/linux/bus/interfaces/ObjectPath.h"
#include "platform/linux/store/SettingsFolder.h"
#include "platform/linux/store/Store.h"
#include "settings/Deployment.h"
#include "settings/Settings.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
const std::string companion{Deployment::extensionIdentifier};
const std::string companionPath = BusInterface::objectPath(companion);

constexpr int rounds = 400;
/// Until the copy of the settings is made too, and nobody has anything left to do.
constexpr std::chrono::milliseconds settling{50};
constexpr std::chrono::seconds patience{20};

void require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(EXIT_FAILURE);
}

/// The companion, as long as this lives.
class Companion {
public:
    explicit Companion(sd_bus& bus) : m_bus(bus)
    {
        std::string path = COMPANION;
        std::vector<char*> arguments{path.data(), nullptr};
        require(::posix_spawn(&m_process, path.c_str(), nullptr, nullptr, arguments.data(), environ) == 0,
                "the companion does not start");
        const auto end = Clock::now() + patience;
        while (!answers()) {
            require(Clock::now() < end, "the companion does not answer");
            std::this_thread::sleep_for(settling);
        }
        require(sd_bus_match_signal(&m_bus, nullptr, companion.c_str(), companionPath.c_str(),
                                    "org.freedesktop.DBus.Properties", "PropertiesChanged", &Companion::note,
                                    this) >= 0,
                "the companion cannot be listened to");
    }
    ~Companion()
    {
        ::kill(m_process, SIGTERM);
        ::waitpid(m_process, nullptr, 0);
    }
    Companion(const Companion&) = delete;
    Companion& operator=(const Companion&) = delete;

    [[nodiscard]] bool answers() const
    {
        return sd_bus_call_method(&m_bus, companion.c_str(), companionPath.c_str(), "org.freedesktop.DBus.Peer",
                                  "Ping", nullptr, nullptr, "") >= 0;
    }

    /// Waits for its next word.
    void awaitChange()
    {
        const auto end = Clock::now() + patience;
        const auto slice = std::chrono::microseconds(std::chrono::seconds(1)).count();
        for (const int seen = m_changes; m_changes == seen;) {
            const int result = sd_bus_process(&m_bus, nullptr);
            require(result >= 0, "the bus has gone");
            if (result == 0)
                static_cast<void>(sd_bus_wait(&m_bus, static_cast<std::uint64_t>(slice)));
            require(Clock::now() < end, "the companion does not say that the setting has changed");
        }
    }

private:
    static int note(sd_bus_message*, void* companion, sd_bus_error*)
    {
        ++static_cast<Companion*>(companion)->m_changes;
        return 0;
    }

    sd_bus& m_bus;
    pid_t m_process = 0;
    int m_changes = 0;
};

struct Times {
    double median;
    double slowest1In100;
};

template<class Action>
double millisecondsOf(const Action& action)
{
    const auto begin = Clock::now();
    action();
    return Milliseconds(Clock::now() - begin).count();
}

Times summary(std::vector<double> times)
{
    std::ranges::sort(times);
    return {times[times.size() / 2], times[times.size() * 99 / 100]};
}

void print(const char* what, const Times& times)
{
    std::printf("%-46s %6.2f ms, 99th percentile %6.2f ms\n", what, times.median, times.slowest1In100);
}

} // namespace

int main()
{
    const StoreBench::TemporaryFolder folder;
    ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
    sd_bus* opened = nullptr;
    require(sd_bus_open_user(&opened) >= 0, "there is no session bus to measure on");
    const MenuExtension::Bus bus(opened);

    LinuxDesktop::Store store;
    const auto suite = store.open(Deployment::suiteName);
    // As large as what it is measured against.
    suite->setObject_forKey(std::string(StoreBench::fileSize, 'x'), "other");
    const auto change = [&](int round) {
        suite->setObject_forKey(round % 2 == 0, Settings::showinSubMenu.key);
        require(suite->synchronize(), "the settings cannot be stored");
    };
    change(1);
    const auto raw = StoreBench::withSystemCalls(folder.path());

    Companion companion(*bus);
    std::vector<double> changes;
    std::vector<double> least;
    for (int round = 0; round < rounds; ++round) {
        std::this_thread::sleep_for(settling);
        changes.push_back(millisecondsOf([&] {
            change(round);
            companion.awaitChange();
        }));
        std::this_thread::sleep_for(settling);
        least.push_back(millisecondsOf([&] {
            raw->store(round);
            require(companion.answers(), "the companion has gone");
        }));
    }

    const Times measured = summary(std::move(changes));
    const Times yardstick = summary(std::move(least));
    print("a setting changed, until the companion says so", measured);
    print("the bytes written, and a call to it", yardstick);
    std::printf("ratio of the medians %6.2f, of the 99th percentiles %6.2f\n", measured.median / yardstick.median,
                measured.slowest1In100 / yardstick.slowest1In100);
    return EXIT_SUCCESS;
}
