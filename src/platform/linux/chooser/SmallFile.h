#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace LinuxDesktop {

/// What is in a regular file, up to `limit` bytes; nothing where it cannot be read. Does not wait for the other end
/// of a pipe. Any thread.
[[nodiscard]] std::optional<std::string> readSmallFile(const std::string& path, std::size_t limit);

} // namespace LinuxDesktop
