#pragma once

#include "extension/filemanagers/FileManagers.h"
#include "extension/filemanagers/Places.h"

#include <optional>

namespace MenuExtension {

/// The files of a file manager's program, links resolved: several where a wrapper comes first in PATH. Empty where it
/// is not installed.
[[nodiscard]] std::vector<std::string> programsOf(const FileManager& manager, const Places& places);

/// The bridge's file, links resolved, in a folder that one of those programs reads.
[[nodiscard]] std::optional<std::string> bridgeOf(const FileManager& manager,
                                                  const std::vector<std::string>& programs, const Places& places);

} // namespace MenuExtension
