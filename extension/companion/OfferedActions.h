#pragma once

#include "extension/companion/ExtensionSettings.h"
#include "extension/menu/Menu.h"
#include "extension/protocol/ActionNeeds.h"

#include <string>
#include <vector>

namespace MenuExtension {

struct OfferedActions {
    /// Those that are on and that can be done here, in the order of the menu. One that is stored twice is there once.
    std::vector<MenuAction> actions;
    /// What keeps others, which are on, from being done.
    std::vector<ActionNeed> missing;
};

/// Offers what the file manager does itself, and what has its program in `programs` and all that this needs.
[[nodiscard]] OfferedActions offeredActions(const std::vector<MenuItem>& items, const std::string& programs);

} // namespace MenuExtension
