#pragma once

#include <string_view>

namespace LinuxDesktop {

/// Says `what` on standard error, in one line after the program's name, control characters made visible. Any thread.
void complain(std::string_view what);
/// Says what could not be done with which file, and why.
void complain(std::string_view what, std::string_view path, std::string_view why);
/// The same with an errno value for the reason.
void complain(std::string_view what, std::string_view path, int error);

} // namespace LinuxDesktop
