#pragma once

#include "platform/linux/bus/interfaces/FinderSyncExtension.h"
#include "platform/linux/bus/interfaces/FinderSyncMenu.h"
#include "platform/linux/bus/interfaces/ObjectPath.h"
#include "settings/Deployment.h"

#include <string>

namespace MenuExtension {

/// Where the companion is on the session bus.
struct CompanionAddress {
    const std::string name{Deployment::extensionIdentifier};
    const std::string path = BusInterface::objectPath(name);
    /// What it does, and what it says for menus.
    static constexpr const char* interface = BusInterface::FinderSyncExtension::interface;
    static constexpr const char* menuInterface = BusInterface::FinderSyncMenu::interface;
};

} // namespace MenuExtension
