#include "Edits.h"

#include "PersonalData.h"
#include "extension/actions/photos/ExifTool.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <strings.h>

namespace MenuExtension::Exif {

namespace {

constexpr std::string_view set = "=";
constexpr std::size_t lengthOfDay = std::string_view("2024:02:29").size();

/// What Exif has of a date besides the date.
constexpr std::array<std::string_view, 2> fractions{"SubSecTimeOriginal", "SubSecTimeDigitized"};
constexpr std::array<std::string_view, 2> zones{"OffsetTimeOriginal", "OffsetTimeDigitized"};

std::string assignment(std::string_view tag, std::string_view sign, std::string_view value)
{
    return '-' + std::string(tag) + std::string(sign) + escaped(value);
}

/// The authors that a text names, or the one text that it is.
std::vector<std::string> valuesIn(Field field, std::string_view text)
{
    if (field != Field::Author)
        return {std::string(text)};
    constexpr std::string_view spaces = " \t\r\n";
    std::vector<std::string> authors;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(';'), text.size());
        std::string_view author = text.substr(0, end);
        author.remove_prefix(std::min(author.find_first_not_of(spaces), author.size()));
        author = author.substr(0, author.find_last_not_of(spaces) + 1);
        if (!author.empty())
            authors.emplace_back(author);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return authors;
}

/// One for each store of the field that is always written, or is there, and there one for each author.
void assign(std::vector<std::string>& arguments, Field field, const Tags& tags, std::string_view text)
{
    const std::vector<std::string> values = valuesIn(field, text);
    std::string all;
    for (const std::string& value : values)
        all.append(all.empty() ? "" : valueSeparator).append(value);
    for (const Store& store : storesOf(field)) {
        const bool isThere = tags.find(store.key) != nullptr;
        if (!isThere && (all.empty() || !store.always))
            continue;
        for (const std::string& value : store.isList && !all.empty() ? values : std::vector{all})
            arguments.push_back(assignment(store.written, set, value));
    }
}

/// The time zone at its end; empty where there is none.
std::string_view zoneOf(std::string_view date)
{
    constexpr std::size_t length = std::string_view("+02:00").size();
    const std::string_view end = date.substr(date.size() - std::min(date.size(), length));
    if (end.size() == length && (end[0] == '+' || end[0] == '-') && end[3] == ':')
        return end;
    return date.substr(date.size() - (date.ends_with('Z') ? 1 : 0));
}

/// Each store keeps its time zone, but for a date that is removed.
void assignDate(std::vector<std::string>& arguments, const Tags& tags, const std::string& date)
{
    for (const Store& store : storesOf(Field::Date)) {
        const std::string* const value = tags.find(store.key);
        if (value || (!date.empty() && store.always))
            arguments.push_back(
                assignment(store.written, set, date.empty() || !value ? date : date + std::string(zoneOf(*value))));
    }
    const auto remove = [&](std::string_view name) {
        if (tags.find("ExifIFD:" + std::string(name)))
            arguments.push_back(assignment("EXIF:" + std::string(name), set, {}));
    };
    std::ranges::for_each(fractions, remove);
    if (date.empty())
        std::ranges::for_each(zones, remove);
}

void assignPlace(std::vector<std::string>& arguments, const Tags& tags, const std::optional<Place>& place)
{
    if (!place) {
        for (const auto* entry : PersonalData::entriesIn(tags)) {
            if (entry->kind == PersonalData::Kind::Place)
                arguments.push_back(assignment(entry->removed, set, {}));
        }
        return;
    }
    const std::string latitude = degreesText(std::abs(place->latitude));
    const std::string longitude = degreesText(std::abs(place->longitude));
    const char* const north = place->latitude < 0 ? "S" : "N";
    const char* const east = place->longitude < 0 ? "W" : "E";
    arguments.push_back(assignment("EXIF:GPSLatitude", set, latitude));
    arguments.push_back(assignment("EXIF:GPSLatitudeRef", set, north));
    arguments.push_back(assignment("EXIF:GPSLongitude", set, longitude));
    arguments.push_back(assignment("EXIF:GPSLongitudeRef", set, east));
    // What was said of another place.
    for (const std::string_view other : {"GPSAltitude", "GPSAltitudeRef", "GPSImgDirection", "GPSImgDirectionRef"}) {
        if (tags.find("GPS:" + std::string(other)))
            arguments.push_back(assignment("EXIF:" + std::string(other), set, {}));
    }
    // Some kinds of files have no other.
    if (tags.find("XMP-exif:GPSLatitude") || tags.find("GIF:GIFVersion")) {
        arguments.push_back(assignment("XMP-exif:GPSLatitude", set, latitude + north));
        arguments.push_back(assignment("XMP-exif:GPSLongitude", set, longitude + east));
    }
}

/// "DAYS HOURS:MINUTES:SECONDS" as ExifTool takes it, without its sign.
std::string durationText(std::chrono::seconds duration)
{
    const std::chrono::hh_mm_ss clock(std::chrono::abs(duration));
    return "0:0:0 " + std::to_string(clock.hours().count()) + ':' + std::to_string(clock.minutes().count()) + ':' +
           std::to_string(clock.seconds().count());
}

/// The date of a store, also where IPTC has its time, or that alone, in another tag.
std::string dateOf(const Store& store, const std::string& value, const std::string& first, const Tags& tags)
{
    if (store.key == "IPTC:TimeCreated") {
        const std::string* const day = tags.find("IPTC:DateCreated");
        return (day ? *day : first.substr(0, lengthOfDay)) + ' ' + value;
    }
    const std::string* const time = store.key == "IPTC:DateCreated" ? tags.find("IPTC:TimeCreated") : nullptr;
    return time ? value + ' ' + *time : value;
}

void shift(std::vector<std::string>& arguments, const Tags& tags, std::chrono::seconds duration)
{
    using std::chrono::days;
    const std::string first = textOf(Field::Date, tags);
    const auto firstTime = photoTime(first);
    if (!firstTime)
        return;
    const auto wholeDays = std::chrono::duration_cast<days>(duration);
    for (const Store& store : storesOf(Field::Date)) {
        const std::string* const value = tags.find(store.key);
        const std::string date = value ? dateOf(store, *value, first, tags) : "";
        const auto time = photoTime(date);
        if (!time)
            continue;
        const auto write = [&](const std::string& moved) {
            arguments.push_back(assignment(store.written, set, moved));
        };
        const bool isDay = date.size() == lengthOfDay;
        const bool isOfFirst = std::chrono::floor<days>(*firstTime) == *time;
        // A day without its time does not move by less, nor do a date and a time in two tags move together.
        if (isDay && !isOfFirst)
            write(textOf(*time + wholeDays).substr(0, lengthOfDay));
        else if (isDay && (first.size() > lengthOfDay || duration == wholeDays))
            write(textOf(*firstTime + duration).substr(0, lengthOfDay));
        else if (isDay || store.key.starts_with("IPTC:"))
            write(textOf(*time + duration) + std::string(zoneOf(*value)));
        else
            arguments.push_back(
                assignment(store.written, duration.count() < 0 ? "-=" : "+=", durationText(duration)));
    }
}

/// What IPTC has where it does not say that it is UTF-8.
bool isLatin(std::string_view text)
{
    constexpr unsigned char lastOfLatin = 0xc3;
    return std::ranges::all_of(text, [](char byte) { return static_cast<unsigned char>(byte) <= lastOfLatin; });
}

bool isAscii(std::string_view text)
{
    return std::ranges::none_of(text, [](char byte) { return (byte & 0x80) != 0; });
}

bool isIptcText(const Tag& tag)
{
    return tag.group == "IPTC" && !isAscii(tag.value);
}

/// The first character of UTF-8 text; nothing where there is none.
std::string_view firstOf(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.empty() ? 0xff : text.front());
    const std::size_t size = lead < 0x80                   ? 1
                             : lead >= 0xc2 && lead < 0xe0 ? 2
                             : lead >= 0xe0 && lead < 0xf0 ? 3
                             : lead >= 0xf0 && lead < 0xf5 ? 4
                                                           : 0;
    if (size == 0 || size > text.size())
        return {};
    const std::string_view character = text.substr(0, size);
    const auto continues = [](char byte) { return (byte & 0xc0) == 0x80; };
    return std::ranges::all_of(character.substr(1), continues) ? character : std::string_view();
}

