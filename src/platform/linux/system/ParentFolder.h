#pragma once

#include <string>
#include <string_view>

namespace LinuxDesktop {

/// An absolute path without its last part and the slashes around it; "/" is its own parent. Looks at the text alone.
[[nodiscard]] std::string parentFolder(std::string_view path);

} // namespace LinuxDesktop
