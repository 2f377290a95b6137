#pragma once

#include "extension/actions/support/Request.h"
#include "extension/protocol/Outcome.h"

namespace MenuExtension::Transfers {

enum class Kind { Copy, Move };

/// What perform() of the two actions does: moves or copies the items to the request's target, or to a folder that the
/// person chooses. What takes long, or has to be asked, is shown in a window, and the end is told by the desktop.
[[nodiscard]] Outcome performTransfer(const Request& request, Kind kind);

} // namespace MenuExtension::Transfers
