#include "extension/actions/photos/WorkerProgram.h"

#include <charconv>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace MenuExtension::Photos {

namespace {

std::optional<std::uint64_t> numberFrom(std::string_view text)
{
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

bool limit(__rlimit_resource resource, rlim_t amount)
{
    const rlimit limits{amount, amount};
    return ::setrlimit(resource, &limits) == 0;
}

/// The memory that is the program's own, not what watches over it in a build with sanitizers.
bool limitMemory([[maybe_unused]] std::uint64_t bytes)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
    return true;
#else
    return limit(RLIMIT_AS, bytes);
#endif
#else
    return limit(RLIMIT_AS, bytes);
#endif
}

/// From now on. The limit counts from the process's beginning.
void limitProcessor(std::uint64_t seconds)
{
    rusage used{};
    rlimit limits{};
    if (::getrusage(RUSAGE_SELF, &used) != 0 || ::getrlimit(RLIMIT_CPU, &limits) != 0)
        return;
    limits.rlim_cur = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) + seconds + 1;
    ::setrlimit(RLIMIT_CPU, &limits);
}

} // namespace

int runWorker(int argc, char** argv, const std::function<void()>& prepare, const Job& job)
{
    const auto memory = argc == 3 ? numberFrom(argv[1]) : std::nullopt;
    const auto seconds = argc == 3 ? numberFrom(argv[2]) : std::nullopt;
    if (!memory || !seconds)
        return EXIT_FAILURE;
    // A picture's end of this process is no matter for the system's collector of crashes.
    if (!limitMemory(*memory) || !limit(RLIMIT_CORE, 0) || ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0) != 0 ||
        ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return EXIT_FAILURE;
    std::signal(SIGXCPU, [](int) { ::_exit(endOfProcessorTime); });
    prepare();
    if (send(STDIN_FILENO, {}, {}, Deadline::max()) != Sent::Yes)
        return EXIT_SUCCESS;
    for (;;) {
        Received received = receive(STDIN_FILENO, Deadline::max());
        if (!received.message)
            return EXIT_SUCCESS;
        limitProcessor(*seconds);
        if (send(STDIN_FILENO, job(*received.message), {}, Deadline::max()) != Sent::Yes)
            return EXIT_SUCCESS;
    }
}

} // namespace MenuExtension::Photos
