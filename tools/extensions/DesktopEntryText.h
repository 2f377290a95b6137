#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The text of desktop entries: files of `Key=Value` lines in groups. Pure functions.
namespace ExtensionsTool::DesktopEntryText {

/// A text as the value of a key.
[[nodiscard]] QString escaped(const QString& text);
/// The value of the key Exec that runs `program`, an absolute path, without arguments.
[[nodiscard]] QString commandOf(const QString& program);

/// A key's value in the group "Desktop Entry", still escaped; nothing where it is not there.
[[nodiscard]] std::optional<QString> value(const QByteArray& entry, const QString& key);

} // namespace ExtensionsTool::DesktopEntryText
