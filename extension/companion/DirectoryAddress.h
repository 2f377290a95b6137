#pragma once

#include "extension/companion/ExtensionSettings.h"

#include <string>
#include <string_view>
#include <vector>

namespace MenuExtension {

/// Whether a text is the address of a file on this machine: `file:`, no other machine's name, an absolute path in
/// which percent signs encode bytes other than NUL.
[[nodiscard]] bool isFileAddress(std::string_view text);

/// The addresses of the folders, in their order.
[[nodiscard]] std::vector<std::string> addressesOf(const std::vector<Folder>& folders);

} // namespace MenuExtension
