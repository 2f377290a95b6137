#pragma once

#include "platform/Date.h"

#include <optional>
#include <string>
#include <string_view>

namespace LinuxDesktop::DateText {

/// The moment that a property list's text names ("2024-02-29T23:59:59Z", proleptic Gregorian, UTC). The year may
/// be zero, negative or longer than four digits; smaller units may be left out from the right; a fraction of a
/// second is read to the nanosecond. Nothing for every other text.
[[nodiscard]] std::optional<NS::Date> parse(std::string_view text);

/// The text of a moment; its fraction, if any, with as many digits as parse() needs to read the same moment.
/// Nothing when the moment is not finite or its year does not fit 32 bits.
[[nodiscard]] std::optional<std::string> format(NS::Date date);

} // namespace LinuxDesktop::DateText
