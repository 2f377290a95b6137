#include "platform/URL.h"

#include <algorithm>

namespace NS {

namespace {

constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view digits = "0123456789";
constexpr std::string_view hexadecimal = "0123456789ABCDEF";

bool isOneOf(char character, std::string_view set)
{
    return set.find(character) != std::string_view::npos;
}

/// RFC 3986, section 2.3.
bool isUnreserved(char character)
{
    return isOneOf(character, letters) || isOneOf(character, digits) || isOneOf(character, "-._~");
}

bool isHexDigit(char character)
{
    return isOneOf(character, digits) || isOneOf(character, "abcdefABCDEF");
}

/// RFC 3986, section 3.1.
bool isScheme(std::string_view text)
{
    return !text.empty() && isOneOf(text.front(), letters) && std::ranges::all_of(text, [](char character) {
        return isOneOf(character, letters) || isOneOf(character, digits) || isOneOf(character, "+-.");
    });
}

/// Whether every character may stand in an address: unreserved, reserved, or percent-encoded.
bool isMadeOfAddressCharacters(std::string_view text)
{
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] == '%') {
            if (index + 2 >= text.size() || !isHexDigit(text[index + 1]) || !isHexDigit(text[index + 2]))
                return false;
            index += 2;
        } else if (!isUnreserved(text[index]) && !isOneOf(text[index], ":/?#[]@!$&'()*+,;=")) {
            return false;
        }
    }
    return true;
}

} // namespace

URL URL::fileURLWithPath(std::string_view path)
{
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    return {Kind::File, std::string(path)};
}

std::optional<URL> URL::URLWithString(std::string_view text)
{
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos || !isScheme(text.substr(0, colon)) || colon + 1 == text.size() ||
        !isMadeOfAddressCharacters(text.substr(colon + 1)))
        return std::nullopt;
    return URL(Kind::Other, std::string(text));
}

const std::string& URL::path() const
{
    static const std::string none;
    return isFileURL() ? m_text : none;
}

std::string URL::lastPathComponent() const
{
    const std::string& all = path();
    return all == "/" ? all : all.substr(all.find_last_of('/') + 1);
}

std::string URL::absoluteString() const
{
    if (!isFileURL())
        return m_text;
    // Without the slash the first name would be a host's.
    std::string encoded = m_text.starts_with('/') ? "file://" : "file:///";
    for (const char character : m_text) {
        if (isUnreserved(character) || character == '/') {
            encoded += character;
            continue;
        }
        const auto byte = static_cast<unsigned char>(character);
        encoded += {'%', hexadecimal[byte >> 4U], hexadecimal[byte & 0xFU]};
    }
    return encoded;
}

} // namespace NS
