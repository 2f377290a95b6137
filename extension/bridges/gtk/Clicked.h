#pragma once

#include "extension/bridges/gtk/Handles.h"
#include "extension/menu/Menu.h"

#include <string>
#include <vector>

namespace MenuExtension {

/// What was clicked, for as long as a menu of it may be used.
struct Clicked {
    /// Absolute, as bytes; of the folder itself where its background was clicked.
    std::vector<std::string> paths;
    bool isBackground = false;
};

/// The path of what lies in the file system; empty for everything else. Nobody is asked, and nothing waits.
[[nodiscard]] std::string localPath(GFile* file);

/// As text for the clipboard, a path a line. A name that is no text stands as the toolkits show it.
[[nodiscard]] std::string pathsAsText(const Clicked& clicked);

} // namespace MenuExtension
