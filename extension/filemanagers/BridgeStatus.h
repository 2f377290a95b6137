#pragma once

#include "extension/filemanagers/FileManagers.h"
#include "extension/filemanagers/Places.h"

namespace MenuExtension {

/// How far the menu has come in a file manager. Where it has several processes, what comes last of theirs.
enum class BridgeStatus {
    NoFileManager,
    /// The file manager is there, and its bridge is not.
    NotInstalled,
    NotRunning,
    /// It runs, and loads modules only when there is use for them.
    LoadedLater,
    Loaded,
    NotKnown,
    NotLoaded,
    /// An older one, whose file has been replaced.
    OlderLoaded,
};

/// Whether it takes a new start of the file manager to bring the menu, as it is installed, into it.
[[nodiscard]] bool needsRestart(BridgeStatus status);

using BridgeStatuses = std::array<BridgeStatus, fileManagers.size()>;

/// Looks at how things stand, in the order of `fileManagers`. Any thread; as slow as the places are.
[[nodiscard]] BridgeStatuses bridgeStatuses(const Places& places);

} // namespace MenuExtension
