#pragma once

#include <string>
#include <sys/types.h>
#include <unistd.h>
#include <vector>

namespace MenuExtension {

/// Where programs, modules and processes are looked for.
struct Places {
    /// Those that PATH names.
    std::vector<std::string> programFolders;
    /// What the system's own programs lie below, whatever PATH says.
    std::string system = "/usr";
    std::string processes = "/proc";
    /// Whose processes count.
    uid_t user = ::geteuid();
};

/// Those of this process's environment.
[[nodiscard]] Places usualPlaces();

} // namespace MenuExtension
