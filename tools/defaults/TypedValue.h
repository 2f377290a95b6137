#pragma once

#include "platform/Value.h"
#include "platform/linux/store/Result.h"

#include <span>
#include <string>
#include <string_view>

namespace DefaultsTool {

/// The value that a type option ("-bool", "-int", "-float", "-string", "-date", "-data", "-array", "-dict" or
/// "-xml") makes of the words after it. A failure says what is wrong with them.
[[nodiscard]] LinuxDesktop::Result<NS::Value> typedValue(std::string_view type, std::span<const std::string> words);

} // namespace DefaultsTool
