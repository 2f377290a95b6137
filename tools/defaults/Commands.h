#pragma once

#include "platform/linux/store/Store.h"

#include <span>
#include <string>

namespace DefaultsTool {

enum class ExitStatus {
    Success = 0,
    /// No such domain or key, or it could not be read or stored.
    Failed = 1,
    /// Wrong usage or a bad value. Nothing was changed.
    Usage = 2,
};

/// What one run of the program comes to.
struct Outcome {
    ExitStatus status = ExitStatus::Success;
    /// For standard output.
    std::string output;
    /// For standard error: lines without their ends. The first is about what went wrong.
    std::string message;
};

/// Carries out a command line, without the program's name.
[[nodiscard]] Outcome run(LinuxDesktop::Store& store, std::span<const std::string> arguments);

} // namespace DefaultsTool
