#pragma once

#include <string>

namespace LinuxDesktop {

class SessionBus;

/// Opens an address with the program that the user has for it: by the desktop's portal, or by xdg-open where that is
/// not there or could not. False when neither could, or the user said no. The portal has three seconds to take the
/// address and either has one more to answer; whoever still runs then, or asks the user, counts as having opened it.
/// Does not handle the user's input meanwhile. Main thread.
[[nodiscard]] bool openAddress(SessionBus& bus, const std::string& address);

/// Starts the program at a path, and does not wait for it; false when it cannot be started. Main thread.
[[nodiscard]] bool startProgram(const std::string& path);

} // namespace LinuxDesktop
