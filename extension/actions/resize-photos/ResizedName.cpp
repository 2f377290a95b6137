#include "ResizedName.h"

#include <algorithm>
#include <climits>

namespace MenuExtension::Resizing {

namespace {

constexpr std::string_view nameMark = "{name}";

void replaceAll(std::string& text, std::string_view mark, std::string_view value)
{
    for (std::size_t place = text.find(mark); place != std::string::npos;
         place = text.find(mark, place + value.size()))
        text.replace(place, mark.size(), value);
}

/// The beginning in so many bytes, not within a character.
std::string_view shortened(std::string_view text, std::size_t most)
{
    if (text.size() <= most)
        return text;
    std::size_t length = most;
    while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xc0U) == 0x80)
        --length;
    // What is no UTF-8 has no characters to cut.
    return text.substr(0, length == 0 ? most : length);
}

} // namespace

bool isNamePattern(std::string_view pattern)
{
    return pattern.find(nameMark) != std::string_view::npos &&
           pattern.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos &&
           pattern.size() < NAME_MAX / 2;
}

std::string resizedName(std::string_view pattern, std::string_view photo, const Size& size, unsigned number)
{
    const std::size_t dot = photo.rfind('.');
    const bool hasEnd = dot != std::string_view::npos && dot > 0 && photo.size() - dot <= 16;
    const std::string_view end = hasEnd ? photo.substr(dot) : "";
    std::string_view base = photo.substr(0, photo.size() - end.size());
    const std::string counted = number < 2 ? "" : " (" + std::to_string(number) + ')';
    for (;;) {
        std::string name(pattern);
        replaceAll(name, "{width}", std::to_string(size.width));
        replaceAll(name, "{height}", std::to_string(size.height));
        // Last, since a photo's name may look like a mark.
        replaceAll(name, nameMark, base);
        name.append(counted).append(end);
        if (name.size() <= NAME_MAX || base.empty())
            return name;
        base = shortened(base, base.size() - std::min(base.size(), name.size() - NAME_MAX));
    }
}

} // namespace MenuExtension::Resizing
