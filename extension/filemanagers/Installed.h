#pragma once

#include "extension/filemanagers/FileManagers.h"
#include "extension/filemanagers/Places.h"

#include <optional>

namespace MenuExtension {

/// The file of a file manager's program, links resolved: of those of its name the first that is no script, since a
/// process is never one of a script.
[[nodiscard]] std::optional<std::string> programOf(const FileManager& manager, const Places& places);

/// The bridge's file, links resolved, in a folder that the program reads.
[[nodiscard]] std::optional<std::string> bridgeOf(const FileManager& manager, const std::string& program);

} // namespace MenuExtension
