#pragma once

#include <QString>

#include <string>

namespace LinuxDesktop {

/// The path that a person means by a text typed while `folder` is shown. Understands "~", paths relative to the
/// folder, file: addresses, and names as fileNameText shows them where no file has the very name. What is typed
/// need not exist. Reads folders; any thread.
[[nodiscard]] std::string pathFromTypedText(const QString& text, const std::string& folder);

} // namespace LinuxDesktop
