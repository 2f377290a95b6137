#pragma once

#include <chrono>
#include <functional>

/// Runs the event loop until `holds`, 10 seconds at most. Whether it holds.
[[nodiscard]] bool waitUntil(const std::function<bool()>& holds);

/// Runs the event loop for that long.
void runFor(std::chrono::milliseconds time);
