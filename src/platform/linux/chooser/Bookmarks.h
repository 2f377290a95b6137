#pragma once

#include "platform/linux/chooser/Place.h"

#include <string>
#include <string_view>
#include <vector>

namespace LinuxDesktop {

/// The folders that the user has bookmarked in file managers and choosers of the GTK desktops. Anything may have
/// written the file; what is no bookmark of a local folder in it is passed over. Nothing is asked of the folders
/// themselves. Any thread.
[[nodiscard]] std::vector<Place> bookmarks();
/// Those in a bookmarks file's text.
[[nodiscard]] std::vector<Place> bookmarksIn(std::string_view text);

} // namespace LinuxDesktop
