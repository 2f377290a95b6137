#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Reals as text. Pure functions; any thread, and the process's locale has no say.
namespace LinuxDesktop::RealText {

/// Any decimal form, "nan", "inf" or "infinity", the words in any case. Zero or infinity for a number that a double
/// cannot hold; nothing for every other text.
[[nodiscard]] std::optional<double> parse(std::string_view text);

/// The shortest text from which parse() gives the same number; "nan", "+infinity" and "-infinity" for the others.
[[nodiscard]] std::string format(double real);

} // namespace LinuxDesktop::RealText
