#pragma once

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
    std::int64_t size = 0; // bytes; of files only
    std::time_t modified = 0;

    friend bool operator==(const FileEntry&, const FileEntry&) = default;
};

/// What a folder holds, in no order.
struct FolderListing {
    std::vector<FileEntry> entries;
    int error = 0; // errno's value where the folder could not be read to its end
};

enum class HiddenFiles { Left, Listed };

/// Reads the folder once. `revealed` is listed even if it is hidden. Any thread.
[[nodiscard]] FolderListing readFolder(const std::string& folder, HiddenFiles hidden,
                                       const std::string& revealed = {});

} // namespace LinuxDesktop
