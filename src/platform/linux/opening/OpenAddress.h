#pragma once

#include <string>

namespace LinuxDesktop {

class SessionBus;

/// Opens an address with the program that the user has for it, by the desktop's portal or else by xdg-open. False
/// when that is known to have failed: the answer is waited for up to one second, without handling the user's input.
/// Main thread.
[[nodiscard]] bool openAddress(SessionBus& bus, const std::string& address);

/// Starts the program at a path, and does not wait for it; false when it cannot be started. Main thread.
[[nodiscard]] bool startProgram(const std::string& path);

} // namespace LinuxDesktop
