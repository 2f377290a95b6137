#pragma once

#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/Result.h"

#include <string>
#include <string_view>

namespace LinuxDesktop {

enum class Durability {
    /// On disk, data and name both, when the call returns.
    Synchronous,
    /// On disk some time later.
    Eventual,
};

struct Replacement {
    std::string_view bytes;
    /// Not a symbolic link, or that link itself is replaced.
    std::string path;
    /// The temporary file's name is this and 16 hexadecimal digits; it lies beside `path`.
    std::string temporaryPrefix;
    Durability durability = Durability::Synchronous;
};

/// Puts a new file of mode 0600 in the place of `path` in one step: every reader sees the old file or the new one.
/// Gives the new file, open for reading. After a failure the old file is whole and no temporary is left, except
/// that a failure to make the name durable leaves the new file, whole.
[[nodiscard]] Result<FileDescriptor> replaceFile(FileOperations& files, const Replacement& replacement);

/// Removes what killed writers left beside `path`. Only for the holder of the lock that all those writers take.
void removeStaleTemporaries(FileOperations& files, const std::string& path, std::string_view temporaryPrefix);

/// Makes the names in a folder durable.
[[nodiscard]] bool syncFolder(FileOperations& files, const std::string& folder);

/// Writes all of `bytes`.
[[nodiscard]] bool writeAll(FileOperations& files, int descriptor, std::string_view bytes);

/// "WHAT PATH: REASON", with errno's reason.
[[nodiscard]] Failure systemFailure(std::string_view what, const std::string& path);

} // namespace LinuxDesktop
