#pragma once

#include "extension/filemanagers/BridgeStatus.h"

#include <string>

namespace MenuExtension {

enum class CompanionStatus { Running, NotRunning, NoSessionBus };

/// What `--status` prints: a line for the companion and one for each file manager, "WHAT: FACT, FACT…" in words that
/// stay the same, and under one that shows no menu what a person can do, after two spaces.
[[nodiscard]] std::string statusReport(CompanionStatus companion, const BridgeStatuses& bridges);

/// Looks, and prints that. Gives the exit status.
[[nodiscard]] int tellStatus();

} // namespace MenuExtension
