#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace MenuExtension {

/// What an action is asked to work on. Paths are absolute, as bytes, without a slash at the end, slashes in a row
/// and the names "." and "..".
struct ActionRequest {
    /// The items, or the one folder whose background was clicked.
    std::vector<std::string> paths;
    bool background = false;
    /// The folder to move or copy to; empty where none was given.
    std::string target;
    /// Who asks, by its unique name on the bus; empty where that is not known.
    std::string caller;
};

/// The most bytes that the paths of a request have together.
inline constexpr std::size_t longestInput = std::size_t{64} << 20U;

/// The path as a request holds it; nothing for one that could lead elsewhere than its text says, or that the system
/// would not take.
[[nodiscard]] std::optional<std::string> plainPath(std::string_view path);
/// Whether there are as many paths as a request has.
[[nodiscard]] bool isWhole(const ActionRequest& request);

/// What the program of an action gets: its arguments, the name left out, and its standard input, where each path is
/// ended by a NUL.
[[nodiscard]] std::vector<std::string> argumentsOf(const ActionRequest& request);
[[nodiscard]] std::string inputOf(const ActionRequest& request);
/// The request that they make; nothing where they are none.
[[nodiscard]] std::optional<ActionRequest> requestFrom(const std::vector<std::string>& arguments,
                                                       std::string_view input);

} // namespace MenuExtension
