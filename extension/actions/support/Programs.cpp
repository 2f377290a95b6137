#include "extension/actions/support/Programs.h"

#include "platform/linux/system/Command.h"
#include "platform/linux/system/Pipe.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <poll.h>
#include <sys/timerfd.h>
#include <system_error>

namespace MenuExtension::Programs {

namespace {

using namespace std::chrono_literals;
using namespace LinuxDesktop;

/// Whoever cannot show a window says so sooner.
constexpr auto untilItRuns = 2s;
constexpr auto untilItEnds = 10s;
constexpr std::size_t longestOutput = std::size_t{64} << 10U;

FileDescriptor readableAfter(std::chrono::seconds time)
{
    FileDescriptor timer(::timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC));
    itimerspec when{};
    when.it_value.tv_sec = time.count();
    ::timerfd_settime(timer.get(), 0, &when, nullptr);
    return timer;
}

std::optional<Command::Process> started(const CommandLine& command, std::vector<std::string> environment,
                                        Command::Surroundings surroundings)
{
    const std::string& name = command.front();
    const auto program = name.starts_with('/') ? std::optional(name) : Command::find(name);
    return program ? Command::start(*program, command, std::move(environment), surroundings) : std::nullopt;
}

bool goesOn(std::optional<Command::Process> process)
{
    // Its end may be a good one: it has handed the work over to a program that runs already.
    return process && process->wait(readableAfter(untilItRuns)).value_or(0) == 0;
}

/// Until the end; nothing where it does not come in time.
std::optional<std::string> readAll(const FileDescriptor& source, const FileDescriptor& timer)
{
    std::string text;
    std::array<char, 4096> buffer{};
    while (text.size() < longestOutput) {
        std::array<pollfd, 2> sources{{{source.get(), POLLIN, 0}, {timer.get(), POLLIN, 0}}};
        if (::poll(sources.data(), sources.size(), -1) < 0 && errno == EINTR)
            continue;
        if (sources[0].revents == 0)
            return std::nullopt;
        const ssize_t count = ::read(source.get(), buffer.data(), buffer.size());
        if (count <= 0)
            return count == 0 ? std::optional(text) : std::nullopt;
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return std::nullopt;
}

} // namespace

bool start(const CommandLine& command)
{
    return goesOn(started(command, Command::environment(), {}));
}

bool startIn(const OpenedFolder& folder, const CommandLine& command)
{
    std::vector<std::string> environment = Command::environment();
    std::erase_if(environment, [](const std::string& variable) { return variable.starts_with("PWD="); });
    environment.push_back("PWD=" + folder.path);
    return goesOn(started(command, std::move(environment), {.folder = folder.descriptor.get()}));
}

bool run(const CommandLine& command)
{
    auto process = started(command, Command::environment(), {});
    return process && process->wait(readableAfter(untilItEnds)) == 0;
}

std::optional<std::string> outputOf(const CommandLine& command)
{
    LinuxDesktop::Pipe pipe = LinuxDesktop::makePipe();
    if (!pipe.reading)
        return std::nullopt;
    auto process = started(command, Command::environment(), {.output = pipe.writing.get()});
    pipe.writing.close();
    const FileDescriptor timer = readableAfter(untilItEnds);
    auto text = process ? readAll(pipe.reading, timer) : std::nullopt;
    if (!text || process->wait(timer) != 0)
        return std::nullopt;
    text->resize(text->find_last_not_of('\n') + 1);
    return text;
}

std::filesystem::path folder()
{
    std::error_code error;
    const auto own = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path() : (own.parent_path() / ORVIK_ACTION_TO_PROGRAMS).lexically_normal();
}

} // namespace MenuExtension::Programs
