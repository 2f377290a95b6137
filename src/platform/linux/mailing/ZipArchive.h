#pragma once

#include "platform/linux/mailing/Attaching.h"

#include <optional>
#include <string>

namespace LinuxDesktop {

/// Packs the folder, under `name`, into a new file at `archive` that only the user can read. Names are kept as
/// bytes (marked as UTF-8 where they are), empty folders are kept, symbolic links are stored as links.
/// Nothing when all of the folder is in the archive. Else there is no archive, and a failure says why, with a
/// complaint: the folder or something in it cannot be read, is neither file, folder nor link, or becomes shorter
/// while it is read; or the archive cannot be written, which goes for a disk that it would fill, too.
/// Takes as long as it takes, and ends soon when `progress` says so; any thread.
[[nodiscard]] std::optional<AttachingFailure> zipFolder(const std::string& folder, const std::string& name,
                                                        const std::string& archive, AttachingProgress& progress);

} // namespace LinuxDesktop
