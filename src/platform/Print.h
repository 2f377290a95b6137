#pragma once

#include <string_view>

namespace NS {

/// Writes one line to standard output, at once. Any thread.
void print(std::string_view line);

} // namespace NS
