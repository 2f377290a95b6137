#pragma once

// What the host looks for in the module. Only what the build makes of this file includes it.

#include "extension/bridges/dolphin/MenuPlugin.h"

#include <KPluginFactory>

namespace DolphinBridge {

K_PLUGIN_CLASS_WITH_JSON(MenuPlugin, "orvik-menu-dolphin.json")

} // namespace DolphinBridge
