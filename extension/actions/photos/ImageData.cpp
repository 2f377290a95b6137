#include "ImageData.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace MenuExtension::Exif {

namespace {

using namespace std::string_view_literals;
using Parts = std::vector<Extent>;

/// More than pictures have, and few enough to keep.
constexpr std::size_t mostParts = std::size_t{1} << 20U;

enum class Order { BigEndian, LittleEndian };

/// Reads a part of a file from its beginning on; what there is too little of is a failure that stays.
class Reader {
public:
    Reader(ByteSource& file, Extent part, Order order = Order::BigEndian)
        : m_file(&file), m_place(part.offset), m_end(part.offset + part.length), m_order(order)
    {}

    [[nodiscard]] bool failed() const { return m_failed; }
    [[nodiscard]] std::uint64_t place() const { return m_place; }
    [[nodiscard]] Extent rest() const { return {m_place, m_end - m_place}; }
    [[nodiscard]] Extent since(std::uint64_t begin) const { return {begin, m_place - begin}; }

    Extent skip(std::uint64_t count)
    {
        if (count > m_end - m_place) {
            m_failed = true;
            count = m_end - m_place;
        }
        m_place += count;
        return {m_place - count, count};
    }
    /// A few bytes, which stay where they are.
    [[nodiscard]] std::string peek(std::size_t count) const
    {
        return std::string(m_file->look(m_place, std::min<std::uint64_t>(count, m_end - m_place)));
    }
    std::string take(std::size_t count)
    {
        std::string bytes = peek(count);
        skip(count);
        m_failed = m_failed || bytes.size() != count;
        return bytes;
    }
    /// Of up to eight bytes.
    std::uint64_t number(std::size_t size)
    {
        const std::string bytes = take(size);
        std::uint64_t value = 0;
        for (std::size_t index = 0; index < bytes.size(); ++index) {
            const std::size_t place = m_order == Order::BigEndian ? index : bytes.size() - 1 - index;
            value = value << 8U | static_cast<unsigned char>(bytes[place]);
        }
        return value;
    }

private:
    ByteSource* m_file;
    std::uint64_t m_place;
    std::uint64_t m_end;
    Order m_order;
    bool m_failed = false;
};

Extent after(const ByteSource& file, std::uint64_t offset)
{
    const std::uint64_t begin = std::min(offset, file.size());
    return {begin, file.size() - begin};
}

std::optional<Extent> partOf(const Extent& whole, std::uint64_t offset, std::uint64_t length)
{
    if (offset > whole.length || length > whole.length - offset)
        return std::nullopt;
    return Extent{whole.offset + offset, length};
}

// --- JPEG ---

/// Goes over what is coded, up to the next marker that is none of its own.
void skipCoded(ByteSource& file, Reader& reader)
{
    while (reader.rest().length > 1) {
        const std::string_view bytes =
            file.look(reader.place(), std::min<std::uint64_t>(ByteSource::mostAtOnce, reader.rest().length));
        if (bytes.size() < 2)
            return;
        const std::size_t place = bytes.find('\xff');
        // The byte that tells may not be in sight.
        if (place == std::string_view::npos || place + 1 == bytes.size()) {
            reader.skip(place == std::string_view::npos ? bytes.size() : std::max<std::size_t>(place, 1));
            continue;
        }
        const auto next = static_cast<unsigned char>(bytes[place + 1]);
        const bool isOwn = next == 0 || (next >= 0xd0 && next <= 0xd7);
        if (!isOwn && next != 0xff) {
            reader.skip(place);
            return;
        }
        reader.skip(place + (isOwn ? 2 : 1));
    }
    reader.skip(reader.rest().length);
}

std::optional<Parts> ofJpeg(ByteSource& file)
{
    Parts parts;
    Reader reader(file, after(file, 2));
    while (parts.size() < mostParts) {
        if (reader.take(1) != "\xff")
            return std::nullopt;
        while (reader.peek(1) == "\xff")
            reader.skip(1);
        const std::uint64_t beginning = reader.place();
        const auto marker = reader.number(1);
        if (reader.failed())
            return std::nullopt;
        if (marker == 0xd9) {
            // Second pictures and films come after the end.
            parts.push_back(reader.rest());
            return parts;
        }
        const auto length = reader.number(2);
        const std::string content = reader.peek(12);
        if (length < 2 || reader.failed())
            return std::nullopt;
        reader.skip(length - 2);
        const bool isApplication = marker >= 0xe0 && marker <= 0xef;
        const bool isForColors = marker == 0xee || content.starts_with("ICC_PROFILE");
        if ((!isApplication || isForColors) && marker != 0xfe)
            parts.push_back(reader.since(beginning));
        if (marker == 0xda) {
            const std::uint64_t coded = reader.place();
            skipCoded(file, reader);
            parts.push_back(reader.since(coded));
        }
    }
    return std::nullopt;
}

// --- PNG ---

std::optional<Parts> ofPng(ByteSource& file)
{
    constexpr std::array notOfImage{"tEXt"sv, "zTXt"sv, "iTXt"sv, "eXIf"sv, "tIME"sv};
    Parts parts;
    Reader reader(file, after(file, 8));
    while (parts.size() < mostParts) {
        const auto length = reader.number(4);
        const std::string kind = reader.peek(4);
        const Extent chunk = reader.skip(length + 8);
        if (reader.failed())
            return std::nullopt;
        if (std::ranges::find(notOfImage, kind) == notOfImage.end())
            parts.push_back(chunk);
        if (kind == "IEND")
            return parts;
    }
    return std::nullopt;
}

// --- GIF ---

std::size_t colorTableSize(std::uint64_t flags)
{
    return (flags & 0x80U) != 0 ? std::size_t{3} << ((flags & 7U) + 1) : 0;
}

void skipBlocks(Reader& reader)
{
    while (const auto length = reader.number(1))
        reader.skip(length);
}

std::optional<Parts> ofGif(ByteSource& file)
{
    constexpr std::size_t header = 6;
    Parts parts;
    Reader reader(file, after(file, header));
    reader.skip(4);
    const auto flags = reader.number(1);
    reader.skip(2 + colorTableSize(flags));
    parts.push_back(reader.since(header));
    while (parts.size() < mostParts && !reader.failed()) {
        const std::uint64_t beginning = reader.place();
        const auto kind = reader.number(1);
        if (kind == 0x3b && !reader.failed())
            return parts;
        if (kind == 0x21) {
            const auto label = reader.number(1);
            const bool isXmp = reader.peek(12) == "\x0bXMP DataXMP";
            skipBlocks(reader);
            if (label != 0xfe && !isXmp)
                parts.push_back(reader.since(beginning));
        } else if (kind == 0x2c) {
            reader.skip(8);
            const auto own = reader.number(1);
            reader.skip(colorTableSize(own) + 1);
            skipBlocks(reader);
            parts.push_back(reader.since(beginning));
        } else {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

// --- TIFF ---

class Tiff {
public:
    Tiff(ByteSource& file, Order order) : m_file(file), m_order(order) {}

    std::optional<Parts> parts()
    {
        const auto offset = at(4).number(4);
        if (!takeDirectories(offset, 0) || m_parts.empty())
            return std::nullopt;
        return m_parts;
    }

private:
    /// No file has as many.
    static constexpr int mostDirectories = 1024;
    static constexpr int deepest = 8;

    struct Entry {
        std::uint64_t type = 0;
        std::uint64_t count = 0;
        /// The values, or where they are.
        Extent field;
    };
    using Entries = std::map<std::uint64_t, Entry>;

    [[nodiscard]] Reader at(std::uint64_t offset) const { return {m_file, after(m_file, offset), m_order}; }

    bool takeDirectories(std::uint64_t offset, int depth)
    {
        while (offset != 0) {
            if (++m_directories > mostDirectories || depth > deepest)
                return false;
            Reader reader = at(offset);
            Entries entries;
            for (auto count = reader.number(2); count > 0 && !reader.failed(); --count) {
                Entry& entry = entries[reader.number(2)];
                entry.type = reader.number(2);
                entry.count = reader.number(4);
                entry.field = reader.skip(4);
            }
            offset = reader.number(4);
            if (reader.failed() || !takeDirectory(entries, depth))
                return false;
        }
        return true;
    }

    bool takeDirectory(const Entries& entries, int depth)
    {
        // The size, how it is packed, its colours, its layout: numbers in the entry itself.
        for (const std::uint64_t tag : {0x100, 0x101, 0x103, 0x106, 0x115, 0x116, 0x11c, 0x142, 0x143}) {
            const auto found = entries.find(tag);
            if (found != entries.end())
                m_parts.push_back(found->second.field);
        }
        constexpr std::array<std::pair<int, int>, 3> places{{{0x111, 0x117}, {0x144, 0x145}, {0x201, 0x202}}};
        for (const auto& [offsets, lengths] : places) {
            if (!takeStrips(entries, offsets, lengths))
                return false;
        }
        const auto below = entries.find(0x14a);
        if (below == entries.end())
            return true;
        const auto offsets = numbers(below->second);
        return offsets && std::ranges::all_of(
                              *offsets, [&](std::uint64_t offset) { return takeDirectories(offset, depth + 1); });
    }

    bool takeStrips(const Entries& entries, std::uint64_t offsetTag, std::uint64_t lengthTag)
    {
        const auto offset = entries.find(offsetTag);
        const auto length = entries.find(lengthTag);
        if (offset == entries.end() || length == entries.end())
            return true;
        const auto offsets = numbers(offset->second);
        const auto lengths = numbers(length->second);
        if (!offsets || !lengths || offsets->size() != lengths->size())
            return false;
        for (std::size_t index = 0; index < offsets->size(); ++index) {
            const auto strip = partOf({0, m_file.size()}, (*offsets)[index], (*lengths)[index]);
            if (!strip)
                return false;
            m_parts.push_back(*strip);
        }
        return true;
    }

    [[nodiscard]] std::optional<std::vector<std::uint64_t>> numbers(const Entry& entry) const
    {
        const std::size_t size = entry.type == 3 ? 2 : entry.type == 4 || entry.type == 13 ? 4 : 0;
        if (size == 0 || entry.count > m_file.size() / size ||
            entry.count > mostParts - std::min(mostParts, m_parts.size()))
            return std::nullopt;
        Reader reader(m_file, entry.field, m_order);
        if (entry.count * size > entry.field.length)
            reader = at(reader.number(4));
        std::vector<std::uint64_t> values(entry.count);
        for (auto& value : values)
            value = reader.number(size);
        return reader.failed() ? std::nullopt : std::optional(std::move(values));
    }

    ByteSource& m_file;
    Order m_order;
    Parts m_parts;
    int m_directories = 0;
};

// --- The boxes of HEIC, AVIF, JPEG XL and JPEG 2000 ---

struct Box {
    std::string kind;
    Extent content;
};
using Boxes = std::vector<Box>;

/// Nothing where the part is not made of boxes.
std::optional<Boxes> boxesIn(ByteSource& file, Extent part)
{
    Boxes boxes;
    for (Reader reader(file, part); reader.rest().length > 0;) {
        const Extent whole = reader.rest();
        std::uint64_t size = reader.number(4);
        std::string kind = reader.take(4);
        if (size == 1)
            size = reader.number(8);
        else if (size == 0)
            size = whole.length;
        const std::uint64_t header = reader.place() - whole.offset;
        if (size < header || boxes.size() >= mostParts)
            return std::nullopt;
        const Extent content = reader.skip(size - header);
        if (reader.failed())
            return std::nullopt;
        boxes.push_back({std::move(kind), content});
    }
    return boxes;
}

const Extent* find(const Boxes& boxes, std::string_view kind)
{
    const auto found = std::ranges::find(boxes, kind, &Box::kind);
    return found == boxes.end() ? nullptr : &found->content;
}

using ItemKinds = std::map<std::uint64_t, std::string>;

std::optional<ItemKinds> itemKinds(ByteSource& file, Extent content)
{
    ItemKinds kinds;
    Reader reader(file, content);
    const auto version = reader.number(1);
    reader.skip(3);
    reader.number(version == 0 ? 2 : 4);
    const auto entries = boxesIn(file, reader.rest());
    if (reader.failed() || !entries)
        return std::nullopt;
    for (const Box& entry : *entries) {
        Reader item(file, entry.content);
        const auto itemVersion = item.number(1);
        item.skip(3);
        const auto number = item.number(itemVersion == 3 ? 4 : 2);
        item.skip(2);
        kinds[number] = item.take(4);
        if (entry.kind != "infe" || itemVersion < 2 || item.failed())
            return std::nullopt;
    }
    return kinds;
}

/// Where the items of a picture lie. `within` is what some of the places are counted in.
std::optional<Parts> itemsOf(ByteSource& file, Extent locations, Extent within, const ItemKinds& kinds)
{
    Parts parts;
    Reader reader(file, locations);
    const auto version = reader.number(1);
    reader.skip(3);
    const auto sizes = reader.number(2);
    const std::size_t offsetSize = sizes >> 12U;
    const std::size_t lengthSize = sizes >> 8U & 15U;
    const std::size_t baseSize = sizes >> 4U & 15U;
    const std::size_t indexSize = version == 0 ? 0 : sizes & 15U;
    if (version > 2 || std::max({offsetSize, lengthSize, baseSize, indexSize}) > 8)
        return std::nullopt;
    const std::size_t numberSize = version == 2 ? 4 : 2;
    for (auto count = reader.number(numberSize); count > 0 && !reader.failed(); --count) {
        const auto kind = kinds.find(reader.number(numberSize));
        const auto method = version == 0 ? 0 : reader.number(2) & 15U;
        const auto source = reader.number(2);
        const auto base = reader.number(baseSize);
        const bool isOfImage = kind != kinds.end() && kind->second != "Exif" && kind->second != "mime";
        for (auto extents = reader.number(2); extents > 0 && !reader.failed(); --extents) {
            reader.number(indexSize);
            const auto offset = reader.number(offsetSize);
            const auto length = reader.number(lengthSize);
            if (!isOfImage)
                continue;
            const auto item = partOf(method == 1 ? within : Extent{0, file.size()}, base + offset, length);
            if (!item || method > 1 || source != 0 || parts.size() >= mostParts)
                return std::nullopt;
            parts.push_back(*item);
        }
    }
    return reader.failed() ? std::nullopt : std::optional(std::move(parts));
}

std::optional<Parts> ofItems(ByteSource& file, Extent meta)
{
    Reader reader(file, meta);
    reader.skip(4);
    const auto boxes = boxesIn(file, reader.rest());
    if (!boxes)
        return std::nullopt;
    const Extent* const items = find(*boxes, "iinf");
    const Extent* const locations = find(*boxes, "iloc");
    const Extent* const primary = find(*boxes, "pitm");
    const Extent* const properties = find(*boxes, "iprp");
    if (!items || !locations || !primary || !properties)
        return std::nullopt;
    const auto kinds = itemKinds(file, *items);
    const Extent* const within = find(*boxes, "idat");
    auto parts = kinds ? itemsOf(file, *locations, within ? *within : Extent{}, *kinds) : std::nullopt;
    if (!parts || parts->empty())
        return std::nullopt;
    parts->push_back(*primary);
    parts->push_back(*properties);
    return parts;
}

std::optional<Parts> ofBoxes(ByteSource& file)
{
    const auto boxes = boxesIn(file, {0, file.size()});
    // A film, or several pictures in turn.
    if (!boxes || find(*boxes, "moov"))
        return std::nullopt;
    if (const Extent* const meta = find(*boxes, "meta"))
        return ofItems(file, *meta);
    constexpr std::array ofImage{"jp2h"sv, "jp2c"sv, "jxlc"sv, "jxlp"sv};
    Parts parts;
    for (const Box& box : *boxes) {
        if (std::ranges::find(ofImage, box.kind) != ofImage.end())
            parts.push_back(box.content);
    }
    return parts.empty() ? std::nullopt : std::optional(std::move(parts));
}

/// Whether the parts lie on each other so often that no picture is made so.
bool isMadeUp(const Parts& parts, std::uint64_t fileSize)
{
    std::uint64_t left = 4 * fileSize;
    return std::ranges::any_of(parts, [&](const Extent& part) {
        const bool isTooMuch = part.length > left;
        left -= std::min(left, part.length);
        return isTooMuch;
    });
}

bool areSame(ByteSource& one, Extent ofOne, ByteSource& other, Extent ofOther)
{
    while (ofOne.length > 0) {
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(ofOne.length, ByteSource::mostAtOnce));
        const std::string_view bytes = one.look(ofOne.offset, count);
        if (bytes.size() != count || bytes != other.look(ofOther.offset, count))
            return false;
        ofOne = {ofOne.offset + count, ofOne.length - count};
        ofOther.offset += count;
    }
    return true;
}

} // namespace

std::optional<std::vector<Extent>> imageData(ByteSource& file)
{
    const std::string beginning(file.look(0, 12));
    const std::string_view begins = beginning;
    if (begins.starts_with("\xff\xd8\xff"sv))
        return ofJpeg(file);
    if (begins.starts_with("\x89PNG\r\n\x1a\n"sv))
        return ofPng(file);
    if (begins.starts_with("GIF87a"sv) || begins.starts_with("GIF89a"sv))
        return ofGif(file);
    if (begins.starts_with("II*\0"sv))
        return Tiff(file, Order::LittleEndian).parts();
    if (begins.starts_with("MM\0*"sv))
        return Tiff(file, Order::BigEndian).parts();
    const std::string_view kind = begins.substr(std::min<std::size_t>(4, begins.size()), 4);
    if (kind == "ftyp" || kind == "JXL " || kind == "jP  ")
        return ofBoxes(file);
    return std::nullopt;
}

bool holdsMore(ByteSource& file)
{
    const auto parts = file.look(0, 3) == "\xff\xd8\xff"sv ? ofJpeg(file) : std::nullopt;
    return parts && parts->back().length > 0;
}

std::optional<bool> haveSameImage(ByteSource& one, ByteSource& other)
{
    const auto ofOne = imageData(one);
    if (!ofOne || isMadeUp(*ofOne, one.size()))
        return std::nullopt;
    const auto ofOther = imageData(other);
    return ofOther && std::ranges::equal(*ofOne, *ofOther, [&](const Extent& first, const Extent& second) {
               return first.length == second.length && areSame(one, first, other, second);
           });
}

} // namespace MenuExtension::Exif
