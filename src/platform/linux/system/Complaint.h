#pragma once

#include <string_view>

namespace LinuxDesktop {

/// Says on standard error, in one line, what could not be done with which file, and why. Any thread.
void complain(std::string_view what, std::string_view path, std::string_view why);
/// The same with an errno value for the reason.
void complain(std::string_view what, std::string_view path, int error);

} // namespace LinuxDesktop
