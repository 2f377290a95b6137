#pragma once

#include "platform/linux/bookmarks/FolderIdentity.h"

#include <optional>
#include <string>

namespace LinuxDesktop {

/// Looks for a folder around the place where it was: first beside it, then ever further up and down, on its file
/// system, without following symbolic links. Nothing when it is not found among the first `mostEntries` directory
/// entries; the default number is read from memory in some tens of milliseconds. Any thread.
[[nodiscard]] std::optional<std::string> searchFolderAround(const std::string& oldPath, const FolderIdentity& folder,
                                                            int mostEntries = 10'000);

} // namespace LinuxDesktop
