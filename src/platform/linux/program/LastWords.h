#pragma once

namespace LinuxDesktop {

/// What the process that had a fatal error has said, in the environment of the program that tells of it.
constexpr const char* fatalErrorVariable = "ORVIK_MENU_FATAL_ERROR";
/// Beside it, that process's identifier.
constexpr const char* fatalProcessVariable = "ORVIK_MENU_FATAL_PROCESS";

/// From now on a fatal error starts orvik-menu-problem, which lies beside this process's program and tells of it in a
/// window: where there is a display, and unless ORVIK_MENU_NO_PROBLEM_WINDOW is set. Any thread.
void startProblemWindowWhenFatal();

} // namespace LinuxDesktop
