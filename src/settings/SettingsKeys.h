#pragma once

#include <string_view>

/// Every key of the stored settings. Texts are exact and case-sensitive.
namespace SettingsKey {

// In the shared suite.

/// Array of {"title": string, "state": boolean}: the context-menu actions and whether each shows.
inline constexpr std::string_view menuArrayDic = "menuArrayDic";
/// Array of integers, 1 = on, by position in the catalogue: the older form of menuArrayDic.
inline constexpr std::string_view save14 = "save14";
/// Array of strings: paths of the folders that the extension watches.
inline constexpr std::string_view foldersArray = "foldersArray";
/// Array of integers beside foldersArray, 1 = active.
inline constexpr std::string_view foldersArraystate = "foldersArraystate";
/// Array of data: a bookmark for each folder added since the panel's last start.
inline constexpr std::string_view allBookmark = "allBookmark";
/// Array of strings: the custom folders that the extension keeps.
inline constexpr std::string_view arrCustomFoldersUrls = "arrCustomFoldersUrls";
/// Boolean: an icon beside each context-menu item.
inline constexpr std::string_view showmenuicon = "showmenuicon";
/// Boolean: the actions in a submenu.
inline constexpr std::string_view showinSubMenu = "showinSubMenu";
/// String: path of the item to be sent by mail; left by the extension, removed by the panel.
inline constexpr std::string_view mailAttachPath = "mailAttachPath";
/// Date: when the user asked for that.
inline constexpr std::string_view AttachClickedDate = "AttachClickedDate";

// In the application's own domain.

/// Its presence alone says that the first run is over.
inline constexpr std::string_view firstRun = "firstRun";

} // namespace SettingsKey

/// Keys of the dictionaries in menuArrayDic.
namespace MenuItemKey {

inline constexpr std::string_view title = "title";
inline constexpr std::string_view state = "state";

} // namespace MenuItemKey
