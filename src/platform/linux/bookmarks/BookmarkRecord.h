#pragma once

#include "platform/Value.h"
#include "platform/linux/bookmarks/FolderIdentity.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace LinuxDesktop {

/// What a bookmark's bytes hold. In them, numbers are little-endian:
///
///     1 byte    version, 1
///     8 bytes   device
///     8 bytes   inode
///     8 bytes   file system
///     1 byte    1 where a birth time follows, else 0
///     12 bytes  birth time: seconds, nanoseconds
///     1 byte    1 where a file handle follows, else 0
///     4 bytes   the handle's type
///     1 byte    the handle's length, at most 128, then its bytes
///     2 bytes   the path's length, then its bytes
///     8 bytes   checksum of all the bytes before
struct BookmarkRecord {
    std::string path;
    FolderIdentity folder;

    friend bool operator==(const BookmarkRecord&, const BookmarkRecord&) = default;
};

/// The path is no longer than the system allows.
[[nodiscard]] NS::Data encodeBookmark(const BookmarkRecord& record);
/// Nothing for bytes that encodeBookmark does not make.
[[nodiscard]] std::optional<BookmarkRecord> decodeBookmark(std::span<const std::uint8_t> bytes);

/// The 64-bit FNV-1a hash, against damage; not against intent.
[[nodiscard]] std::uint64_t bookmarkChecksum(std::span<const std::uint8_t> bytes);

} // namespace LinuxDesktop