bool isUtf8(std::string_view text)
{
    for (std::string_view first = firstOf(text); !first.empty(); first = firstOf(text))
        text.remove_prefix(first.size());
    return text.empty();
}

/// The bytes of a text that was read as Latin.
std::string latinBytes(std::string_view text)
{
    // From 0x80 to 0x9f, of which some are no characters.
    constexpr std::array<std::string_view, 32> windows{"€", "",  "‚", "ƒ", "„", "…", "†", "‡", "ˆ", "‰", "Š",
                                                       "‹", "Œ", "",  "Ž", "",  "",  "‘", "’", "“", "”", "•",
                                                       "–", "—", "˜", "™", "š", "›", "œ", "",  "ž", "Ÿ"};
    std::string bytes;
    for (std::string_view first = firstOf(text); !first.empty(); first = firstOf(text)) {
        const auto* const found = std::ranges::find(windows, first);
        const auto code = found != windows.end()    ? 0x80 + (found - windows.begin())
                          : first.front() == '\xc3' ? first.back() + 0x40
                                                    : first.back();
        bytes += static_cast<char>(code);
        text.remove_prefix(first.size());
    }
    return bytes;
}

/// Whether IPTC is UTF-8 and does not say so: ExifTool has read it as Latin then.
bool isUnmarked(const Tags& tags)
{
    bool hasText = false;
    for (const Tag& tag : tags) {
        if (isIptcText(tag) && !isUtf8(latinBytes(tag.value)))
            return false;
        hasText = hasText || isIptcText(tag);
    }
    return hasText && !tags.find("IPTC:CodedCharacterSet");
}

