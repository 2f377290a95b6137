#pragma once

#include "extension/bridges/gtk/Clicked.h"

#include <gio/gio.h>
#include <string>

namespace MenuExtension {

/// Asks the companion to do an action; nobody waits for the answer. The target is the folder to move or copy to, and
/// with the token what the action opens may come to the front; each is empty where there is none.
void callRun(GDBusConnection& connection, const std::string& action, const Clicked& clicked,
             const std::string& target, const std::string& token);

} // namespace MenuExtension
