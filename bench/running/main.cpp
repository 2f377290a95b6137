// Measures what it costs to ask for the running applications where very many run: a thousand names on the bus, each
// with a desktop entry. Needs a session bus that nobody else uses.
#include "platform/linux/processes/RunningApplications.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

using LinuxDesktop::RunningApplications;
using LinuxDesktop::SessionBus;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int programs = 1'000;
constexpr int rounds = 101;

struct Cost {
    /// Of the processor, in all of the process's threads.
    double busy = 0;
    double waited = 0;
};

double processorMilliseconds()
{
    timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

Cost costOfAsking(RunningApplications& running)
{
    const double busyBefore = processorMilliseconds();
    const auto begin = Clock::now();
    const std::size_t count = running.list().size();
    const Cost cost{processorMilliseconds() - busyBefore, Milliseconds(Clock::now() - begin).count()};
    if (count < programs) {
        std::fprintf(stderr, "only %zu programs were listed\n", count);
        std::exit(EXIT_FAILURE);
    }
    return cost;
}

std::string identifierOf(int program)
{
    return "org.example.bench.Program" + std::to_string(program);
}

/// An entry of the usual length, most of which is translations.
void writeEntry(const std::filesystem::path& folder, int program)
{
    std::ofstream entry(folder / (identifierOf(program) + ".desktop"));
    entry << "[Desktop Entry]\nType=Application\nName=Program " << program << "\nExec=program\n";
    for (int language = 0; language < 60; ++language)
        entry << "Comment[l" << language << "]=What the program is good for, in another language\n";
    entry << "Categories=Utility;\n";
}

Cost median(std::vector<Cost> costs)
{
    const auto middle = [&](double Cost::*part) {
        std::ranges::sort(costs, {}, part);
        return costs[costs.size() / 2].*part;
    };
    return {middle(&Cost::busy), middle(&Cost::waited)};
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir data;
    const auto folder = std::filesystem::path(data.path().toStdString()) / "applications";
    std::filesystem::create_directories(folder);
    qputenv("XDG_DATA_HOME", data.path().toUtf8());

    SessionBus owners("there is no session bus to measure on");
    const auto connection = owners.connection();
    if (!connection)
        return EXIT_FAILURE;
    for (int program = 0; program < programs; ++program) {
        writeEntry(folder, program);
        if (!QDBusConnection(*connection).registerService(QString::fromStdString(identifierOf(program)))) {
            std::fputs("the bus does not take so many names\n", stderr);
            return EXIT_FAILURE;
        }
    }

    SessionBus bus("there is no session bus to measure on");
    RunningApplications running(bus);
    const Cost first = costOfAsking(running);
    std::vector<Cost> warm;
    for (int round = 0; round < rounds; ++round)
        warm.push_back(costOfAsking(running));
    const Cost usual = median(std::move(warm));

    std::printf("Asking for %d running applications with a desktop entry each:\n", programs);
    std::printf("  the first time  %6.2f ms of the processor, %6.2f ms in all\n", first.busy, first.waited);
    std::printf("  later (median)  %6.2f ms of the processor, %6.2f ms in all (target 5 ms of the processor)\n",
                usual.busy, usual.waited);
    return EXIT_SUCCESS;
}
