#pragma once

namespace LinuxDesktop {

/// Tells assistive programs what our own widgets are: a list and its rows, a grid and its cards. Call once, before
/// the first window.
void installAccessibility();

} // namespace LinuxDesktop
