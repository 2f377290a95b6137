#pragma once

#include "settings/Deployment.h"

#include <algorithm>
#include <string>

/// What the companion and the panel call each other on the session bus.
namespace MenuExtension::BusNames {

/// The panel.
inline const std::string panel{Deployment::applicationIdentifier};

/// Where the panel publishes the folders to watch: a signal and a property of one `as` each, `file:` addresses.
inline constexpr const char* panelPath = "/com/orvikstudio/FinderSync";
inline constexpr const char* panelInterface = "com.orvikstudio.FinderSync";
inline constexpr const char* directoriesSignal = "DirectoryURLs";
inline constexpr const char* directoriesProperty = "directoryURLs";

/// The companion.
inline const std::string companion{Deployment::extensionIdentifier};
inline constexpr const char* companionInterface = "com.orvikstudio.FinderSyncExtension";
/// Its object: the path that its name makes.
inline const std::string companionPath = [] {
    std::string path = '/' + companion;
    std::ranges::replace(path, '.', '/');
    std::ranges::replace(path, '-', '_');
    return path;
}();

} // namespace MenuExtension::BusNames
