#pragma once

#include <string>

namespace MenuExtension {

/// The folder with the actions' programs, for a program that was installed or built beside those that users start.
[[nodiscard]] std::string folderOfActions();

} // namespace MenuExtension
