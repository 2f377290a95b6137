#pragma once

namespace LinuxDesktop {

/// Tells assistive programs what our own widgets are: a list, its rows. Call once, before the first window.
void installAccessibility();

} // namespace LinuxDesktop
