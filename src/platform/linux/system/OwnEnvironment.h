#pragma once

#include <string_view>

/// Variables that this process has for its own libraries. What Command starts does without. Before there are other
/// threads.
namespace LinuxDesktop::OwnEnvironment {

/// Sets a variable that is not set, or empty.
void set(const char* name, const char* value);
/// Whether "NAME=VALUE" is of a variable that was set here.
[[nodiscard]] bool has(std::string_view variable);

} // namespace LinuxDesktop::OwnEnvironment
