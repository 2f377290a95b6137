#pragma once

#include <string>

namespace MenuExtension {

/// Writes one line on standard error: the program's name and `what`.
void complain(const std::string& what);

} // namespace MenuExtension
