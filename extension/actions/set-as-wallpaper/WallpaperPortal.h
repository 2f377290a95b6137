#pragma once

#include "platform/linux/system/FileDescriptor.h"

/// The desktop's portal for the wallpaper.
namespace MenuExtension::WallpaperPortal {

enum class Answer {
    Set,
    /// The user was asked and did not want it.
    Cancelled,
    Failed,
    /// There is no such portal.
    Nobody,
};

/// Hands the picture, open for reading, to the portal, and waits until it has been set, which may take as long as the
/// user thinks about it.
[[nodiscard]] Answer set(const LinuxDesktop::FileDescriptor& picture);

} // namespace MenuExtension::WallpaperPortal
