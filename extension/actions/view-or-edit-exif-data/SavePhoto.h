#pragma once

#include "Edits.h"
#include "TagReader.h"

namespace MenuExtension::Exif {

struct SaveOptions {
    /// The file as it was stays beside it, with "_original" after its name. One that is there already is the
    /// original, and is kept.
    bool keepsOriginal = false;
    /// Of the file: when its content was changed.
    bool keepsTime = false;
};

/// Makes edits in photos' files: writes a file beside each, checks that it says what it is to say and that the
/// picture is the same byte by byte, flushes it and lets it take the place in one step, with the permissions and the
/// extended attributes. Whatever fails or ends on the way, the photo stays as it was. What is to be made already is
/// left alone. Several at once are flushed together.
[[nodiscard]] std::vector<Trouble> savePhotos(TagReader& exifTool, std::span<const OpenedFile> photos,
                                              const Edits& edits, const SaveOptions& options,
                                              const std::stop_token& stop);

/// Removes what programs that were killed left in a folder long ago.
void removeLeftovers(const LinuxDesktop::FileDescriptor& folder);

} // namespace MenuExtension::Exif
