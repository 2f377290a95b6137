#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>

namespace LinuxDesktop {

/// Differs when another file is at a path than before, or a file with other content, as far as a status can tell. Of
/// a folder it says only which one it is.
struct FileStamp {
    /// Since 1970.
    struct Time {
        std::int64_t seconds = 0;
        std::int64_t nanoseconds = 0;
        friend auto operator<=>(const Time&, const Time&) = default;
    };

    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    Time modified = {};
    /// Tells of new names and permissions too.
    Time changed = {};

    [[nodiscard]] static FileStamp of(const struct stat& status)
    {
        if (S_ISDIR(status.st_mode))
            return {.device = status.st_dev, .inode = status.st_ino};
        return {status.st_dev,
                status.st_ino,
                status.st_size,
                {status.st_mtim.tv_sec, status.st_mtim.tv_nsec},
                {status.st_ctim.tv_sec, status.st_ctim.tv_nsec}};
    }
    /// Of what the path leads to; nothing when that is nothing, with errno.
    [[nodiscard]] static std::optional<FileStamp> of(const std::string& path)
    {
        struct stat status = {};
        return ::stat(path.c_str(), &status) == 0 ? std::optional(of(status)) : std::nullopt;
    }
    /// Of an open file.
    [[nodiscard]] static std::optional<FileStamp> of(int descriptor)
    {
        struct stat status = {};
        return ::fstat(descriptor, &status) == 0 ? std::optional(of(status)) : std::nullopt;
    }

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

} // namespace LinuxDesktop
