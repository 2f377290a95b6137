#pragma once

#include <string>

namespace LinuxDesktop {

/// Packs the folder, under `name`, into a new file at `archive` that only the user can read. Names are kept as
/// bytes (marked as UTF-8 where they are), empty folders are kept, symbolic links are stored as links. What cannot
/// be read, or is neither file, folder nor link, is left out with a complaint.
/// False, with a complaint and no file, when the folder itself cannot be read, a file breaks off while it is read,
/// or the archive cannot be written.
/// Takes as long as it takes; any thread.
[[nodiscard]] bool zipFolder(const std::string& folder, const std::string& name, const std::string& archive);

} // namespace LinuxDesktop
