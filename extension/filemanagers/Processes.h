#pragma once

#include "extension/filemanagers/Places.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace MenuExtension {

/// What the system puts after the path of a file that is there no longer.
inline constexpr std::string_view deletedMark = " (deleted)";

/// A process of the user's.
struct Process {
    std::string folder;
    /// The file of its program, also where that has another by now; empty where the system does not say.
    std::string program;
    /// What it calls itself, in 15 bytes at most.
    std::string name;
};

[[nodiscard]] std::vector<Process> processesOfUser(const Places& places);

/// The paths of the files that a process has in its memory, some with that mark. Empty for a process that has ended,
/// nothing where the system does not say.
[[nodiscard]] std::optional<std::vector<std::string>> loadedFiles(const Process& process);

} // namespace MenuExtension
