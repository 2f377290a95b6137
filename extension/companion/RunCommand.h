#pragma once

#include <string>
#include <vector>

namespace MenuExtension {

/// Asks the companion that runs to do an action, and waits for it. Paths that are not absolute begin in the current
/// folder. What went wrong is said on standard error. Gives the exit status.
[[nodiscard]] int runAction(const std::string& action, const std::vector<std::string>& paths);

} // namespace MenuExtension
