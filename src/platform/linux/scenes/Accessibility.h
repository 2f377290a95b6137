#pragma once

namespace LinuxDesktop {

/// Tells assistive programs what a list and its rows are. Call once, before the first window.
void installAccessibility();

} // namespace LinuxDesktop
