// Measures the settings store against what the disk takes at least and against two libraries, and prints the
// ratios. The files lie in the current folder, which should be on a disk.

#include "Settings.h"
#include "TemporaryFolder.h"
#include "platform/linux/store/PropertyList.h"
#include "platform/linux/store/Store.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace StoreBench;
using LinuxDesktop::Store;

/// Settings as a panel keeps them, in a file of about 2 KB.
void makeSuite(const std::string& folder)
{
    NS::Value::Dictionary values;
    for (int i = 0; LinuxDesktop::PropertyList::serialise(values)->size() < fileSize; ++i)
        values.emplace("key" + std::to_string(100 + i),
                       NS::Value::Array{NS::Value(i), NS::Value(i % 2 == 0), NS::Value("A title of some length")});
    Store store(folder);
    const auto domain = store.open("suite");
    domain->replaceContents(values);
    if (!domain->synchronize())
        std::exit(1);
    // Until its time stamps tell it from whatever comes after it.
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
}

void openAndRead(benchmark::State& state, const std::string& folder)
{
    for (auto _ : state) {
        Store store(folder);
        benchmark::DoNotOptimize(store.open("suite")->objectForKey("key105"));
    }
}

void readAgain(benchmark::State& state, const std::string& folder)
{
    Store store(folder);
    const auto domain = store.open("suite");
    for (auto _ : state)
        benchmark::DoNotOptimize(domain->objectForKey("key105"));
}

/// A folder for one contestant: some watch theirs, and would be woken by what the others do.
std::string makeFolder(const std::string& path)
{
    std::filesystem::create_directory(path);
    return path;
}

void storeNumbers(benchmark::State& state, Settings& settings)
{
    static int number = 0;
    for (auto _ : state)
        settings.store(++number);
}

/// Prints as usual and keeps the medians: of the time on the clock for what waits for the disk, of the processor's
/// time for what does not.
class Medians : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.aggregate_name == "median")
                m_medians[run.run_name.function_name] =
                    run.run_name.time_type.empty() ? run.GetAdjustedCPUTime() : run.GetAdjustedRealTime();
    }

    [[nodiscard]] double of(const std::string& name) const { return m_medians.at(name); }
    /// False where options have left benchmarks out.
    [[nodiscard]] bool areComplete(std::size_t benchmarks) const { return m_medians.size() == benchmarks; }

private:
    std::map<std::string, double> m_medians;
};

} // namespace

int main(int argc, char** argv)
{
    // Taking turns, so that whatever else the disk does meets all of them alike.
    std::vector<std::string> words{argv[0], "--benchmark_repetitions=15",
                                   "--benchmark_enable_random_interleaving=true",
                                   "--benchmark_report_aggregates_only=true", "--benchmark_min_time=0.1"};
    words.insert(words.end(), argv + 1, argv + argc);
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;

    const TemporaryFolder folder;
    makeSuite(folder.path());
    const std::map<std::string, std::unique_ptr<Settings> (*)(const std::string&)> contestants{
        {"write/system-calls", withSystemCalls},
        {"write/store", withStore},
        {"write/QSettings", withQt},
        {"write/GSettings", withGio},
        {"write/GSettings+folder", withGioAndFolder},
    };
    std::map<std::string, std::unique_ptr<Settings>> settings;
    std::size_t benchmarks = 0;
    const auto add = [&](const std::string& name, const std::function<void(benchmark::State&)>& measure) {
        ++benchmarks;
        return benchmark::RegisterBenchmark(name.c_str(), measure)->Unit(benchmark::kMicrosecond);
    };
    add("open and read", [&](benchmark::State& state) { openAndRead(state, folder.path()); });
    add("read again", [&](benchmark::State& state) { readAgain(state, folder.path()); });
    for (const auto& [name, make] : contestants) {
        settings[name] = make(makeFolder(folder.path() + "/" + std::to_string(settings.size())));
        add(name, [&contestant = *settings[name]](benchmark::State& state) {
            storeNumbers(state, contestant);
        })->UseRealTime();
    }
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    benchmark::Shutdown();
    if (!medians.areComplete(benchmarks))
        return 0;

    const double store = medians.of("write/store");
    std::printf("\nMedians\n");
    std::printf("open a suite of 2 KB and read one key  %8.1f us   (bound 60)\n", medians.of("open and read"));
    std::printf("read a key of an unchanged file        %8.2f us   (bound 3)\n", medians.of("read again"));
    std::printf("write: store / system calls            %8.2f      (bound 1.25)\n",
                store / medians.of("write/system-calls"));
    std::printf("write: QSettings / store               %8.2f      (it does not flush the folder)\n",
                medians.of("write/QSettings") / store);
    std::printf(
        "write: GSettings / store               %8.2f      (it does not flush the folder, and locks nothing)\n",
        medians.of("write/GSettings") / store);
    std::printf("write: GSettings, folder too / store   %8.2f      (as durable as the store, but locks nothing)\n",
                medians.of("write/GSettings+folder") / store);
    return 0;
}
