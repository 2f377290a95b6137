#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <vector>

/// Words that the windows of a hand-off share.
namespace LinuxDesktop::MailText {

inline const QString windowTitle = QStringLiteral("Orvik Menu");

/// A file's name or path in quotation marks, cut in its middle where it is long.
[[nodiscard]] QString quoted(std::string_view name);
/// The items by the first one's name.
[[nodiscard]] QString names(const std::vector<std::string>& items);

} // namespace LinuxDesktop::MailText
