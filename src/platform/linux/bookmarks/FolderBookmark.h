#pragma once

#include "platform/Bookmark.h"

#include <optional>
#include <string>

namespace LinuxDesktop {

/// A bookmark of the folder at `path`, which is absolute and leads to a folder now, maybe by way of symbolic links;
/// otherwise the reason in words. The same folder at the same path gives the same bytes. Any thread.
[[nodiscard]] NS::BookmarkData makeFolderBookmark(const std::string& path);

/// Where the bookmark's folder lies now: at its path; else where its file handle leads, which the system tells
/// privileged processes only; else where a bounded search around its old place finds it, on the same file system.
/// When nothing of that finds it, the old path, as long as there is a folder: one that was deleted and made anew is
/// what the user means. Otherwise nothing, as for bytes that makeFolderBookmark does not make. May read some thousand
/// directory entries. Any thread.
[[nodiscard]] std::optional<std::string> resolveFolderBookmark(const NS::Data& bookmark);

} // namespace LinuxDesktop
