#pragma once

#include <string_view>

namespace MenuExtension {

/// Whether the bus's library takes the text, which is UTF-8: it has not the characters that Unicode keeps for no text
/// (U+FDD0 to U+FDEF, and the last two of each plane).
[[nodiscard]] bool isForBus(std::string_view text);

} // namespace MenuExtension
