#include "bench/rivals/Rivals.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Rivals {

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

struct Measured {
    std::vector<double> milliseconds;
    std::vector<double> processor;
    double megabytes = 0;
};

double millisecondsOf(const timeval& time)
{
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

void run(const std::vector<std::string>& command, Measured& measured)
{
    const auto begin = Clock::now();
    const pid_t child = ::fork();
    if (child == 0) {
        std::vector<char*> arguments;
        for (const std::string& word : command)
            arguments.push_back(const_cast<char*>(word.c_str()));
        arguments.push_back(nullptr);
        const int nowhere = ::open("/dev/null", O_WRONLY);
        ::dup2(nowhere, STDOUT_FILENO);
        ::dup2(nowhere, STDERR_FILENO);
        ::execvp(arguments.front(), arguments.data());
        ::_exit(127);
    }
    int status = 0;
    rusage usage = {};
    ::wait4(child, &status, 0, &usage);
    measured.milliseconds.push_back(Milliseconds(Clock::now() - begin).count());
    measured.processor.push_back(millisecondsOf(usage.ru_utime) + millisecondsOf(usage.ru_stime));
    measured.megabytes = std::max(measured.megabytes, static_cast<double>(usage.ru_maxrss) / 1024.0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s failed\n", command.front().c_str());
        std::exit(EXIT_FAILURE);
    }
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

} // namespace

void compare(const std::string& title, std::vector<Rival> rivals, int rounds, const std::function<void()>& prepare)
{
    std::vector<Measured> measured(rivals.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t rival = 0; rival < rivals.size(); ++rival) {
            prepare();
            run(rivals[rival].command, measured[rival]);
        }
    }
    const double own = median(measured.front().milliseconds);
    const double ownProcessor = median(measured.front().processor);
    std::printf("%s\n", title.c_str());
    for (std::size_t rival = 0; rival < rivals.size(); ++rival) {
        const double time = median(measured[rival].milliseconds);
        const double processor = median(measured[rival].processor);
        std::printf("  %-24s %8.0f ms %6.2f times ours, of the processor %8.0f ms %6.2f times ours %7.1f MB\n",
                    rivals[rival].name.c_str(), time, time / own, processor, processor / ownProcessor,
                    measured[rival].megabytes);
    }
}

} // namespace Rivals
