#pragma once

#include "platform/linux/system/Command.h"

#include <optional>
#include <string>
#include <vector>

/// The program xdg-email, which opens a message in the user's mail program. Any thread.
namespace LinuxDesktop::MailCommand {

inline constexpr const char* name = "xdg-email";

/// Starts `command` with absolute, mailable paths to attach. Nothing, and a complaint, when it cannot be started.
[[nodiscard]] std::optional<Command::Process> start(const std::string& command,
                                                    const std::vector<std::string>& attachments);

} // namespace LinuxDesktop::MailCommand
