#pragma once

#include <string>

namespace LinuxDesktop {

class SessionBus;

/// Opens an address with the program that the user has for it: by the desktop's portal, or by xdg-open where that is
/// not there or could not. False when neither could, or the user said no. The portal has three seconds to take the
/// address and one to open it; then the user, whom it may be asking, is handled until it answers. A program that
/// xdg-open started and that runs for one second has opened the address. Main thread.
[[nodiscard]] bool openAddress(SessionBus& bus, const std::string& address);

/// Starts the program at a path, and does not wait for it; false when it cannot be started. Main thread.
[[nodiscard]] bool startProgram(const std::string& path);

} // namespace LinuxDesktop
