#pragma once

#include <string_view>

namespace MenuExtension {

/// Whether the running desktop says that it is, or is built on, the one of that name, as XDG_CURRENT_DESKTOP lists
/// them; without regard to case.
[[nodiscard]] bool isDesktop(std::string_view name);

} // namespace MenuExtension
