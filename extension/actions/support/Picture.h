#pragma once

#include "extension/actions/support/Request.h"

#include <string_view>

namespace MenuExtension {

/// Whether a file begins as those of a format for pictures do.
[[nodiscard]] bool beginsAsPicture(std::string_view beginning);

/// Opens an item for reading where it is an ordinary file; nothing, with errno, for all else. As openItem().
[[nodiscard]] LinuxDesktop::FileDescriptor openFile(const Request& request, std::string_view path);

/// Whether an item is a file with a picture, by what it holds.
[[nodiscard]] bool isPicture(const Request& request, std::string_view path);

} // namespace MenuExtension
