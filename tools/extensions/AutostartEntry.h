#pragma once

#include "extensions/Extension.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace ExtensionsTool {

/// Where desktop entries of programs that start at log-in lie.
struct AutostartFolders {
    /// The user's own, which comes before the others.
    QString own;
    QStringList systemWide;
};

/// Those that the environment names.
[[nodiscard]] AutostartFolders autostartFolders();

/// The desktop entry that starts an extension at log-in. Every question looks at the files.
class AutostartEntry {
public:
    AutostartEntry(AutostartFolders folders, Extension extension);

    /// Whether the extension starts at log-in.
    [[nodiscard]] bool isOn() const;
    /// Writes the user's entry anew, in the place of whatever has its name; only a folder is in the way. Why that
    /// failed, in a sentence, and then nothing has changed.
    [[nodiscard]] std::optional<QString> switchOn();
    /// Removes the user's entry, or hides a system-wide one. As above.
    [[nodiscard]] std::optional<QString> switchOff();

    /// The user's entry, whether it exists or not.
    [[nodiscard]] QString path() const;

private:
    [[nodiscard]] bool isSystemWide() const;
    [[nodiscard]] std::optional<QString> write(const QString& entry) const;

    AutostartFolders m_folders;
    Extension m_extension;
};

} // namespace ExtensionsTool
