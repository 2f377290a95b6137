#pragma once

#include "platform/Value.h"

#include <string>

namespace DefaultsTool {

/// A value for a person, or for a script that wants one value: strings as they are, booleans as 1 and 0, dates as
/// "2024-02-29 23:59:59 +0000", data as <hexadecimal digits>. Arrays and dictionaries stretch over lines, with
/// the strings inside them in quotes where they would be ambiguous. No line end at the end.
[[nodiscard]] std::string readableText(const NS::Value& value);

} // namespace DefaultsTool
