#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

/// What a folder's `.hidden` says: names of items that file managers leave out, one a line, as bytes. Pure; any
/// thread.
namespace MenuExtension::HiddenList {

/// The names, as parts of `text`.
[[nodiscard]] std::set<std::string_view> namesIn(std::string_view text);

/// Whether a name can stand in a line.
[[nodiscard]] bool canHold(std::string_view name);

/// The text with the names that it lacks, each of which can stand in a line, added in their order. All else stays as
/// it is.
[[nodiscard]] std::string with(std::string_view text, const std::vector<std::string>& names);
/// The text without the lines that are one of the names. All else stays as it is.
[[nodiscard]] std::string without(std::string_view text, const std::vector<std::string>& names);

} // namespace MenuExtension::HiddenList
