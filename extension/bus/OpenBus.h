#pragma once

#include "extension/bus/Handles.h"

namespace MenuExtension {

/// A connection to the session bus that answers; nothing where there is none.
[[nodiscard]] Bus openSessionBus();

} // namespace MenuExtension
