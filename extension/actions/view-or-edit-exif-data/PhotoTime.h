#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace MenuExtension::Exif {

/// When a photo was taken, by the clock of its camera.
using PhotoTime = std::chrono::local_seconds;

/// Reads "2026:11:22 05:49:10", also with '-' between the parts of the date, with 'T' between date and time, and
/// with a fraction or a time zone after it, which are left out. A date alone is its midnight. Nothing for all else.
[[nodiscard]] std::optional<PhotoTime> photoTime(std::string_view text);
/// Reads what a person types: the same, with nothing after it.
[[nodiscard]] std::optional<PhotoTime> typedTime(std::string_view text);
/// As files have it.
[[nodiscard]] std::string textOf(PhotoTime time);

} // namespace MenuExtension::Exif
