#pragma once

#include <string>

/// What a bridge needs of the toolkit that its host has.
namespace MenuExtension::Toolkit {

/// Puts a text on the clipboard.
void copyText(const std::string& text);

/// What lets a program that is started now come to the front; empty where there is nothing like it.
[[nodiscard]] std::string activationToken();

} // namespace MenuExtension::Toolkit
