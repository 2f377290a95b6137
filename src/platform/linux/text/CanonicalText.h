#pragma once

#include <string_view>

namespace LinuxDesktop {

/// Whether two texts are the same under Unicode's canonical equivalence (https://www.unicode.org/reports/tr15/). What
/// is not UTF-8 is equivalent to nothing but itself. Any thread.
[[nodiscard]] bool canonicallyEqual(std::string_view one, std::string_view other);

} // namespace LinuxDesktop
