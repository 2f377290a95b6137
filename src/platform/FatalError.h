#pragma once

#include <string_view>

namespace NS {

/// Ends the process: one line, "orvik-menu: fatal error: WHAT", on standard error, then abort().
/// For states that should be impossible, and for nothing else. Any thread.
[[noreturn]] void fatalError(std::string_view what);

} // namespace NS
