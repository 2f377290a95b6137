#include "Tags.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

namespace MenuExtension::Exif {

namespace {

/// "AB" is that alone, "A*" begins with A.
bool matchesPart(std::string_view pattern, std::string_view text)
{
    return pattern.ends_with('*') ? text.starts_with(pattern.substr(0, pattern.size() - 1)) : pattern == text;
}

/// Of "FAMILY:GROUP:NAME", or "GROUP:NAME" where both have one name.
Tag tagFor(std::string_view key)
{
    const std::size_t first = std::min(key.find(':'), key.size());
    const std::size_t last = key.rfind(':') == std::string_view::npos ? 0 : key.rfind(':') + 1;
    const std::string_view group = last > first + 1 ? key.substr(first + 1, last - first - 2) : key.substr(0, first);
    return {std::string(key.substr(0, first)), std::string(group), std::string(key.substr(last)), {}};
}

/// Follows the text as it is read: a list of objects, whose values are texts, numbers or lists of them.
class Reading {
public:
    // The library's own types and names.
    using number_integer_t = nlohmann::json::number_integer_t;
    using number_unsigned_t = nlohmann::json::number_unsigned_t;
    using number_float_t = nlohmann::json::number_float_t;
    using string_t = nlohmann::json::string_t;
    using binary_t = nlohmann::json::binary_t;

    explicit Reading(const TakeTags& take) : m_take(take) {}

    bool null() { return true; }
    bool boolean(bool value) { return add(value ? "true" : "false"); }
    // One that is not negative comes unsigned, but for "-0".
    bool number_integer(number_integer_t value) { return add(value == 0 ? "-0" : std::to_string(value)); }
    bool number_unsigned(number_unsigned_t value) { return add(std::to_string(value)); }
    // As it is written: a title may be 1.50.
    bool number_float(number_float_t, string_t text)
    {
        // The library has put the locale's point there.
        const std::size_t point = text.find_first_not_of("0123456789+-eE");
        if (point != std::string::npos)
            text[point] = '.';
        return add(std::move(text));
    }
    bool string(string_t& text) { return add(std::move(text)); }
    bool binary(binary_t&) { return false; }

    bool start_object(std::size_t)
    {
        ++m_depth;
        return m_depth >= inFile;
    }
    bool key(string_t& text)
    {
        if (m_depth == inFile)
            m_key = std::move(text);
        return true;
    }
    bool end_object()
    {
        if (m_depth-- == inFile) {
            m_take(m_source, Tags(std::exchange(m_tags, {})));
            m_source.clear();
        }
        return m_depth >= 0;
    }
    bool start_array(std::size_t)
    {
        ++m_depth;
        return true;
    }
    bool end_array() { return m_depth-- > 0; }
    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception&) { return false; }

private:
    /// The depth of an object's keys.
    static constexpr int inFile = 2;

    bool add(std::string text)
    {
        if (m_depth < inFile)
            return false;
        if (m_key == "SourceFile") {
            m_source = std::move(text);
            return true;
        }
        Tag tag = tagFor(m_key);
        tag.value = std::move(text);
        // Another value of the same list.
        if (m_depth > inFile && !m_tags.empty() && m_tags.back().group == tag.group && m_tags.back().name == tag.name)
            m_tags.back().value.append(valueSeparator).append(tag.value);
        else
            m_tags.push_back(std::move(tag));
        return true;
    }

    const TakeTags& m_take;
    int m_depth = 0;
    std::string m_key;
    std::string m_source;
    std::vector<Tag> m_tags;
};

} // namespace

bool matches(std::string_view key, const Tag& tag)
{
    const std::size_t colon = key.find(':');
    const std::string_view group = key.substr(0, colon);
    return matchesPart(key.substr(colon + 1), tag.name) &&
           (matchesPart(group, tag.group) || matchesPart(group, tag.family));
}

const std::string* Tags::find(std::string_view key) const
{
    const auto found = std::ranges::find_if(m_tags, [key](const Tag& tag) { return matches(key, tag); });
    return found == m_tags.end() ? nullptr : &found->value;
}

bool Tags::hasGroup(std::string_view group) const
{
    return std::ranges::find(m_tags, group, &Tag::group) != m_tags.end();
}

bool readTags(std::string_view json, const TakeTags& take)
{
    Reading reading(take);
    return nlohmann::json::sax_parse(json.begin(), json.end(), &reading);
}

} // namespace MenuExtension::Exif
