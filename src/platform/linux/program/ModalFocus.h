#pragma once

namespace LinuxDesktop {

/// From here on a window that a modal one blocks passes the keyboard on to that one. Window managers see to it;
/// compositors know nothing of modal windows, and a person would type in vain. Main thread, once there is a
/// QGuiApplication.
void passFocusToModalWindows();

} // namespace LinuxDesktop