/// Has IPTC become UTF-8 where it is not and has to take other letters, and say so where it is. ExifTool leaves the
/// bytes of what is there.
void encode(std::vector<std::string>& arguments, const Tags& tags)
{
    const auto writes = [&](const std::string& option) {
        return std::ranges::any_of(arguments, [&](const std::string& each) { return each.starts_with(option); });
    };
    const bool lacksMark = isUnmarked(tags);
    const bool isNeeded = std::ranges::any_of(arguments, [&](const std::string& each) {
        return each.starts_with("-IPTC:") && !(lacksMark ? isAscii(each) : isLatin(each));
    });
    const std::string* const encoding = tags.find("IPTC:CodedCharacterSet");
    if (!isNeeded || (encoding && *encoding == "UTF8"))
        return;
    std::vector<std::string> anew;
    for (const Tag& tag : tags) {
        const std::string option = "-IPTC:" + tag.name;
        if (!lacksMark && isIptcText(tag) && !writes(option + '='))
            anew.push_back(option);
    }
    if (!anew.empty())
        anew.insert(anew.begin(), {"-TagsFromFile", "@"});
    arguments.insert(arguments.begin(), anew.begin(), anew.end());
    arguments.emplace_back("-IPTC:CodedCharacterSet=UTF8");
}

/// As a file gives it back: without the spaces at its end, on lines that end in one way.
std::string asRead(std::string text)
{
    std::erase(text, '\r');
    text.resize(text.find_last_not_of(" \n") + 1);
    // ExifTool prints these two as no texts, however they are written.
    for (const char* const word : {"true", "false"}) {
        if (::strcasecmp(text.c_str(), word) == 0)
            return word;
    }
    return text;
}

/// Whether it says where the photo was taken, whoever has written it and however it is removed.
bool isPosition(const Tag& tag)
{
    return std::ranges::any_of(std::array{"GPSLatitude", "GPSLongitude", "GPSPosition"},
                               [&](const char* name) { return tag.name.ends_with(name); });
}

bool isMade(Field field, const std::string& wanted, const Tags& after)
{
    if (field == Field::Date) {
        const auto time = photoTime(wanted);
        return time ? photoTime(textOf(field, after)) == time : textOf(field, after).empty();
    }
    return std::ranges::equal(valuesIn(field, textOf(field, after)), valuesIn(field, wanted), {}, asRead, asRead);
}

} // namespace

