#pragma once

#include <QString>

#include <string_view>

namespace LinuxDesktop {

/// A file's name or path as text for people, on one line: decoded as UTF-8, with a visible sign in the place of
/// every byte that is none, of control characters, and of those that reorder text. Two names may share a text,
/// so it never leads back to the file by itself. Any thread.
[[nodiscard]] QString fileNameText(std::string_view bytes);

} // namespace LinuxDesktop
