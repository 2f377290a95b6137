#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>

namespace LinuxDesktop {

/// Differs when another file is at a path than before, or a file with other content. Of a folder it says only which
/// one it is.
struct FileStamp {
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    std::int64_t modifiedSeconds = 0;
    std::int64_t modifiedNanoseconds = 0;
    std::int64_t changedSeconds = 0;
    std::int64_t changedNanoseconds = 0;

    /// Of what the path leads to; nothing when that is nothing.
    [[nodiscard]] static std::optional<FileStamp> of(const std::string& path)
    {
        struct stat status = {};
        if (::stat(path.c_str(), &status) != 0)
            return std::nullopt;
        if (S_ISDIR(status.st_mode))
            return FileStamp{status.st_dev, status.st_ino};
        return FileStamp{status.st_dev,          status.st_ino,         status.st_size,        status.st_mtim.tv_sec,
                         status.st_mtim.tv_nsec, status.st_ctim.tv_sec, status.st_ctim.tv_nsec};
    }

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

} // namespace LinuxDesktop
