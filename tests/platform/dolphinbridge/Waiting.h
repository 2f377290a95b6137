#pragma once

#include <functional>

/// Runs the event loop until `holds`, a minute at most. Whether it holds.
[[nodiscard]] bool waitUntil(const std::function<bool()>& holds);
