#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace MenuExtension::Exif {

/// What a photo's file says of it, one line of it. UTF-8.
struct Tag {
    /// The kind of data that it belongs to, "EXIF" for example, and where in there it is stored: "IFD0".
    std::string family;
    std::string group;
    std::string name;
    /// Several values are joined by "; ".
    std::string value;
    friend bool operator==(const Tag&, const Tag&) = default;
};

/// Between the values of a tag that has several.
inline constexpr std::string_view valueSeparator = "; ";

/// The tags of one file, in the order of the file.
class Tags {
public:
    Tags() = default;
    explicit Tags(std::vector<Tag> tags) : m_tags(std::move(tags)) {}

    /// The value of a tag, "GROUP:NAME"; a star in the place of the group is any. Nothing where there is none.
    [[nodiscard]] const std::string* find(std::string_view key) const;
    /// Whether a group has a tag.
    [[nodiscard]] bool hasGroup(std::string_view group) const;

    [[nodiscard]] auto begin() const { return m_tags.begin(); }
    [[nodiscard]] auto end() const { return m_tags.end(); }
    [[nodiscard]] bool empty() const { return m_tags.empty(); }

private:
    std::vector<Tag> m_tags;
};

/// Whether "GROUP:NAME", or "FAMILY:NAME", is the key of a tag; either part may end in a star, which stands for any
/// rest.
[[nodiscard]] bool matches(std::string_view key, const Tag& tag);

/// Takes the tags of each file in turn, with the name that ExifTool was given for it.
using TakeTags = std::function<void(const std::string& source, Tags tags)>;

/// Reads what ExifTool prints with -json -G0:1. False where that is no such text; what came before has been taken.
[[nodiscard]] bool readTags(std::string_view json, const TakeTags& take);

} // namespace MenuExtension::Exif
