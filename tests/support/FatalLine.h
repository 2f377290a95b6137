#pragma once

#include <string>
#include <string_view>

// Patterns for the standard error of death tests. Every text is taken literally.

/// The fatal error that says `what`, and not a character beside it.
[[nodiscard]] std::string fatalLine(std::string_view what);

/// The fatal error, with `call` as the last that was recorded before it. For a log that echoes.
[[nodiscard]] std::string fatalLineAfter(std::string_view call, std::string_view what);

/// The fatal error and the report that reportAtAbort() adds to it, alone.
[[nodiscard]] std::string fatalLineAndReport(std::string_view what, std::string_view report);
