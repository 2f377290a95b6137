#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>

namespace MenuExtension::Duplicates {

/// Which file it is and what it holds, as far as a status can tell. Names and permissions count for nothing.
struct FileState {
    dev_t device = 0;
    ino_t inode = 0;
    std::int64_t size = 0;
    /// Nanoseconds since 1970; of a time that they do not reach, the last that they do.
    std::int64_t modified = 0;

    [[nodiscard]] static FileState of(const struct stat& status)
    {
        constexpr std::int64_t second = 1'000'000'000;
        constexpr std::int64_t furthest = std::numeric_limits<std::int64_t>::max() / second - 1;
        return {status.st_dev, status.st_ino, status.st_size,
                std::clamp<std::int64_t>(status.st_mtim.tv_sec, -furthest, furthest) * second +
                    status.st_mtim.tv_nsec};
    }
    [[nodiscard]] bool isSameFile(const FileState& other) const
    {
        return device == other.device && inode == other.inode;
    }
    friend bool operator==(const FileState&, const FileState&) = default;
};

/// One of the files of a group.
struct Item {
    /// Absolute, as bytes.
    std::string path;
    /// As it was when the file was read.
    FileState state;
    /// A number that only the finder understands: what its columns and its rule go by.
    std::uint64_t detail = 0;
};

} // namespace MenuExtension::Duplicates
