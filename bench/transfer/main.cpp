// Measures how long a copy takes until it is on the disk, against `cp -a` and a flush of the file system: of many
// small files in one folder, of the same as items of their own, and of one large file. In turns, each target removed
// and all of it flushed before the next. Arguments: a folder to work in, the number of small files, the large one's
// MiB, rounds.
#include "extension/actions/transfer/Transfer.h"
#include "platform/linux/system/ParentFolder.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace MenuExtension::Transfers;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// Nothing is there to be asked about.
class Nobody : public Asked {
public:
    [[nodiscard]] Decision decide(const Conflict&) override { std::abort(); }
    [[nodiscard]] bool goesOnWithout(const Problems&) override { std::abort(); }
};

LinuxDesktop::FileDescriptor openFolderOf(const std::string& item)
{
    return LinuxDesktop::FileDescriptor(
        ::open(LinuxDesktop::parentFolder(item).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

void copyOurselves(const std::vector<std::string>& items, const std::string& target)
{
    SystemCalls calls;
    StagingRecord record(calls, {target + "-record"});
    Progress progress;
    Nobody nobody;
    Transfer transfer(calls, record, openFolderOf, progress, nobody);
    Order order{.isMove = false, .items = {}, .target = target};
    for (const std::string& item : items)
        order.items.push_back({item});
    const Result result = transfer.run(order);
    if (result.done != items.size() || !result.problems.empty())
        std::abort();
}

void run(const std::vector<std::string>& command)
{
    const pid_t child = fork();
    if (child == 0) {
        std::vector<char*> arguments;
        for (const std::string& argument : command)
            arguments.push_back(const_cast<char*>(argument.c_str()));
        arguments.push_back(nullptr);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    if (waitpid(child, &status, 0) != child || status != 0)
        std::abort();
}

void copyByCp(const std::vector<std::string>& items, const std::string& target)
{
    std::vector<std::string> command{"cp", "-a", "-t", target};
    command.insert(command.end(), items.begin(), items.end());
    run(command);
    run({"sync", "-f", target});
}

/// In a process of its own, as a person's copy is, and so that its memory is counted afresh.
template<class Copy>
double measure(const std::string& target, Copy copy, long& kibibytes)
{
    fs::create_directory(target);
    sync();
    const auto begin = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        copy();
        _exit(0);
    }
    int status = 0;
    rusage usage{};
    if (wait4(child, &status, 0, &usage) != child || status != 0)
        std::abort();
    const double taken = Milliseconds(Clock::now() - begin).count();
    kibibytes = std::max(kibibytes, usage.ru_maxrss);
    fs::remove_all(target);
    fs::remove_all(target + "-record");
    return taken;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void compare(const char* what, const std::vector<std::string>& items, const std::string& work, int rounds)
{
    std::vector<double> ours;
    std::vector<double> theirs;
    std::vector<double> ratios;
    long kibibytes = 0;
    long ignored = 0;
    for (int round = 0; round < rounds; ++round) {
        const auto measureOurs = [&] {
            ours.push_back(measure(
                work + "/ours", [&] { copyOurselves(items, work + "/ours"); }, kibibytes));
        };
        // Neither always finds the caches and the disk as the other has left them.
        if (round % 2 == 0)
            measureOurs();
        theirs.push_back(measure(
            work + "/theirs", [&] { copyByCp(items, work + "/theirs"); }, ignored));
        if (round % 2 == 1)
            measureOurs();
        ratios.push_back(ours.back() / theirs.back());
    }
    std::printf("  %-34s %9.0f ms %9.0f ms   %5.2f   (%.2f to %.2f)   %6.1f MiB\n", what, median(ours),
                median(theirs), median(ratios), *std::min_element(ratios.begin(), ratios.end()),
                *std::max_element(ratios.begin(), ratios.end()), static_cast<double>(kibibytes) / 1024);
}

void fill(const std::string& path, std::size_t size, std::mt19937_64& random)
{
    std::vector<std::uint64_t> block(std::min<std::size_t>(size, std::size_t{1} << 20U) / 8 + 1);
    std::generate(block.begin(), block.end(), random);
    std::ofstream file(path, std::ios::binary);
    while (size > 0) {
        const std::size_t part = std::min(size, block.size() * 8);
        file.write(reinterpret_cast<const char*>(block.data()), static_cast<std::streamsize>(part));
        size -= part;
        ++block.front();
    }
}

int argument(int argc, char** argv, int number, int otherwise)
{
    return argc > number ? std::atoi(argv[number]) : otherwise;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string place = argc > 1 ? argv[1] : fs::temp_directory_path().string();
    const int files = argument(argc, argv, 2, 20'000);
    const int mebibytes = argument(argc, argv, 3, 4096);
    const int rounds = argument(argc, argv, 4, 5);
    std::string work = place + "/orvik-bench-transfer-XXXXXX";
    if (!mkdtemp(work.data()))
        return EXIT_FAILURE;

    std::mt19937_64 random(20010324);
    const std::string tree = work + "/tree";
    fs::create_directory(tree);
    constexpr int filesInFolder = 100;
    std::vector<std::string> items;
    for (int number = 0; number < files; ++number) {
        const std::string folder = tree + "/folder " + std::to_string(number / filesInFolder);
        fs::create_directory(folder);
        items.push_back(folder + "/file " + std::to_string(number));
        fill(items.back(), random() % 16'384, random);
    }
    std::puts("                                           ours       cp -a   ratio                 memory");
    if (files > 0) {
        compare("a folder of small files", {tree}, work, rounds);
        compare("small files", items, work, rounds);
    }
    if (mebibytes > 0) {
        fill(work + "/large", static_cast<std::size_t>(mebibytes) << 20U, random);
        compare("a large file", {work + "/large"}, work, rounds);
    }
    fs::remove_all(work);
    return EXIT_SUCCESS;
}
