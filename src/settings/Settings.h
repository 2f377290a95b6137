#pragma once

#include "settings/Setting.h"

/// Every stored setting, a row each. Keys are exact and case-sensitive.
namespace Settings {

// In the shared suite.

/// The context-menu actions and whether each shows: MenuItemSettings.
inline constexpr ListSetting<NS::Value::Dictionary> menuArrayDic{"menuArrayDic", Decode::dictionary};
/// The older form of menuArrayDic: 1 = on, by position in the catalogue.
inline constexpr ListSetting<std::int64_t> save14{"save14", Decode::flag};
/// Paths of the folders that the extension watches.
inline constexpr ListSetting<std::string> foldersArray{"foldersArray", Decode::text};
/// Beside foldersArray, 1 = active.
inline constexpr ListSetting<std::int64_t> foldersArraystate{"foldersArraystate", Decode::flag};
/// A bookmark for each folder added since the panel's last start.
inline constexpr ListSetting<NS::Data> allBookmark{"allBookmark", Decode::data};
/// Paths of the custom folders that the extension keeps.
inline constexpr ListSetting<std::string> arrCustomFoldersUrls{"arrCustomFoldersUrls", Decode::text};
/// An icon beside each context-menu item.
inline constexpr Switch showmenuicon{{"showmenuicon", Decode::boolean}, true};
/// The actions in a submenu.
inline constexpr Switch showinSubMenu{{"showinSubMenu", Decode::boolean}, false};
/// Path of the item to be sent by mail; left by the extension, removed by the panel.
inline constexpr Setting<std::string> mailAttachPath{"mailAttachPath", Decode::text};
/// When the user asked for that.
inline constexpr Setting<NS::Date> AttachClickedDate{"AttachClickedDate", Decode::date};

// In the application's own domain.

/// Its presence alone says that the first run is over.
inline constexpr Setting<bool> firstRun{"firstRun", Decode::boolean};

} // namespace Settings

/// The entries of a dictionary in menuArrayDic.
namespace MenuItemSettings {

/// The action's title, which is its identity.
inline constexpr Setting<std::string> title{"title", Decode::text};
inline constexpr Switch state{{"state", Decode::boolean}, false};

} // namespace MenuItemSettings
