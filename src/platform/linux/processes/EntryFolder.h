#pragma once

#include "platform/linux/processes/ChangedFolders.h"

#include <string>
#include <vector>

namespace LinuxDesktop {

/// The desktop entries in a folder and in those below it.
struct EntryFolder {
    struct Entry {
        /// The way below the folder, joined by "-", without the suffix.
        std::string identifier;
        std::string path;
        /// Or something that may be one.
        bool isLink;
    };

    /// By name in each folder.
    std::vector<Entry> entries;
    /// Symbolic links that lead to a folder, or may later.
    std::vector<std::string> folderLinks;

    /// Reads the names, and has `changes` watch the folders first. A folder that links lead back into is not entered
    /// again; after a thousand folders or a hundred thousand names in all the reading ends.
    [[nodiscard]] static EntryFolder list(const std::string& folder, ChangedFolders& changes);
};

} // namespace LinuxDesktop
