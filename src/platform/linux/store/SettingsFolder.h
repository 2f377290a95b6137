#pragma once

#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/Result.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace LinuxDesktop {

/// Where this process's settings files lie: $XDG_CONFIG_HOME/orvik-menu, in ~/.config where the variable is unset,
/// empty or relative. Nothing when no home folder is known. An absolute path.
[[nodiscard]] std::optional<std::string> settingsFolder();

/// Whether a text can name a domain: not empty, no slash or NUL, neither "." nor "..".
[[nodiscard]] bool isDomainName(std::string_view text);

/// DOMAIN.plist in `folder`.
[[nodiscard]] std::string settingsPath(const std::string& folder, std::string_view domain);

/// The domains that have a file in `folder`, in the order of their text. Fails where the folder exists but cannot
/// be listed.
[[nodiscard]] Result<std::vector<std::string>> domainsIn(const std::string& folder);

/// Makes the folder and those above it, mode 0700, as far as they are missing, durably.
[[nodiscard]] std::optional<Failure> makeFolders(FileOperations& files, const std::string& folder);

} // namespace LinuxDesktop
