#include "platform/linux/store/PropertyList.h"

#include "platform/linux/store/Base64.h"
#include "platform/linux/store/DateText.h"
#include "platform/linux/store/RealText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>
#include <cstdint>
#include <limits>
#include <span>

namespace LinuxDesktop::PropertyList {

namespace {

constexpr std::string_view header =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n";
constexpr std::string_view footer = "</plist>\n";

/// The length in bytes of the UTF-8 sequence at the start of `text`, 0 when it is none, with the character it
/// stands for.
std::size_t decodeFirst(std::string_view text, char32_t& character)
{
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byteAt(0);
    if (lead < 0x80) {
        character = lead;
        return 1;
    }
    const std::size_t length = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (lead < 0xc2 || lead > 0xf4 || text.size() < length)
        return 0;
    character = lead & (0xffU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(i) & 0xc0U) != 0x80)
            return 0;
        character = character << 6U | (byteAt(i) & 0x3fU);
    }
    static constexpr std::array<char32_t, 5> lowest{0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xd800 && character <= 0xdfff;
    return character < lowest.at(length) || character > 0x10ffff || surrogate ? 0 : length;
}

/// Written as it is, as most of what is stored; the rest is looked at character by character.
bool isPlain(char character)
{
    // A table, for this is where long lists take their time.
    static constexpr auto plain = [] {
        std::array<bool, 0x100> table{};
        for (unsigned char i = 0x20; i < 0x7f; ++i)
            table.at(i) = i != '&' && i != '<' && i != '>';
        return table;
    }();
    return plain[static_cast<unsigned char>(character)];
}

std::string_view escaped(std::string_view character)
{
    switch (character.front()) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '\r':
        // Written as itself it would be read as a line feed.
        return "&#13;";
    default:
        return character;
    }
}

/// Hands the text as it stands in a file to `take`, piece by piece; gives why it cannot stand there, or null.
template<class Take>
const char* escape(std::string_view text, Take take)
{
    while (true) {
        const auto plain = static_cast<std::size_t>(std::ranges::find_if_not(text, isPlain) - text.begin());
        take(text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.empty())
            return nullptr;
        char32_t character = 0;
        const std::size_t length = decodeFirst(text, character);
        if (length == 0)
            return "text that is not UTF-8";
        if (character < 0x20 && character != '\t' && character != '\n' && character != '\r')
            return "text with a control character";
        if (character == 0xfffe || character == 0xffff)
            return "text with U+FFFE or U+FFFF";
        take(escaped(text.substr(0, length)));
        text.remove_prefix(length);
    }
}

/// Writes values, and knows by that what cannot be written.
class Writer {
public:
    /// Of a root dictionary's values, `known` are written as they are.
    explicit Writer(Texts known, std::size_t expectedBytes) : m_known(std::move(known))
    {
        m_out.reserve(expectedBytes);
    }
    /// For a value in a root dictionary.
    Writer() : m_indent(1) {}

    [[nodiscard]] const std::optional<std::string>& error() const { return m_error; }
    [[nodiscard]] std::string take() { return std::move(m_out); }

    void write(const NS::Value& value, std::size_t level)
    {
        if (m_error)
            return;
        switch (value.kind()) {
        case NS::Value::Kind::Boolean:
            return line(*value.boolean() ? "<true/>" : "<false/>");
        case NS::Value::Kind::Integer:
            return value.integer() ? integerElement(*value.integer()) : integerElement(*value.largeInteger());
        case NS::Value::Kind::Real:
            return element("real", RealText::format(*value.real()));
        case NS::Value::Kind::String:
            return textElement("string", *value.string());
        case NS::Value::Kind::Date:
            if (const auto text = DateText::format(*value.date()))
                return element("date", *text);
            return fail("a date that is not finite or too far away");
        case NS::Value::Kind::Data:
            return writeData(*value.data());
        case NS::Value::Kind::Array:
            return writeArray(*value.array(), level);
        case NS::Value::Kind::Dictionary:
            return writeDictionary(*value.dictionary(), level);
        }
    }

    void raw(std::string_view text)
    {
        m_out += text;
        checkSize(0);
    }

private:
    void fail(std::string_view why)
    {
        if (!m_error)
            m_error = why;
    }

