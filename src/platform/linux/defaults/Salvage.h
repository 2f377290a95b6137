#pragma once

#include "platform/linux/defaults/FileOperations.h"
#include "platform/linux/defaults/Result.h"
#include "platform/linux/defaults/Snapshot.h"

#include <string>

/// Damaged settings files under a name of their own, SETTINGS.corrupt-TIME. For the holder of the domain's lock.
namespace LinuxDesktop
{

/// Gives the file at `target`, which is where the symbolic links at `settings` lead, a second name or a copy, and
/// makes that durable. One that has got it already keeps it. Gives the path.
[[nodiscard]] Result<std::string> keepDamagedFile(FileOperations& files, const std::string& settings,
                                                  const std::string& target, const Snapshot& damaged);

/// Leaves the five newest, `newest` among them.
void removeOldestDamagedFiles(FileOperations& files, const std::string& settings, const std::string& newest);

} // namespace LinuxDesktop
