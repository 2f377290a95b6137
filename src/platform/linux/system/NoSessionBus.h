#pragma once

namespace LinuxDesktop {

/// The session bus's address in the environment of a process that has none: nobody listens there, and unlike with no
/// address at all, no library of the process starts a bus.
inline constexpr const char* noSessionBus = "unix:path=/dev/null";

} // namespace LinuxDesktop