std::vector<std::string> keysFor(const Edits& edits)
{
    std::vector<std::string> keys;
    if (edits.place || edits.removesPersonalData)
        return keys;
    const auto add = [&](Field field) {
        for (const Store& store : storesOf(field))
            keys.emplace_back(store.key);
    };
    for (const auto& text : edits.texts)
        add(text.first);
    if (edits.shift.count() != 0)
        add(Field::Date);
    if (edits.orientation)
        add(Field::Orientation);
    if (edits.texts.contains(Field::Date)) {
        for (const auto& names : {fractions, zones}) {
            for (const std::string_view name : names)
                keys.push_back("ExifIFD:" + std::string(name));
        }
    }
    // What may have to be written anew, or to say what it is.
    if (std::ranges::any_of(edits.texts, [](const auto& text) { return !isAscii(text.second); }))
        keys.emplace_back("IPTC:all");
    return keys;
}

std::vector<std::string> argumentsFor(const Edits& edits, const Tags& tags)
{
    std::vector<std::string> arguments;
    // What goes is said first, so that what is written with it stays.
    if (edits.removesPersonalData) {
        for (const auto* entry : PersonalData::entriesIn(tags))
            arguments.push_back(assignment(entry->removed, set, {}));
    }
    for (const auto& [field, value] : edits.texts) {
        // What is there already may go with the rest.
        if (!edits.removesPersonalData && isMade(field, value, tags))
            continue;
        if (field == Field::Date)
            assignDate(arguments, tags, value);
        else
            assign(arguments, field, tags, value);
    }
    if (edits.shift.count() != 0)
        shift(arguments, tags, edits.shift);
    if (edits.orientation && edits.orientation != orientationOf(tags))
        assign(arguments, Field::Orientation, tags, std::to_string(*edits.orientation));
    const bool movesPlace = edits.place && (edits.removesPersonalData || !edits.place->place ||
                                            !isSame(edits.place->place, placeOf(tags)));
    if (movesPlace)
        assignPlace(arguments, tags, edits.place->place);
    encode(arguments, tags);
    return arguments;
}

bool areMade(const Edits& edits, const Tags& before, const Tags& after)
{
    using PersonalData::Kind;
    const bool textsAreMade =
        std::ranges::all_of(edits.texts, [&](const auto& text) { return isMade(text.first, text.second, after); });
    const auto date = edits.shift.count() != 0 ? photoTime(textOf(Field::Date, before)) : std::nullopt;
    const bool isShifted = !date || photoTime(textOf(Field::Date, after)) == *date + edits.shift;
    const bool isTurned = !edits.orientation || edits.orientation == orientationOf(after);
    const bool isPlaced = !edits.place || isSame(edits.place->place, placeOf(after));
    const bool isRemoved = std::ranges::none_of(after, [&](const Tag& tag) {
        const auto kind = isPosition(tag) ? std::optional(Kind::Place) : PersonalData::kindOf(tag);
        const bool goesWithPlace = kind == Kind::Place && edits.place && !edits.place->place;
        const bool isSetAnew =
            (kind == Kind::Place && edits.place) || (kind == Kind::People && edits.texts.contains(Field::Author));
        return kind && (goesWithPlace || (edits.removesPersonalData && !isSetAnew));
    });
    const bool isMarked = isUnmarked(before) && after.find("IPTC:CodedCharacterSet");
    const bool othersStay = std::ranges::all_of(before, [&](const Tag& tag) {
        const std::string* const value = isIptcText(tag) ? after.find("IPTC:" + tag.name) : nullptr;
        const bool isEdited = std::ranges::any_of(edits.texts, [&](const auto& text) {
            return std::ranges::any_of(storesOf(text.first),
                                       [&](const Store& store) { return matches(store.key, tag); });
        });
        return !value || isEdited || *value == (isMarked ? latinBytes(tag.value) : tag.value);
    });
    return textsAreMade && isShifted && isTurned && isPlaced && isRemoved && othersStay;
}

} // namespace MenuExtension::Exif
