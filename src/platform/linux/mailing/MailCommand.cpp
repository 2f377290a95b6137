#include "platform/linux/mailing/MailCommand.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace LinuxDesktop::MailCommand {

namespace {

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::vector<std::string> commandLine(const std::vector<std::string>& attachments)
{
    std::vector<std::string> arguments{name};
    // It would convert from the locale's encoding else, whatever the names are in.
    if (!std::all_of(attachments.begin(), attachments.end(), isAscii))
        arguments.emplace_back("--utf8");
    for (const auto& attachment : attachments) {
        arguments.emplace_back("--attach");
        arguments.push_back(attachment);
    }
    return arguments;
}

} // namespace

std::optional<Command::Process> start(const std::string& command, const std::vector<std::string>& attachments)
{
    auto environment = Command::environmentWithoutBrowser();
    // Empty means the same as unset, but the script's own LC_ALL=C reaches its awk only when the variable is there:
    // without it awk may count characters where the script counts on bytes.
    if (!std::getenv("LC_ALL"))
        environment.emplace_back("LC_ALL=");
    return Command::start(command, commandLine(attachments), std::move(environment));
}

} // namespace LinuxDesktop::MailCommand
