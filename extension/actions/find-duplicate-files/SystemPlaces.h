#pragma once

#include <string>
#include <string_view>

namespace MenuExtension {

/// Whether a folder belongs to the system or to the trash, by its absolute path.
[[nodiscard]] bool isSystemFolder(const std::string& path);
/// Whether a folder of that name may be one.
[[nodiscard]] bool mayBeSystemFolder(std::string_view name);
/// Whether a file of that name is one that file managers write for themselves.
[[nodiscard]] bool isSystemFile(std::string_view name);
/// Whether a file system holds what the kernel tells of itself and no files of anybody.
[[nodiscard]] bool isKernelFileSystem(int folder);

} // namespace MenuExtension
