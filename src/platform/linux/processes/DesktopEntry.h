#pragma once

#include "platform/Application.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace LinuxDesktop {

/// How the program of a desktop entry shows, from the entry file's text: prohibited when it counts as deleted
/// (Hidden), accessory when no menu of the current desktop has it (NoDisplay, OnlyShowIn, NotShowIn, another type
/// than Application), else regular. Nothing for a text without the group [Desktop Entry]. `currentDesktops` are the
/// names by which the desktop goes, the most important first.
[[nodiscard]] std::optional<NS::ActivationPolicy> policyOfDesktopEntry(std::string_view text,
                                                                       std::span<const std::string> currentDesktops);

} // namespace LinuxDesktop
