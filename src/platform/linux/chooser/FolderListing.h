#pragma once

#include "platform/linux/chooser/Mounts.h"

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <string>
#include <vector>

namespace LinuxDesktop {

/// One item of a folder. A symbolic link has the kind, size and time of what it leads to.
struct FileEntry {
    enum class Kind { Folder, File, BrokenLink };

    std::string name; // bytes
    Kind kind = Kind::File;
    bool isLink = false;
    std::int64_t size = 0;    // bytes; of files only
    std::time_t modified = 0; // 0 where it is not known

    friend bool operator==(const FileEntry&, const FileEntry&) = default;
};

/// What a folder holds, in no order.
struct FolderListing {
    std::vector<FileEntry> entries;
    std::size_t hidden = 0; // how many were left out
    int error = 0;          // errno's value where the folder could not be read to its end
};

enum class HiddenFiles { Left, Listed };

/// Reads the folder once. `revealed` is listed even if it is hidden. What the folder has of network shares is listed
/// by name alone, since a server that is gone would hold up all others. Any thread.
[[nodiscard]] FolderListing readFolder(const std::string& folder, HiddenFiles hidden,
                                       const std::string& revealed = {},
                                       const std::vector<Mount>& mounts = LinuxDesktop::mounts());

} // namespace LinuxDesktop
