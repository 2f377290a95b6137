#include "extension/protocol/Words.h"

#include "platform/LocalizedString.h"

#include <cerrno>
#include <cstdint>
#include <optional>
#include <system_error>

namespace MenuExtension::Words {

using NS::LocalizedString;

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";
constexpr std::size_t sentencesTold = 3;

struct Character {
    char32_t code;
    std::size_t length;
};

/// The character that the bytes begin with; nothing where that is none.
std::optional<Character> firstOf(std::string_view bytes)
{
    const auto first = static_cast<std::uint8_t>(bytes.front());
    if (first < 0x80)
        return Character{first, 1};
    const std::size_t length = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    if (first < 0xc2 || first > 0xf4 || bytes.size() < length)
        return std::nullopt;
    char32_t code = first & (0x7fU >> length);
    for (std::size_t index = 1; index < length; ++index) {
        const auto next = static_cast<std::uint8_t>(bytes[index]);
        if ((next & 0xc0U) != 0x80)
            return std::nullopt;
        code = code << 6U | (next & 0x3fU);
    }
    const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool surrogate = code >= 0xd800 && code < 0xe000;
    return overlong || surrogate || code > 0x10ffff ? std::nullopt : std::optional(Character{code, length});
}

bool isInvisible(char32_t code)
{
    const bool control = code < 0x20 || (code >= 0x7f && code < 0xa0);
    const bool lineEnd = code == 0x2028 || code == 0x2029;
    const bool reorders = code == 0x200e || code == 0x200f || code == 0x61c || (code >= 0x202a && code <= 0x202e) ||
                          (code >= 0x2066 && code <= 0x2069);
    // Kept by Unicode for no text, and so not taken by the bus.
    const bool noCharacter = (code & 0xfffeU) == 0xfffe || (code >= 0xfdd0 && code <= 0xfdef);
    return control || lineEnd || reorders || noCharacter;
}

} // namespace

std::string shown(std::string_view name)
{
    std::string text;
    while (!name.empty()) {
        const auto character = firstOf(name);
        const std::size_t length = character ? character->length : 1;
        if (name.front() == '\n')
            text += "\xE2\x86\xB5";
        else if (name.front() == '\t')
            text += "\xE2\x87\xA5";
        else
            text += !character || isInvisible(character->code) ? replacement : name.substr(0, length);
        name.remove_prefix(length);
    }
    return text;
}

std::string name(std::string_view path)
{
    path = path.substr(0, path.find_last_not_of('/') + 1);
    const std::string_view last = path.substr(path.rfind('/') + 1);
    return NS::stringWithFormat(LocalizedString("Words", "\"%1\""), {last.empty() ? "/" : shown(last)});
}

std::string reason(int error)
{
    if (error == EXDEV || error == ELOOP)
        return LocalizedString("Words", "a link leads out of the folders that Orvik Menu works in");
    return std::generic_category().message(error);
}

std::string cannotBeRead(int error)
{
    return NS::stringWithFormat(LocalizedString("Duplicates", "cannot be read: %1"), {reason(error)});
}

std::string outOfScope(const std::vector<std::string>& paths)
{
    return NS::stringWithFormat(
        paths.size() == 1
            ? LocalizedString("Words",
                              "%1 is not in a folder that Orvik Menu works in. Add the folder in its settings.")
            : LocalizedString(
                  "Words",
                  "%1 or another item is not in a folder that Orvik Menu works in. Add the folder in its settings."),
        {name(paths.front())});
}

void Troubles::add(const std::string& sentence)
{
    if (++m_count > sentencesTold)
        return;
    if (!m_sentences.empty())
        m_sentences += ' ';
    m_sentences += sentence;
}

Outcome Troubles::outcome() const
{
    if (m_count == 0)
        return Outcome::done();
    if (m_count <= sentencesTold)
        return Outcome::failed(m_sentences);
    const auto more = m_count - sentencesTold;
    return Outcome::failed(m_sentences + ' ' +
                           (more == 1
                                ? LocalizedString("Words", "There was 1 more like these.")
                                : NS::stringWithFormat(LocalizedString("Words", "There were %1 more like these."),
                                                       {std::to_string(more)})));
}

} // namespace MenuExtension::Words
