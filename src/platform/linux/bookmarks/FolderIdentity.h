#pragma once

#include "platform/linux/bookmarks/FileHandle.h"
#include "platform/linux/system/FileDescriptor.h"

#include <cstdint>
#include <optional>
#include <string>

namespace LinuxDesktop {

/// A point in time as files have it.
struct FileTime {
    std::int64_t seconds = 0;
    std::uint32_t nanoseconds = 0;

    friend bool operator==(const FileTime&, const FileTime&) = default;
};

/// What tells a folder from every other, wherever it lies.
struct FolderIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    /// The file system's own number, which outlives a restart where the device's may not; 0 where it has none.
    std::uint64_t fileSystem = 0;
    // Not every file system has these.
    std::optional<FileTime> birth;
    std::optional<FileHandle> handle;

    /// The identity of an open folder; nothing, with errno, when it cannot be asked.
    [[nodiscard]] static std::optional<FolderIdentity> of(const FileDescriptor& folder);

    [[nodiscard]] bool sameFileSystem(const FolderIdentity& other) const;
    /// Whether both are of one folder. An inode number alone is not enough: it is used again.
    [[nodiscard]] bool sameFolder(const FolderIdentity& other) const;

    friend bool operator==(const FolderIdentity&, const FolderIdentity&) = default;
};

/// The folder at `path`, opened for nothing but asking who it is; none, with errno, when there is none.
[[nodiscard]] FileDescriptor openFolderToIdentify(const std::string& path);

/// Whether `folder` lies at `path`.
[[nodiscard]] bool isFolderAt(const FolderIdentity& folder, const std::string& path);

} // namespace LinuxDesktop
