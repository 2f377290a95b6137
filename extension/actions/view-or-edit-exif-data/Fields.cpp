#include "Fields.h"

#include <array>
#include <charconv>
#include <cmath>

namespace MenuExtension::Exif {

namespace {

// Without its language, XMP's default, a text would be written in the place of its translations.
constexpr std::array titleStores{
    Store{"XMP-dc:Title", "XMP-dc:Title-x-default", true},
    Store{"IPTC:ObjectName", "IPTC:ObjectName", false},
    Store{"PNG:Title", "PNG:Title", false},
    Store{"IFD0:XPTitle", "EXIF:XPTitle", false},
};
constexpr std::array descriptionStores{
    Store{"XMP-dc:Description", "XMP-dc:Description-x-default", true},
    Store{"IFD0:ImageDescription", "EXIF:ImageDescription", true},
    Store{"IPTC:Caption-Abstract", "IPTC:Caption-Abstract", false},
    Store{"PNG:Description", "PNG:Description", false},
};
constexpr std::array authorStores{
    Store{"XMP-dc:Creator", "XMP-dc:Creator", true, true}, Store{"IFD0:Artist", "EXIF:Artist", true},
    Store{"IPTC:By-line", "IPTC:By-line", false, true},    Store{"PNG:Author", "PNG:Author", false},
    Store{"IFD0:XPAuthor", "EXIF:XPAuthor", false},
};
constexpr std::array copyrightStores{
    Store{"XMP-dc:Rights", "XMP-dc:Rights-x-default", true},
    Store{"IFD0:Copyright", "EXIF:Copyright", true},
    Store{"IPTC:CopyrightNotice", "IPTC:CopyrightNotice", false},
    Store{"PNG:Copyright", "PNG:Copyright", false},
};
constexpr std::array dateStores{
    Store{"ExifIFD:DateTimeOriginal", "EXIF:DateTimeOriginal", true},
    Store{"XMP-photoshop:DateCreated", "XMP-photoshop:DateCreated", true},
    Store{"XMP-exif:DateTimeOriginal", "XMP-exif:DateTimeOriginal", false},
    Store{"ExifIFD:CreateDate", "EXIF:CreateDate", false},
    Store{"XMP-xmp:CreateDate", "XMP-xmp:CreateDate", false},
    Store{"IPTC:DateCreated", "IPTC:DateCreated", false},
    Store{"IPTC:TimeCreated", "IPTC:TimeCreated", false},
    Store{"PNG:CreationTime", "PNG:CreationTime", false},
};
constexpr std::array orientationStores{
    Store{"IFD0:Orientation", "EXIF:Orientation#", true},
    Store{"XMP-tiff:Orientation", "XMP-tiff:Orientation#", false},
};
/// The names before "Latitude" and "Longitude", with signs.
constexpr std::array<std::string_view, 2> placeStores{"Composite:GPS", "XMP-exif:GPS"};

/// What ExifTool calls them, from 1.
constexpr std::array<std::string_view, 8> orientations{
    "Horizontal (normal)",
    "Mirror horizontal",
    "Rotate 180",
    "Mirror vertical",
    "Mirror horizontal and rotate 270 CW",
    "Rotate 90 CW",
    "Mirror horizontal and rotate 90 CW",
    "Rotate 270 CW",
};

std::string_view withoutSpaces(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(" \t");
    return begin == std::string_view::npos ? "" : text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

std::optional<double> numberFrom(std::string_view text)
{
    text = withoutSpaces(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && std::isfinite(number) ? std::optional(number)
                                                                                             : std::nullopt;
}

std::optional<Place> placeFrom(std::optional<double> latitude, std::optional<double> longitude)
{
    if (!latitude || !longitude || std::abs(*latitude) > 90 || std::abs(*longitude) > 180)
        return std::nullopt;
    return Place{*latitude, *longitude};
}

} // namespace

std::span<const Store> storesOf(Field field)
{
    switch (field) {
    case Field::Title:
        return titleStores;
    case Field::Description:
        return descriptionStores;
    case Field::Author:
        return authorStores;
    case Field::Copyright:
        return copyrightStores;
    case Field::Date:
        return dateStores;
    case Field::Orientation:
        return orientationStores;
    case Field::Place:
        break;
    }
    return {};
}

std::string textOf(Field field, const Tags& tags)
{
    if (field == Field::Place) {
        const auto place = placeOf(tags);
        return place ? textOf(*place) : "";
    }
    for (const Store& store : storesOf(field)) {
        const std::string* const value = tags.find(store.key);
        if (!value || value->empty())
            continue;
        // A date and its time are two there.
        const std::string* const time = store.key == "IPTC:DateCreated" ? tags.find("IPTC:TimeCreated") : nullptr;
        return time ? *value + ' ' + *time : *value;
    }
    return {};
}

std::optional<int> orientationOf(const Tags& tags)
{
    const std::string text = textOf(Field::Orientation, tags);
    for (std::size_t index = 0; index < orientations.size(); ++index) {
        if (orientations[index] == text)
            return static_cast<int>(index) + 1;
    }
    return std::nullopt;
}

std::optional<Place> placeOf(const Tags& tags)
{
    for (const std::string_view store : placeStores) {
        const std::string* latitude = tags.find(std::string(store) + "Latitude");
        const std::string* longitude = tags.find(std::string(store) + "Longitude");
        if (latitude && longitude)
            return placeFrom(numberFrom(*latitude), numberFrom(*longitude));
    }
    return std::nullopt;
}

bool isSame(const std::optional<Place>& one, const std::optional<Place>& other)
{
    constexpr double closest = 1.5e-6;
    if (!one || !other)
        return one.has_value() == other.has_value();
    return std::abs(one->latitude - other->latitude) < closest &&
           std::abs(one->longitude - other->longitude) < closest;
}

std::optional<Place> placeFrom(std::string_view text)
{
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos)
        return std::nullopt;
    return placeFrom(numberFrom(text.substr(0, comma)), numberFrom(text.substr(comma + 1)));
}

std::string textOf(const Place& place)
{
    return degreesText(place.latitude) + ", " + degreesText(place.longitude);
}

std::string degreesText(double degrees)
{
    std::array<char, 32> text{};
    constexpr int digits = 6;
    const auto written =
        std::to_chars(text.data(), text.data() + text.size(), degrees, std::chars_format::fixed, digits);
    return {text.data(), written.ptr};
}

} // namespace MenuExtension::Exif
