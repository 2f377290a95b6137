#pragma once

#include <string>

namespace MenuExtension::Exif {

/// What went wrong with one photo.
struct Trouble {
    enum class Kind {
        None,
        Cancelled,
        /// errno's reason is in `error` for these.
        CannotBeOpened,
        CannotBeSaved,
        OriginalCannotBeKept,
        NoExifTool,
        TakesTooLong,
        TooMuchData,
        ExifToolCrashed,
        /// ExifTool's own words are in `words` for these.
        CannotBeRead,
        CannotBeWritten,
        /// Another program has changed it meanwhile.
        Changed,
        /// It cannot be checked that the picture stays the same.
        CannotBeChecked,
        /// The check has failed, and nothing has been changed.
        PictureDiffers,
        EditsNotKept,
        NoDate,
        /// It was saved, and what follows the picture in the file is as it was.
        HoldsMore,
        /// Its orientation is part of the picture.
        OrientationInPicture,
    };
    Kind kind = Kind::None;
    int error = 0;
    /// English.
    std::string words = {};

    [[nodiscard]] explicit operator bool() const { return kind != Kind::None; }
};

} // namespace MenuExtension::Exif
