#include "platform/linux/system/Command.h"

#include "platform/linux/system/Complaint.h"
#include "platform/linux/system/OwnEnvironment.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
// This header forgets to say that its functions are C.
extern "C" {
#include <sys/pidfd.h>
}
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace LinuxDesktop::Command {

namespace {

bool isExecutableFile(const std::string& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && ::access(path.c_str(), X_OK) == 0;
}

std::vector<char*> pointersTo(std::vector<std::string>& strings)
{
    std::vector<char*> pointers;
    pointers.reserve(strings.size() + 1);
    for (auto& string : strings)
        pointers.push_back(string.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// What the child starts with, apart from its arguments and environment.
class SpawnSettings {
public:
    explicit SpawnSettings(Surroundings surroundings)
    {
        posix_spawn_file_actions_init(&m_actions);
        if (surroundings.folder >= 0)
            posix_spawn_file_actions_addfchdir_np(&m_actions, surroundings.folder);
        if (surroundings.input >= 0)
            posix_spawn_file_actions_adddup2(&m_actions, surroundings.input, STDIN_FILENO);
        else
            posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&m_actions, surroundings.output, STDOUT_FILENO);
        if (surroundings.complaints >= 0)
            posix_spawn_file_actions_adddup2(&m_actions, surroundings.complaints, STDERR_FILENO);
        posix_spawn_file_actions_addclosefrom_np(&m_actions, STDERR_FILENO + 1);

        posix_spawnattr_init(&m_attributes);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&m_attributes, &signals);
        sigaddset(&signals, SIGPIPE);
        sigaddset(&signals, SIGCHLD);
        sigaddset(&signals, SIGXFSZ);
        posix_spawnattr_setsigdefault(&m_attributes, &signals);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~SpawnSettings()
    {
        posix_spawn_file_actions_destroy(&m_actions);
        posix_spawnattr_destroy(&m_attributes);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;

    [[nodiscard]] const posix_spawn_file_actions_t* actions() const { return &m_actions; }
    [[nodiscard]] const posix_spawnattr_t* attributes() const { return &m_attributes; }

private:
    posix_spawn_file_actions_t m_actions{};
    posix_spawnattr_t m_attributes{};
};

} // namespace

std::optional<std::string> find(std::string_view name)
{
    const char* variable = std::getenv("PATH");
    std::string_view rest = variable ? variable : "";
    while (!rest.empty()) {
        const auto length = std::min(rest.find(':'), rest.size());
        const std::string folder(rest.substr(0, length));
        rest.remove_prefix(std::min(length + 1, rest.size()));
        // A relative folder would run what lies in whatever folder the program happens to be in.
        if (!folder.starts_with('/'))
            continue;
        if (std::string path = folder + '/' + std::string(name); isExecutableFile(path))
            return path;
    }
    return std::nullopt;
}

Process::Process(pid_t id) : m_id(id), m_ended(::pidfd_open(id, 0)) {}

std::optional<int> Process::exitStatus()
{
    int status = 0;
    if (::waitpid(m_id, &status, WNOHANG) != m_id || !WIFEXITED(status))
        return std::nullopt;
    return WEXITSTATUS(status);
}

std::optional<int> Process::wait(const FileDescriptor& interruption)
{
    std::array<pollfd, 2> sources{{{m_ended.get(), POLLIN, 0}, {interruption.get(), POLLIN, 0}}};
    while (::poll(sources.data(), sources.size(), -1) < 0 && errno == EINTR) {
    }
    return exitStatus();
}

void Process::limit(int resource, std::size_t most) const
{
    const rlimit limits{most, most};
    ::prlimit(m_id, static_cast<__rlimit_resource>(resource), &limits, nullptr);
}

void Process::kill()
{
    if (m_ended && ::pidfd_send_signal(m_ended.get(), SIGKILL, nullptr, 0) == 0)
        ::waitpid(m_id, nullptr, 0);
}

std::vector<std::string> environment()
{
    std::vector<std::string> variables;
    for (char** variable = environ; *variable; ++variable) {
        if (!OwnEnvironment::has(*variable))
            variables.emplace_back(*variable);
    }
    return variables;
}

std::vector<std::string> environmentWithoutBrowser()
{
    std::vector<std::string> variables = environment();
    std::erase_if(variables, [](const std::string& variable) { return variable.starts_with("BROWSER="); });
    variables.emplace_back("BROWSER=false");
    return variables;
}

std::optional<Process> start(const std::string& program, std::vector<std::string> arguments,
                             std::vector<std::string> environment, Surroundings surroundings)
{
    const SpawnSettings settings(surroundings);
    pid_t id = 0;
    const int error = ::posix_spawn(&id, program.c_str(), settings.actions(), settings.attributes(),
                                    pointersTo(arguments).data(), pointersTo(environment).data());
    if (error != 0) {
        complain("cannot start", program, error);
        return std::nullopt;
    }
    return Process(id);
}

} // namespace LinuxDesktop::Command
