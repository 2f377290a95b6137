#pragma once

#include "extension/menu/Scope.h"
#include "platform/Value.h"
#include "settings/Settings.h"

#include <string>
#include <vector>

namespace MenuExtension {

/// An action of the context menu, and whether it shows.
struct MenuItem {
    std::string title;
    bool state = false;
    friend bool operator==(const MenuItem&, const MenuItem&) = default;
};

/// What the shared suite says to the companion.
struct ExtensionSettings {
    std::vector<MenuItem> menuItems;
    std::vector<Folder> folders;
    std::vector<std::string> customFolders;
    bool showMenuIcon = Settings::showmenuicon.initially;
    bool showInSubmenu = Settings::showinSubMenu.initially;
    friend bool operator==(const ExtensionSettings&, const ExtensionSettings&) = default;
};

/// Reads the suite's values. Anyone may have written them, so one of the wrong kind, or an element of the wrong kind
/// in an array, counts as though it were not there.
[[nodiscard]] ExtensionSettings settingsFromSuite(const NS::Value::Dictionary& suite);

} // namespace MenuExtension
