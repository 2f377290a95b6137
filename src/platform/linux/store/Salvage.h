#pragma once

#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/Result.h"
#include "platform/linux/store/Snapshot.h"

#include <string>

namespace LinuxDesktop {

/// Gives a settings file, which is about to be replaced, the further name SETTINGS.corrupt-TIME, or where that is not
/// possible makes a copy of that name, durably; one that has got it already keeps it. At most five are kept, so the
/// oldest of the earlier ones may go. `target` is where the symbolic links at `settings` lead. Gives the new path.
/// For the holder of the domain's lock.
[[nodiscard]] Result<std::string> keepFile(FileOperations& files, const std::string& settings,
                                           const std::string& target, const Snapshot& found);

} // namespace LinuxDesktop
