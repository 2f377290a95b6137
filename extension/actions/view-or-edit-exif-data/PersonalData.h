#pragma once

#include "Tags.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What a photo's file tells about people and places.
namespace MenuExtension::Exif::PersonalData {

enum class Kind { Place, People, Camera, MakerNotes };

/// What goes together.
struct Entry {
    Kind kind;
    /// Of the tags, as matches() takes it.
    std::string_view key;
    /// As ExifTool takes what is to be removed.
    std::string_view removed;
};

/// Those that a file has.
[[nodiscard]] std::vector<const Entry*> entriesIn(const Tags& tags);

/// The kind that a tag goes with; nothing for one that stays.
[[nodiscard]] std::optional<Kind> kindOf(const Tag& tag);

} // namespace MenuExtension::Exif::PersonalData
