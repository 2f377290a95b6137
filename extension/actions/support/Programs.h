#pragma once

#include "extension/actions/support/Request.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// Other programs, each by its name in PATH or its path, and its arguments. Never through a shell.
namespace MenuExtension::Programs {

using CommandLine = std::vector<std::string>;

/// Starts a program that goes on after this one. False where there is none of that name, and where it fails at once.
[[nodiscard]] bool start(const CommandLine& command);
/// The same in a folder, which stays the one that was opened, whatever is at its path by now.
[[nodiscard]] bool startIn(const OpenedFolder& folder, const CommandLine& command);

/// Runs a program to its end, which must come within seconds. True where that was a good one.
[[nodiscard]] bool run(const CommandLine& command);
/// What a program prints until its end, the line's end left out; nothing where it fails.
[[nodiscard]] std::optional<std::string> outputOf(const CommandLine& command);

/// The folder of the programs that users start, by where this one lies; empty where that is not known.
[[nodiscard]] std::filesystem::path folder();

} // namespace MenuExtension::Programs
