#pragma once

#include "extension/bridges/gtk/Clicked.h"

#include <gio/gio.h>
#include <string>

namespace MenuExtension {

/// Asks the companion to do an action; nobody waits for the answer. With the token what the action opens may come to
/// the front; empty where there is none.
void callRun(GDBusConnection& connection, const std::string& action, const Clicked& clicked,
             const std::string& token);

} // namespace MenuExtension
