#include "Rivals.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Rivals {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void execute(const std::vector<std::string>& command, const fs::path& folder, int output)
{
    std::vector<char*> arguments;
    for (const std::string& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ::dup2(output, STDOUT_FILENO);
    ::dup2(nowhere, STDERR_FILENO);
    if (::chdir(folder.c_str()) == 0)
        ::execvp(arguments.front(), arguments.data());
    ::_exit(127);
}

Measured run(const std::vector<std::string>& command, const fs::path& folder)
{
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0)
        std::exit(EXIT_FAILURE);
    const auto begin = std::chrono::steady_clock::now();
    const pid_t child = ::fork();
    if (child == 0)
        execute(command, folder, pipe[1]);
    ::close(pipe[1]);
    Measured result;
    std::array<char, 65'536> buffer{};
    for (ssize_t count = 0; (count = ::read(pipe[0], buffer.data(), buffer.size())) > 0;) {
        if (result.output.size() < buffer.size())
            result.output.append(buffer.data(), static_cast<std::size_t>(count));
    }
    ::close(pipe[0]);
    int status = 0;
    rusage usage = {};
    ::wait4(child, &status, 0, &usage);
    result.milliseconds = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
    result.megabytes = static_cast<double>(usage.ru_maxrss) / 1024.0;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s failed\n", command.front().c_str());
        std::exit(EXIT_FAILURE);
    }
    return result;
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

} // namespace

Folder::Folder(const fs::path& place)
{
    std::string name = (place / "orvik-bench-XXXXXX").native();
    if (!::mkdtemp(name.data())) {
        std::perror(name.c_str());
        std::exit(EXIT_FAILURE);
    }
    m_path = name;
}

Folder::~Folder()
{
    fs::remove_all(m_path);
}

void compare(const std::vector<Program>& programs, int rounds, const fs::path& place,
             const std::function<void()>& before, const std::function<void(const Measured&)>& check)
{
    const Folder work(place);
    std::vector<std::vector<double>> taken(programs.size());
    std::vector<double> megabytes(programs.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t program = 0; program < programs.size(); ++program) {
            before();
            const Measured result = run(programs[program].command, work.path());
            taken[program].push_back(result.milliseconds);
            megabytes[program] = std::max(megabytes[program], result.megabytes);
            if (program == 0)
                check(result);
        }
    }
    const double own = median(taken.front());
    for (std::size_t program = 0; program < programs.size(); ++program)
        std::printf("  %-28s %8.0f ms %6.2f times ours %7.1f MB\n", programs[program].name.c_str(),
                    median(taken[program]), median(taken[program]) / own, megabytes[program]);
    std::fflush(stdout);
}

} // namespace Rivals
