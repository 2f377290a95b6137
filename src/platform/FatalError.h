#pragma once

#include <string_view>

namespace NS {

/// Ends the process: one line, "PROGRAM: fatal error: WHAT", on standard error, then abort().
/// For states that should be impossible, and for nothing else. Any thread.
[[noreturn]] void fatalError(std::string_view what);

/// Has fatalError() call `lastWords` between the line and the end, with what the line says, at the first fatal error
/// and no other; what it does must not take long. Any thread.
void setLastWords(void (*lastWords)(std::string_view what));

} // namespace NS
