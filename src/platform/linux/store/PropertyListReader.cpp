#include "platform/linux/store/PropertyList.h"

#include "platform/linux/store/Base64.h"
#include "platform/linux/store/DateText.h"
#include "platform/linux/store/RealText.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <expat.h>
#include <memory>
#include <utility>
#include <vector>

namespace LinuxDesktop::PropertyList {

namespace {

constexpr std::string_view whiteSpace = " \t\n\r";

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

/// Decimal or hexadecimal with 0x; -2^63 to 2^64-1.
std::optional<NS::Value> integerFromText(std::string_view text)
{
    text = trimmed(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
        base = 16;
    }
    std::uint64_t magnitude = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), magnitude, base);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    if (!negative)
        return magnitude;
    constexpr std::uint64_t lowest = std::uint64_t{1} << 63U;
    if (magnitude > lowest)
        return std::nullopt;
    // Two's complement, so that the lowest integer needs no special case.
    return static_cast<std::int64_t>(~magnitude + 1);
}

enum class Element { Plist, Dictionary, Array, Key, String, Integer, Real, Date, Data, True, False };

std::optional<Element> elementNamed(std::string_view name)
{
    static constexpr std::array<std::pair<std::string_view, Element>, 11> names{{
        {"plist", Element::Plist},
        {"dict", Element::Dictionary},
        {"array", Element::Array},
        {"key", Element::Key},
        {"string", Element::String},
        {"integer", Element::Integer},
        {"real", Element::Real},
        {"date", Element::Date},
        {"data", Element::Data},
        {"true", Element::True},
        {"false", Element::False},
    }};
    for (const auto& [known, element] : names)
        if (known == name)
            return element;
    return std::nullopt;
}

std::optional<NS::Value> scalarFromText(Element element, std::string& text)
{
    switch (element) {
    case Element::String:
        return std::move(text);
    case Element::Integer:
        return integerFromText(text);
    case Element::Real:
        if (const auto real = RealText::parse(trimmed(text)))
            return *real;
        return std::nullopt;
    case Element::Date:
        if (const auto date = DateText::parse(trimmed(text)))
            return *date;
        return std::nullopt;
    case Element::Data:
        if (auto data = Base64::decode(text))
            return std::move(*data);
        return std::nullopt;
    case Element::True:
    case Element::False:
        if (trimmed(text).empty())
            return element == Element::True;
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

/// Builds the value from the parser's events, on a stack of its own so that no file can exhaust the thread's.
class Builder {
public:
    explicit Builder(XML_Parser parser) : m_parser(parser)
    {
        XML_SetUserData(parser, this);
        XML_SetElementHandler(
            parser, [](void* self, const char* name, const char**) { of(self).start(name); },
            [](void* self, const char*) { of(self).end(); });
        XML_SetCharacterDataHandler(parser, [](void* self, const char* text, int length) {
            of(self).characters({text, static_cast<std::size_t>(length)});
        });
        XML_SetEntityDeclHandler(parser, [](void* self, const char*, int, const char*, int, const char*, const char*,
                                            const char*, const char*) { of(self).fail("it declares an entity"); });
        // With a document type that lives elsewhere, the parser would leave such a reference out in silence.
        XML_SetSkippedEntityHandler(
            parser, [](void* self, const char*, int) { of(self).fail("it refers to an unknown entity"); });
    }

    Result<NS::Value> build(std::string_view bytes)
    {
        const auto status = XML_Parse(m_parser, bytes.data(), static_cast<int>(bytes.size()), XML_TRUE);
        if (m_error.empty() && status != XML_STATUS_OK)
            m_error = XML_ErrorString(XML_GetErrorCode(m_parser));
        if (!m_error.empty())
            return Failure{"line " + std::to_string(XML_GetCurrentLineNumber(m_parser)) + ": " + m_error};
        return std::move(*m_root);
    }

private:
    struct Container {
        bool isDictionary;
        NS::Value::Array array;
        NS::Value::Dictionary dictionary;
        std::optional<std::string> key;
    };

    static Builder& of(void* self) { return *static_cast<Builder*>(self); }

    void fail(std::string_view why)
    {
        if (m_error.empty())
            m_error = why;
        XML_StopParser(m_parser, XML_FALSE);
    }

    void start(std::string_view name)
    {
        // The parser hands over what it still has of the token in which it was stopped.
        if (!m_error.empty())
            return;
        const auto element = elementNamed(name);
        if (!element)
            return fail("an unknown element");
        if (m_leaf)
            return fail("an element inside a simple value");
        if (*element == Element::Plist) {
            if (m_inPlist || m_root || !m_containers.empty())
                return fail("a property list inside another");
            m_inPlist = true;
            return;
        }
        if (*element == Element::Key) {
            if (m_containers.empty() || !m_containers.back().isDictionary || m_containers.back().key)
                return fail("a key where none can stand");
        } else if (!acceptsValue()) {
            return fail("a value where none can stand");
        }
        if (*element == Element::Dictionary || *element == Element::Array) {
            if (m_containers.size() == maximumDepth)
                return fail("more than " + std::to_string(maximumDepth) + " levels");
            m_containers.push_back({*element == Element::Dictionary, {}, {}, {}});
            return;
        }
        m_leaf = element;
        m_text.clear();
    }

    void end()
    {
        if (!m_error.empty())
            return;
        if (m_leaf)
            return endLeaf(*std::exchange(m_leaf, std::nullopt));
        if (m_containers.empty()) {
            if (!m_root)
                fail("it holds no value");
            return;
        }
        Container container = std::move(m_containers.back());
        m_containers.pop_back();
        if (container.key)
            return fail("a key without a value");
        if (container.isDictionary)
            add(std::move(container.dictionary));
        else
            add(std::move(container.array));
    }

    void endLeaf(Element element)
    {
        if (element == Element::Key) {
            m_containers.back().key = std::move(m_text);
            return;
        }
        if (auto value = scalarFromText(element, m_text))
            add(std::move(*value));
        else
            fail("a value that is not of its kind");
    }

    void characters(std::string_view text)
    {
        if (m_leaf)
            m_text += text;
        else if (m_error.empty() && text.find_first_not_of(whiteSpace) != std::string_view::npos)
            fail("text outside a value");
    }

    [[nodiscard]] bool acceptsValue() const
    {
        if (m_containers.empty())
            return !m_root;
        return !m_containers.back().isDictionary || m_containers.back().key;
    }

    void add(NS::Value value)
    {
        if (m_containers.empty()) {
            m_root = std::move(value);
            return;
        }
        Container& container = m_containers.back();
        if (!container.isDictionary) {
            container.array.push_back(std::move(value));
            return;
        }
        // Files are sorted as a rule, which makes the end the right hint.
        container.dictionary.insert_or_assign(container.dictionary.end(), std::move(*container.key),
                                              std::move(value));
        container.key.reset();
    }

    XML_Parser m_parser;
    std::string m_error;
    std::vector<Container> m_containers;
    std::optional<NS::Value> m_root;
    std::optional<Element> m_leaf;
    std::string m_text;
    bool m_inPlist = false;
};

struct FreeParser {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

} // namespace

Result<NS::Value> parse(std::string_view bytes)
{
    if (bytes.size() > maximumBytes)
        return Failure{"it is larger than " + std::to_string(maximumBytes >> 20U) + " MiB"};
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, FreeParser> parser(XML_ParserCreate(nullptr));
    if (!parser)
        return Failure{"not enough memory"};
    return Builder(parser.get()).build(bytes);
}

} // namespace LinuxDesktop::PropertyList
