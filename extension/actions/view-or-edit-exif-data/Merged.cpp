#include "Merged.h"

namespace MenuExtension::Exif {

namespace {

/// Of a value, in bytes. A person reads no more in a table.
constexpr std::size_t longestShown = 2000;

std::string shortened(const std::string& text)
{
    if (text.size() <= longestShown)
        return text;
    std::size_t length = longestShown;
    // Not within a character.
    while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xc0U) == 0x80)
        --length;
    return text.substr(0, length) + "\xE2\x80\xA6";
}

void merge(Merged::Value& value, const std::string& text, bool isFirst)
{
    if (isFirst)
        value.text = text;
    else if (value.text != text)
        value.differs = true;
    ++value.photos;
}

} // namespace

void Merged::add(const Tags& tags, bool holdsMore)
{
    for (const Tag& tag : tags) {
        const auto [place, isNew] = m_places.try_emplace({tag.family, tag.group, tag.name}, m_lines.size());
        if (isNew)
            m_lines.push_back({tag.family, tag.group, tag.name, {}});
        merge(m_lines[place->second].value, shortened(tag.value), isNew);
    }
    for (std::size_t index = 0; index < fields; ++index)
        merge(m_fields[index], textOf(static_cast<Field>(index), tags), m_photos == 0);
    m_holdsMore = m_holdsMore || holdsMore;
    ++m_photos;
}

} // namespace MenuExtension::Exif
