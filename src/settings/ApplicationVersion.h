#pragma once

#include <string>

/// The program's short version string. A program installed without one is fatal. Main thread.
[[nodiscard]] std::string applicationVersion();
