#pragma once

namespace LinuxDesktop {

/// Tells assistive programs of a list's rows. Call it after installAccessibility(), before the first window.
void installListAccessibility();

} // namespace LinuxDesktop
