#pragma once

#include <string>
#include <string_view>

namespace LinuxDesktop {

/// Whether the bytes are text in UTF-8, as everything on the bus must be.
[[nodiscard]] bool isUtf8(std::string_view bytes);

/// Whether a file at `path` reaches the mail program through xdg-email. That is a shell script which echoes and
/// splits what it is given: a line end or a backslash changes on the way, a comma ends the name for mail programs
/// that take a list, and bytes that are not UTF-8 are no text to any of them.
[[nodiscard]] bool isMailablePath(std::string_view path);

/// `name` with everything replaced that keeps a path from being mailable, followed by `suffix`, and short enough
/// for a file's name.
[[nodiscard]] std::string mailableName(std::string_view name, std::string_view suffix = {});

} // namespace LinuxDesktop
