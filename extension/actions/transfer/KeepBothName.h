#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace MenuExtension::Transfers {

/// The name of an item that is kept beside one of the same name: "Notes 2.txt" for "Notes.txt" and the number 2. What
/// follows the last dot of a file's name stays at its end, with a packed archive's "tar" before it. The name is cut
/// between characters where it would have more than `longest` bytes.
[[nodiscard]] std::string keepBothName(std::string_view name, bool isFolder, int number, std::size_t longest);

} // namespace MenuExtension::Transfers
