#pragma once

#include "platform/linux/FileDescriptor.h"

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

/// The program xdg-email, which opens a message in the user's mail program. Any thread.
namespace LinuxDesktop::MailCommand {

/// Its path: the first executable file of that name in PATH.
[[nodiscard]] std::optional<std::string> find();

/// A started program. It runs on when this is destroyed, also after the end of this process.
class Process {
public:
    /// `id` is a child of this process that nobody else waits for.
    explicit Process(pid_t id);

    /// Waits until the program ends, and clears it away, or until there is something to read from `interruption`.
    /// The program's exit status; nothing when it was interrupted or the program was killed.
    std::optional<int> wait(const FileDescriptor& interruption);

private:
    pid_t m_id;
    FileDescriptor m_ended;
};

/// Starts `command` with absolute, mailable paths to attach, in a session of its own, with no open files but the
/// standard ones. Nothing, and a complaint, when it cannot be started.
[[nodiscard]] std::optional<Process> start(const std::string& command, const std::vector<std::string>& attachments);

} // namespace LinuxDesktop::MailCommand
