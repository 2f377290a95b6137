#pragma once

#include "extension/protocol/ActionNeeds.h"

#include <QString>

#include <string>
#include <vector>

namespace ExtensionsTool {

/// An action that the menu cannot have, and what it needs for that.
struct LackingAction {
    QString title;
    std::vector<MenuExtension::ActionNeed> needs;

    friend bool operator==(const LackingAction&, const LackingAction&) = default;
};

/// Of the actions whose programs are in that folder, in the catalogue's order.
[[nodiscard]] std::vector<LackingAction> lackingActions(const std::string& programs);

/// "Needs the package libvips42, which is not installed."
[[nodiscard]] QString inWords(const LackingAction& action);

} // namespace ExtensionsTool
