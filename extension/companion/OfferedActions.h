#pragma once

#include "extension/companion/ExtensionSettings.h"
#include "extension/menu/Menu.h"

#include <string>
#include <vector>

namespace MenuExtension {

/// The actions that are on and that can be done here, in the order of the menu: those that the file manager does
/// itself, and those whose program is in `programs`. An action that is stored twice is offered once.
[[nodiscard]] std::vector<MenuAction> offeredActions(const std::vector<MenuItem>& items, const std::string& programs);

/// The folder with the actions' programs, for a companion that was installed or built with them.
[[nodiscard]] std::string folderOfActions();

} // namespace MenuExtension
