#pragma once

#include "PhotoTime.h"
#include "Tags.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace MenuExtension::Exif {

/// What a person can change about a photo.
enum class Field { Title, Description, Author, Copyright, Date, Orientation, Place };

/// A place where a field is stored.
struct Store {
    /// "GROUP:NAME", as ExifTool prints it.
    std::string_view key;
    /// As ExifTool takes it.
    std::string_view written;
    /// False for one that is kept in step where it is there already.
    bool always;
    /// Whether each of several values is one of its own there.
    bool isList = false;
};

/// Where a field is stored, the one that counts first. A place is more than a text, and has none.
[[nodiscard]] std::span<const Store> storesOf(Field field);

/// The stored text; empty where there is none. Of Place and Orientation the functions below say more.
[[nodiscard]] std::string textOf(Field field, const Tags& tags);

/// From 1 to 8 as the Exif standard counts; nothing where it is not stored.
[[nodiscard]] std::optional<int> orientationOf(const Tags& tags);

/// In degrees; north and east are positive.
struct Place {
    double latitude = 0;
    double longitude = 0;
};
[[nodiscard]] std::optional<Place> placeOf(const Tags& tags);
/// As the cameras' receivers and maps have it: the same place to a millionth of a degree.
[[nodiscard]] bool isSame(const std::optional<Place>& one, const std::optional<Place>& other);
/// Reads "48.5, -2.25"; nothing for what is no place on earth.
[[nodiscard]] std::optional<Place> placeFrom(std::string_view text);
[[nodiscard]] std::string textOf(const Place& place);
/// To a millionth of a degree, with a point in every locale.
[[nodiscard]] std::string degreesText(double degrees);

} // namespace MenuExtension::Exif
