#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace LinuxDesktop {

// Paths as the text of file addresses: bytes that no address holds are "%" and two digits. Any thread.

[[nodiscard]] std::string percentEncoded(std::string_view path);
/// Nothing for what is not an absolute path in this form.
[[nodiscard]] std::optional<std::string> pathFromPercentEncoded(std::string_view text);

} // namespace LinuxDesktop
