#pragma once

#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/Result.h"

#include <string>
#include <string_view>

namespace LinuxDesktop {

struct Replacement {
    std::string_view bytes;
    /// Absolute. Not a symbolic link, or that link itself is replaced.
    std::string path;
    /// The temporary file's name is this and 16 hexadecimal digits; it lies beside `path`.
    std::string temporaryPrefix;
};

/// A file of mode 0600 that holds all it is to hold, on disk, and waits to take another's place. Where it never does,
/// it goes with this object.
class NewFile {
public:
    [[nodiscard]] static Result<NewFile> make(FileOperations& files, const Replacement& replacement);
    NewFile(NewFile&& other) noexcept;
    NewFile& operator=(NewFile&&) = delete;
    ~NewFile();

    /// Takes the place in one step: every reader sees the old file or this one. Gives it, open for reading.
    [[nodiscard]] Result<FileDescriptor> takePlace() &&;

private:
    NewFile(FileOperations& files, std::string path, std::string temporary, FileDescriptor file);

    FileOperations& m_files;
    std::string m_path;
    std::string m_temporary;
    FileDescriptor m_file;
};

/// Puts a new file in the place of `path`, data and name both on disk when the call returns. Gives it, open for
/// reading. After a failure the old file is whole and no temporary is left, except that a failure to make the name
/// durable leaves the new file, whole.
[[nodiscard]] Result<FileDescriptor> replaceFile(FileOperations& files, const Replacement& replacement);

/// Removes what killed writers left beside `path`; what others are writing stays.
void removeStaleTemporaries(FileOperations& files, const std::string& path, std::string_view temporaryPrefix);

/// Where the symbolic links at an absolute path lead, whether there is a file or not.
[[nodiscard]] Result<std::string> linkTarget(const std::string& path);

/// Makes the names in a folder durable.
[[nodiscard]] bool syncFolder(FileOperations& files, const std::string& folder);

/// Writes all of `bytes`.
[[nodiscard]] bool writeAll(FileOperations& files, int descriptor, std::string_view bytes);

/// "WHAT PATH: REASON", with errno's reason.
[[nodiscard]] Failure systemFailure(std::string_view what, const std::string& path);

} // namespace LinuxDesktop
