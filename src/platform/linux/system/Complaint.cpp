#include "platform/linux/system/Complaint.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

namespace LinuxDesktop {

namespace {

/// A name may hold line ends and what a terminal takes for commands.
std::string printable(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 && byte != 0x7f) {
            result += c;
            continue;
        }
        std::array<char, 5> escaped{};
        std::snprintf(escaped.data(), escaped.size(), "\\x%02x", byte);
        result += escaped.data();
    }
    return result;
}

} // namespace

void complain(std::string_view what)
{
    const std::string line = std::string(program_invocation_short_name) + ": " + printable(what) + "\n";
    std::fputs(line.c_str(), stderr);
}

void complain(std::string_view what, std::string_view path, std::string_view why)
{
    complain(std::string(what) + " \"" + std::string(path) + "\": " + std::string(why));
}

void complain(std::string_view what, std::string_view path, int error)
{
    complain(what, path, std::generic_category().message(error));
}

} // namespace LinuxDesktop
