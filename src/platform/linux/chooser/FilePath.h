#pragma once

#include <string>
#include <string_view>

namespace LinuxDesktop {

// Paths as the file system has them: bytes, absolute, in one form (see normalizedPath). Symbolic links are never
// resolved. Any thread.

/// The path made absolute, without ".", "..", doubled slashes and a slash at the end.
[[nodiscard]] std::string normalizedPath(std::string_view path);
/// The last name of a normalized path; empty for the root.
[[nodiscard]] std::string fileName(const std::string& path);
[[nodiscard]] std::string pathInFolder(const std::string& folder, std::string_view name);

/// Whether something is there, links followed.
[[nodiscard]] bool exists(const std::string& path);
/// Whether a folder is there, links followed.
[[nodiscard]] bool isFolder(const std::string& path);
/// errno's value where the system does not say whether something is there; 0 where it does.
[[nodiscard]] int lookupError(const std::string& path);
/// The path if it is a folder, else the nearest of its ancestors that is.
[[nodiscard]] std::string nearestFolder(const std::string& path);
[[nodiscard]] std::string homeFolder();

} // namespace LinuxDesktop
