#pragma once

#include <QUrl>

#include <optional>
#include <string>

namespace DolphinBridge {

/// The path of a local file, byte for byte; nothing where `address` is of no local file, or does not say which bytes
/// its path has.
[[nodiscard]] std::optional<std::string> pathOf(const QUrl& address);

} // namespace DolphinBridge
