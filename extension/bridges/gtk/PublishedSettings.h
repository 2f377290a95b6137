#pragma once

#include "extension/menu/Menu.h"

#include <gio/gio.h>

namespace MenuExtension {

/// What the companion says the menu is made of, from its properties by name (a{sv}). Whoever owns the companion's
/// name may have written them: a property of the wrong type, of more than a menu can need, or with a name in it that
/// is none counts as though it were not there. Of an action that is listed twice the first counts. Pure.
[[nodiscard]] MenuSettings settingsFromProperties(GVariant& properties);

} // namespace MenuExtension
