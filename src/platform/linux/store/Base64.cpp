#include "platform/linux/store/Base64.h"

#include <array>
#include <cstdint>

namespace LinuxDesktop::Base64 {

namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t notInAlphabet = 0xff;

constexpr std::array<std::uint8_t, 256> makeValues()
{
    std::array<std::uint8_t, 256> values{};
    values.fill(notInAlphabet);
    for (std::size_t i = 0; i < alphabet.size(); ++i)
        values.at(static_cast<std::uint8_t>(alphabet[i])) = static_cast<std::uint8_t>(i);
    return values;
}

constexpr std::array<std::uint8_t, 256> valueOf = makeValues();

} // namespace

void append(std::string& text, std::span<const std::uint8_t> bytes)
{
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - at);
        std::uint32_t group = 0;
        for (std::size_t i = 0; i < 3; ++i)
            group = group << 8U | (i < count ? bytes[at + i] : 0U);
        for (std::size_t i = 0; i < 4; ++i)
            text += i <= count ? alphabet[group >> (18U - 6U * i) & 0x3fU] : '=';
    }
}

std::optional<NS::Data> decode(std::string_view text)
{
    NS::Data bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t group = 0;
    unsigned held = 0;
    unsigned padding = 0;
    for (const char character : text) {
        if (character == ' ' || character == '\t' || character == '\n' || character == '\r')
            continue;
        if (character == '=') {
            ++padding;
            continue;
        }
        const std::uint8_t value = valueOf.at(static_cast<std::uint8_t>(character));
        if (value == notInAlphabet || padding > 0)
            return std::nullopt;
        group = group << 6U | value;
        if (++held == 4) {
            bytes.push_back(static_cast<std::uint8_t>(group >> 16U));
            bytes.push_back(static_cast<std::uint8_t>(group >> 8U));
            bytes.push_back(static_cast<std::uint8_t>(group));
            group = 0;
            held = 0;
        }
    }
    // Six bits alone are no byte, and padding only ever fills a group up.
    if (held == 1 || (padding > 0 && held + padding != 4))
        return std::nullopt;
    if (held >= 2)
        bytes.push_back(static_cast<std::uint8_t>(group >> (held == 2 ? 4U : 10U)));
    if (held == 3)
        bytes.push_back(static_cast<std::uint8_t>(group >> 2U));
    return bytes;
}

} // namespace LinuxDesktop::Base64
