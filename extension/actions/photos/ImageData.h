#pragma once

#include "ByteSource.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace MenuExtension::Exif {

/// A part of a file.
struct Extent {
    std::uint64_t offset = 0;
    std::uint64_t length = 0;
};

/// The parts of a picture's file that make the picture, in their order: not what is said of it. All lie in the file.
/// For JPEG, PNG, GIF, TIFF and what cameras write on its ground, HEIC, AVIF, JPEG XL and JPEG 2000; nothing for
/// other files, and where the file does not hold what it says.
[[nodiscard]] std::optional<std::vector<Extent>> imageData(ByteSource& file);

/// Whether something follows the picture: in a JPEG's file a second one or a film may, with data of its own.
[[nodiscard]] bool holdsMore(ByteSource& file);

/// Whether two files hold the same picture, byte by byte; nothing where imageData() does not know.
[[nodiscard]] std::optional<bool> haveSameImage(ByteSource& one, ByteSource& other);

} // namespace MenuExtension::Exif
