#pragma once

#include "platform/LocalizedString.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace MenuExtension {

/// A folder that items can be moved or copied to, as the menu shows it.
struct Target {
    /// Absolute, as bytes, without a slash at the end.
    std::string path;
    /// The folder's own name on one line, not longer than a menu has room for; of several with the same name with as
    /// much of the path to it as tells them apart.
    std::string title;
    /// The whole path on one line.
    std::string description;
    friend bool operator==(const Target&, const Target&) = default;
};

/// How many a menu shows at most; the rest are a choice in the file chooser away.
inline constexpr std::size_t mostTargets = 100;

/// What asks for a folder that is not among them, in English.
inline constexpr std::string_view otherFolderTitle = NS::LocalizableString("Menu", "Choose Folder…");
inline constexpr std::string_view otherFolderDescription = NS::LocalizableString("Menu", "Asks for another folder");

/// In the icon theme, of each of them.
inline constexpr const char* targetIcon = "folder";

/// Those of the first custom folders that are paths, each once. Pure. Any thread.
[[nodiscard]] std::vector<Target> targetsOf(std::span<const std::string> customFolders);

} // namespace MenuExtension
