#pragma once

#include "platform/linux/bookmarks/FolderIdentity.h"

#include <optional>
#include <string>

namespace LinuxDesktop {

/// Where the folder lies that was at `oldPath`, as the kernel knows from its handle. Nothing when it is gone, and
/// whenever the kernel does not tell: it does so only to processes that may read every folder. Any thread.
[[nodiscard]] std::optional<std::string> folderByHandle(const std::string& oldPath, const FolderIdentity& folder);

} // namespace LinuxDesktop
