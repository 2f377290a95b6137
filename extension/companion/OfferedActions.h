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
    /// What these need, and others that are on and that cannot be done for lack of it.
    std::vector<ActionNeed> needs;
};

/// Offers what the file manager does itself, and what has its program in `programs` and all that this needs.
[[nodiscard]] OfferedActions offeredActions(const std::vector<MenuItem>& items, const std::string& programs);

} // namespace MenuExtension
