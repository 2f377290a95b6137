#pragma once

#include <string_view>

/// Every notification that the extension posts, with its own identifier as sender object. The panel posts none.
namespace NotificationName {

/// A request to send an item by mail waits in the suite.
inline constexpr std::string_view AttachFileToMail = "AttachFileToMail";
/// The user asks for the maker's other applications.
inline constexpr std::string_view ShowUtilityKit = "ShowUtilityKit";
/// arrCustomFoldersUrls has changed.
inline constexpr std::string_view ReloadCustomFolders = "ReloadCustomFolders";

} // namespace NotificationName
