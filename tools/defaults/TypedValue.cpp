#include "defaults/TypedValue.h"

#include "platform/linux/store/DateText.h"
#include "platform/linux/store/PropertyList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <system_error>

namespace DefaultsTool {

using LinuxDesktop::Failure;
using LinuxDesktop::Result;

namespace {

std::string lowered(std::string text)
{
    std::ranges::transform(text, text.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    });
    return text;
}

std::optional<NS::Value> booleanFrom(const std::string& word)
{
    const std::string text = lowered(word);
    if (text == "true" || text == "yes" || text == "1")
        return true;
    if (text == "false" || text == "no" || text == "0")
        return false;
    return std::nullopt;
}

template<class T, class... Options>
std::optional<NS::Value> numberFrom(std::string_view text, Options... options)
{
    T number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, options...);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

std::string_view withoutPlus(std::string_view text)
{
    return text.substr(text.starts_with('+') && !text.starts_with("+-") ? 1 : 0);
}

std::optional<NS::Value> integerFrom(std::string_view text)
{
    text = withoutPlus(text);
    if (text.starts_with("0x") || text.starts_with("0X")) {
        const auto magnitude = numberFrom<std::uint64_t>(text.substr(2), 16);
        return magnitude && magnitude->integer() ? magnitude : std::nullopt;
    }
    return numberFrom<std::int64_t>(text, 10);
}

std::optional<NS::Value> realFrom(std::string_view text)
{
    return numberFrom<double>(withoutPlus(text));
}

std::optional<NS::Value> dateFrom(std::string text)
{
    // As `read` prints it.
    constexpr std::string_view zone = " +0000";
    if (text.ends_with(zone)) {
        text.replace(text.size() - zone.size(), zone.size(), "Z");
        std::ranges::replace(text, ' ', 'T');
    }
    // A program that knows no other years could not read the file any more.
    const auto first = LinuxDesktop::DateText::parse("0001-01-01T00:00:00Z");
    const auto end = LinuxDesktop::DateText::parse("10000-01-01T00:00:00Z");
    const auto date = LinuxDesktop::DateText::parse(text);
    if (!date || date->timeIntervalSince1970 < first->timeIntervalSince1970 ||
        date->timeIntervalSince1970 >= end->timeIntervalSince1970)
        return std::nullopt;
    return *date;
}

std::optional<NS::Value> dataFrom(std::string text)
{
    if (text.starts_with('<') && text.ends_with('>'))
        text = text.substr(1, text.size() - 2);
    std::erase(text, ' ');
    if (text.size() % 2 != 0)
        return std::nullopt;
    NS::Data data;
    for (std::size_t at = 0; at < text.size(); at += 2) {
        std::uint8_t byte = 0;
        const char* const first = text.data() + at;
        const auto [end, error] = std::from_chars(first, first + 2, byte, 16);
        if (error != std::errc() || end != first + 2)
            return std::nullopt;
        data.push_back(byte);
    }
    return data;
}

Result<NS::Value> valueFromXML(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    return LinuxDesktop::PropertyList::parse(text);
}

Result<NS::Value> dictionaryFrom(std::span<const std::string> words)
{
    if (words.size() % 2 != 0)
        return Failure{"-dict takes a value for each key"};
    NS::Value::Dictionary dictionary;
    for (std::size_t i = 0; i < words.size(); i += 2)
        dictionary.insert_or_assign(words[i], words[i + 1]);
    return dictionary;
}

} // namespace

Result<NS::Value> typedValue(std::string_view type, std::span<const std::string> words)
{
    if (type == "-array")
        return NS::Value::Array(words.begin(), words.end());
    if (type == "-dict")
        return dictionaryFrom(words);

    using Reader = std::optional<NS::Value> (*)(const std::string&);
    struct Simple {
        std::string_view type;
        Reader read;
    };
    static constexpr std::array<Simple, 6> simple{{
        {"-bool", booleanFrom},
        {"-int", [](const std::string& word) { return integerFrom(word); }},
        {"-float", [](const std::string& word) { return realFrom(word); }},
        {"-string", [](const std::string& word) { return std::optional<NS::Value>(word); }},
        {"-date", [](const std::string& word) { return dateFrom(word); }},
        {"-data", [](const std::string& word) { return dataFrom(word); }},
    }};
    const auto* const known = std::ranges::find(simple, type, &Simple::type);
    if (known == simple.end() && type != "-xml")
        return Failure{"unknown type " + std::string(type)};
    if (words.size() != 1)
        return Failure{std::string(type) + " takes one value"};
    if (type == "-xml")
        return valueFromXML(words.front());
    if (auto value = known->read(words.front()))
        return std::move(*value);
    return Failure{"bad value for " + std::string(type) + ": " + words.front()};
}

} // namespace DefaultsTool
