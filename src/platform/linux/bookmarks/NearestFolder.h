#pragma once

#include <string>
#include <string_view>

namespace LinuxDesktop {

/// The lowest folder above `path` that can be reached.
[[nodiscard]] std::string nearestFolderAbove(std::string_view path);

} // namespace LinuxDesktop
