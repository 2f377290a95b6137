#pragma once

#include <string>
#include <string_view>

namespace LinuxDesktop {

/// The path without its last part; "/" is its own parent. Looks at the text alone.
[[nodiscard]] std::string parentFolder(std::string_view path);

/// The lowest folder above `path` that can be reached.
[[nodiscard]] std::string nearestParentFolder(std::string_view path);

} // namespace LinuxDesktop
