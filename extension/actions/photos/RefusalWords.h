#pragma once

#include <string>
#include <string_view>

namespace MenuExtension::Photos {

/// Why a worker, which knows no language but English, refuses a picture, in the user's language. Any thread.
[[nodiscard]] std::string refusalInWords(std::string_view refusal);

} // namespace MenuExtension::Photos
