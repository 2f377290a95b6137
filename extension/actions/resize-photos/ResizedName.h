#pragma once

#include "ResizeJob.h"

#include <optional>
#include <string>
#include <string_view>

namespace MenuExtension::Resizing {

/// Whether a pattern makes names: with "{name}" in it, and nothing that no name may have.
[[nodiscard]] bool isNamePattern(std::string_view pattern);

/// The name of a resized photo by a pattern, in which "{name}" is that of the photo without its end, "{width}" and
/// "{height}" the new size. The end that says what kind of file it is stays. Number 2 and on make others of it. No
/// longer than a name may be.
[[nodiscard]] std::string resizedName(std::string_view pattern, std::string_view photo, const Size& size,
                                      unsigned number);

} // namespace MenuExtension::Resizing
