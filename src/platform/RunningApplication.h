#pragma once

#include "platform/Application.h"

#include <optional>
#include <string>

namespace NS {

/// A program that runs on the desktop.
struct RunningApplication {
    ActivationPolicy activationPolicy = ActivationPolicy::Regular;
    std::optional<std::string> bundleIdentifier;
};

} // namespace NS
