#pragma once

#include "extension/filemanagers/BridgeStatus.h"

#include <QString>

namespace ExtensionsTool {

/// How things stand with the menu in a file manager.
struct FileManagerStatus {
    MenuExtension::BridgeStatus bridge = MenuExtension::BridgeStatus::NoFileManager;
    /// Whether it has been asked to close, and runs yet.
    bool isClosing = false;
    /// What went wrong when it was last to be restarted, in a sentence; empty when nothing did.
    QString trouble{};

    friend bool operator==(const FileManagerStatus&, const FileManagerStatus&) = default;
};

[[nodiscard]] QString nameOf(const MenuExtension::FileManager& manager);
[[nodiscard]] bool isInstalled(const FileManagerStatus& status);
/// Whether a person has to do something for the menu to be there.
[[nodiscard]] bool needsAttention(const FileManagerStatus& status);
/// Whether asking it to close would help.
[[nodiscard]] bool offersRestart(const MenuExtension::FileManager& manager, const FileManagerStatus& status);
/// The status in sentences.
[[nodiscard]] QString inWords(const MenuExtension::FileManager& manager, const FileManagerStatus& status);

} // namespace ExtensionsTool
