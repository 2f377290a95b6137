#pragma once

#include "extension/protocol/Outcome.h"

namespace MenuExtension {

/// Starts the control panel, which brings one that runs already to the front: the one that was installed with this
/// program, else the first in PATH.
[[nodiscard]] Outcome startPanel();

} // namespace MenuExtension