    void checkSize(std::size_t more)
    {
        if (more > maximumBytes || m_out.size() > maximumBytes - more)
            fail("more than " + std::to_string(maximumBytes >> 20U) + " MiB");
    }

    void line(std::string_view text)
    {
        m_out.append(m_indent, '\t');
        m_out += text;
        m_out += '\n';
        checkSize(0);
    }

    void begin(std::string_view name)
    {
        m_out.append(m_indent, '\t');
        ((m_out += '<') += name) += '>';
    }

    void end(std::string_view name)
    {
        ((m_out += "</") += name) += ">\n";
        checkSize(0);
    }

    void element(std::string_view name, std::string_view text)
    {
        begin(name);
        m_out += text;
        end(name);
    }

    void integerElement(std::integral auto value)
    {
        std::array<char, std::numeric_limits<decltype(value)>::digits10 + 2> digits{};
        const auto* const last = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
        element("integer", {digits.data(), last});
    }

    void textElement(std::string_view name, std::string_view text)
    {
        checkSize(text.size());
        if (m_error)
            return;
        begin(name);
        if (const char* const reason = escape(text, [this](std::string_view piece) { m_out += piece; }))
            fail(reason);
        end(name);
    }

    void writeData(std::span<const std::uint8_t> data)
    {
        checkSize(data.size());
        if (m_error)
            return;
        constexpr std::size_t widest = 76;
        constexpr std::size_t narrowest = 16;
        constexpr std::size_t tabWidth = 8;
        const std::size_t indented = std::min(widest, m_indent * tabWidth);
        const std::size_t bytesPerLine = std::max(narrowest, widest - indented) / 4 * 3;
        line("<data>");
        for (std::size_t at = 0; at < data.size(); at += bytesPerLine) {
            m_out.append(m_indent, '\t');
            Base64::append(m_out, data.subspan(at, std::min(bytesPerLine, data.size() - at)));
            m_out += '\n';
        }
        line("</data>");
    }

    [[nodiscard]] bool enter(std::size_t level)
    {
        if (level > maximumDepth)
            fail("more than " + std::to_string(maximumDepth) + " levels");
        return !m_error;
    }

    void writeArray(const NS::Value::Array& array, std::size_t level)
    {
        if (!enter(level))
            return;
        if (array.empty())
            return line("<array/>");
        line("<array>");
        ++m_indent;
        for (const NS::Value& item : array)
            write(item, level + 1);
        --m_indent;
        line("</array>");
    }

    void writeDictionary(const NS::Value::Dictionary& dictionary, std::size_t level)
    {
        if (!enter(level))
            return;
        if (dictionary.empty())
            return line("<dict/>");
        line("<dict>");
        ++m_indent;
        for (const auto& [key, item] : dictionary) {
            textElement("key", key);
            if (const auto known = m_known.find(key); level == 1 && known != m_known.end())
                raw(known->second);
            else
                write(item, level + 1);
        }
        --m_indent;
        line("</dict>");
    }

    const Texts m_known;
    std::string m_out;
    std::optional<std::string> m_error;
    std::size_t m_indent = 0;
};

} // namespace

Result<std::string> serialise(const NS::Value& value, const Texts& known, std::size_t expectedBytes)
{
    Writer writer(known, expectedBytes);
    writer.raw(header);
    writer.write(value, 1);
    writer.raw(footer);
    if (writer.error())
        return Failure{*writer.error()};
    return writer.take();
}

Result<std::string> textInRoot(const NS::Value& value)
{
    Writer writer;
    writer.write(value, 2);
    if (writer.error())
        return Failure{*writer.error()};
    return writer.take();
}

std::optional<std::string> unstorableReason(const NS::Value& value)
{
    const auto text = textInRoot(value);
    return text ? std::nullopt : std::optional(text.error());
}

std::optional<std::string> unstorableKeyReason(std::string_view key)
{
    const char* const reason = escape(key, [](std::string_view) {});
    return reason ? std::optional<std::string>(reason) : std::nullopt;
}

} // namespace LinuxDesktop::PropertyList
