#include "defaults/ReadableText.h"

#include "platform/linux/store/DateText.h"
#include "platform/linux/store/RealText.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace DefaultsTool {

namespace {

constexpr std::size_t indentWidth = 4;

std::string dateText(NS::Date date)
{
    // Whatever a store holds has a text.
    std::string text = LinuxDesktop::DateText::format(date).value();
    std::ranges::replace(text, 'T', ' ');
    text.pop_back();
    return text + " +0000";
}

std::string dataText(const NS::Data& data)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "<";
    for (const auto byte : data) {
        text += digits[byte >> 4U];
        text += digits[byte & 0xfU];
    }
    return text + ">";
}

bool isPlainWord(std::string_view text)
{
    return !text.empty() && std::ranges::all_of(text, [](char character) {
        return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
               (character >= 'a' && character <= 'z') || character == '_' || character == '.' || character == '/';
    });
}

std::string quoted(std::string_view text)
{
    if (isPlainWord(text))
        return std::string(text);
    std::string result = "\"";
    for (const char character : text) {
        switch (character) {
        case '"':
        case '\\':
            result += '\\';
            result += character;
            break;
        case '\n':
            result += "\\n";
            break;
        case '\r':
            result += "\\r";
            break;
        case '\t':
            result += "\\t";
            break;
        default:
            result += character;
        }
    }
    return result + "\"";
}

std::string nestedText(const NS::Value& value, std::size_t indent);

std::string arrayText(const NS::Value::Array& array, std::size_t indent)
{
    if (array.empty())
        return "()";
    const std::string margin(indent + indentWidth, ' ');
    std::string text = "(";
    std::string_view separator = "\n";
    for (const NS::Value& item : array) {
        text += separator;
        text += margin + nestedText(item, indent + indentWidth);
        separator = ",\n";
    }
    return text + "\n" + std::string(indent, ' ') + ")";
}

std::string dictionaryText(const NS::Value::Dictionary& dictionary, std::size_t indent)
{
    if (dictionary.empty())
        return "{}";
    const std::string margin(indent + indentWidth, ' ');
    std::string text = "{\n";
    for (const auto& [key, item] : dictionary)
        text += margin + quoted(key) + " = " + nestedText(item, indent + indentWidth) + ";\n";
    return text + std::string(indent, ' ') + "}";
}

std::string nestedText(const NS::Value& value, std::size_t indent)
{
    switch (value.kind()) {
    case NS::Value::Kind::String:
        return quoted(*value.string());
    case NS::Value::Kind::Date:
        return quoted(dateText(*value.date()));
    case NS::Value::Kind::Array:
        return arrayText(*value.array(), indent);
    case NS::Value::Kind::Dictionary:
        return dictionaryText(*value.dictionary(), indent);
    default:
        return readableText(value);
    }
}

} // namespace

std::string readableText(const NS::Value& value)
{
    switch (value.kind()) {
    case NS::Value::Kind::Boolean:
        return *value.boolean() ? "1" : "0";
    case NS::Value::Kind::Integer:
        return value.integer() ? std::to_string(*value.integer()) : std::to_string(*value.largeInteger());
    case NS::Value::Kind::Real:
        return LinuxDesktop::RealText::format(*value.real());
    case NS::Value::Kind::String:
        return *value.string();
    case NS::Value::Kind::Date:
        return dateText(*value.date());
    case NS::Value::Kind::Data:
        return dataText(*value.data());
    case NS::Value::Kind::Array:
    case NS::Value::Kind::Dictionary:
        return nestedText(value, 0);
    }
    return {};
}

} // namespace DefaultsTool
