#pragma once

#include <optional>
#include <string>

namespace MenuExtension {

/// Puts an item into the trash, as file managers do: the one of its file system, so nothing is copied. A link goes
/// itself. Gives what went wrong in the desktop's words, in its language; nothing where it is done. May wait for the
/// disk. Any thread.
[[nodiscard]] std::optional<std::string> moveToTrash(const std::string& path);

} // namespace MenuExtension
