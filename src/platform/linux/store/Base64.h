#pragma once

#include "platform/Value.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace LinuxDesktop::Base64 {

/// Appends the text of the bytes, padded, in one line.
void append(std::string& text, std::span<const std::uint8_t> bytes);

/// The bytes of a text with white space anywhere; padding may be missing at its end. Nothing when the text is
/// not base64.
[[nodiscard]] std::optional<NS::Data> decode(std::string_view text);

} // namespace LinuxDesktop::Base64
