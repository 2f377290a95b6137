#pragma once

#include <string>

/// The running desktop's own setting.
namespace MenuExtension::DesktopWallpaper {

/// Sets the picture at a path. False where the desktop is none that is known, or refuses.
[[nodiscard]] bool set(const std::string& path);

} // namespace MenuExtension::DesktopWallpaper
