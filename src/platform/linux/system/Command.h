#pragma once

#include "platform/linux/system/FileDescriptor.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

/// Other programs. Any thread.
namespace LinuxDesktop::Command {

/// The path of a program: the first executable file of that name in PATH.
[[nodiscard]] std::optional<std::string> find(std::string_view name);

/// A started program. It runs on when this is destroyed, also after the end of this process.
class Process {
public:
    /// `id` is a child of this process that nobody else waits for; of another process only ended() can be asked.
    explicit Process(pid_t id);

    /// Readable once the program has ended; no file where there was none of that identifier any more.
    [[nodiscard]] const FileDescriptor& ended() const { return m_ended; }
    /// The exit status of a program that has ended, which is cleared away; nothing for one that was killed, or that
    /// runs still.
    std::optional<int> exitStatus();
    /// Waits until the program ends, or until there is something to read from `interruption`, then as exitStatus().
    std::optional<int> wait(const FileDescriptor& interruption);

    /// Sets the most that it may have of a resource, one of the RLIMIT constants, from now on.
    void limit(int resource, std::size_t most) const;
    /// Ends a child at once, and clears it away.
    void kill();

private:
    pid_t m_id;
    FileDescriptor m_ended;
};

/// This process's environment for another program, without what it has for itself.
[[nodiscard]] std::vector<std::string> environment();
/// The same for the desktop's scripts, where what they open is not for a browser: they hand it to one, whatever its
/// scheme, where nobody else is registered for it.
[[nodiscard]] std::vector<std::string> environmentWithoutBrowser();

/// Where a program starts, as open files of this process.
struct Surroundings {
    /// The folder that it works in; this process's own where none is given.
    int folder = -1;
    /// Its standard input; nothing to read where none is given.
    int input = -1;
    /// Its standard output. This process's own is for its own texts.
    int output = STDERR_FILENO;
    /// Its standard error; this process's own where none is given.
    int complaints = -1;
};

/// Starts the program at a path in a session of its own, with no open files but the standard ones. `arguments` begin
/// with the program's name. Nothing, and a complaint, when it cannot be started.
[[nodiscard]] std::optional<Process> start(const std::string& program, std::vector<std::string> arguments,
                                           std::vector<std::string> environment, Surroundings surroundings = {});

} // namespace LinuxDesktop::Command
