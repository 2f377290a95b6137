#include "Support.h"
#include "platform/linux/store/PropertyList.h"

#include <bit>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

using DefaultsTests::propertyList;
using LinuxDesktop::PropertyList::maximumBytes;
using LinuxDesktop::PropertyList::maximumDepth;
using LinuxDesktop::PropertyList::parse;

std::optional<NS::Value> valueOf(std::string_view element)
{
    auto value = parse(propertyList(element));
    return value ? std::optional(*value) : std::nullopt;
}

std::string nested(std::size_t levels)
{
    std::string text;
    for (std::size_t i = 0; i < levels; ++i)
        text += "<array>";
    for (std::size_t i = 0; i < levels; ++i)
        text += "</array>";
    return text;
}

std::string inUTF16(std::string_view ascii, bool bigEndian)
{
    std::string text = bigEndian ? "\xfe\xff" : "\xff\xfe";
    for (const char character : ascii) {
        text += bigEndian ? '\0' : character;
        text += bigEndian ? character : '\0';
    }
    return text;
}

TEST(PropertyListReader, TheEightKindsAreKeptApart)
{
    const auto root = valueOf("<dict><key>a</key><true/><key>b</key><integer>1</integer><key>c</key><real>1</real>"
                              "<key>d</key><string>1</string><key>e</key><date>2024-01-01T00:00:00Z</date>"
                              "<key>f</key><data>MQ==</data><key>g</key><array><false/></array>"
                              "<key>h</key><dict/></dict>");
    ASSERT_TRUE(root);
    const auto& values = *root->dictionary();
    EXPECT_EQ(values.at("a"), NS::Value(true));
    EXPECT_EQ(values.at("b"), NS::Value(1));
    EXPECT_EQ(values.at("c"), NS::Value(1.0));
    EXPECT_EQ(values.at("d"), NS::Value("1"));
    EXPECT_EQ(values.at("e"), NS::Value(NS::Date{1704067200.0}));
    EXPECT_EQ(values.at("f"), NS::Value(NS::Data{'1'}));
    EXPECT_EQ(values.at("g"), NS::Value(NS::Value::Array{NS::Value(false)}));
    EXPECT_EQ(values.at("h"), NS::Value(NS::Value::Dictionary{}));
}

TEST(PropertyListReader, IntegersCoverSignedAndUnsigned64Bits)
{
    const std::vector<std::pair<const char*, NS::Value>> cases{
        {"0", 0},
        {"-1", -1},
        {"+7", 7},
        {" \n12\t", 12},
        {"007", 7},
        {"9223372036854775807", std::numeric_limits<std::int64_t>::max()},
        {"-9223372036854775808", std::numeric_limits<std::int64_t>::min()},
        {"9223372036854775808", std::uint64_t{1} << 63U},
        {"18446744073709551615", std::numeric_limits<std::uint64_t>::max()},
        {"0x1F", 31},
        {"0Xffffffffffffffff", std::numeric_limits<std::uint64_t>::max()},
        {"-0x8000000000000000", std::numeric_limits<std::int64_t>::min()},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(valueOf("<integer>" + std::string(text) + "</integer>"), expected) << text;
}

TEST(PropertyListReader, WhatIsNoIntegerIsRefused)
{
    for (const char* text :
         {"", "-", "1.0", "1e3", "0x", "abc", "1 2", "18446744073709551616", "-9223372036854775809", "--1", "+-1"})
        EXPECT_FALSE(valueOf("<integer>" + std::string(text) + "</integer>")) << text;
}

TEST(PropertyListReader, RealsAreReadInEveryForm)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::vector<std::pair<const char*, double>> cases{
        {"1", 1.0},
        {"-0.0", -0.0},
        {"+1.5", 1.5},
        {"1e10", 1e10},
        {"1E-3", 1e-3},
        {"0.10000000000000001", 0.1},
        {" 2.5\n", 2.5},
        {"4.9406564584124654e-324", std::numeric_limits<double>::denorm_min()},
        {"1.7976931348623157e308", std::numeric_limits<double>::max()},
        {"1e400", infinity},
        {"-1.5e400", -infinity},
        {"1e-400", 0.0},
        {"inf", infinity},
        {"+infinity", infinity},
        {"-infinity", -infinity},
        {"Infinity", infinity},
        {"-inf", -infinity},
    };
    for (const auto& [text, expected] : cases) {
        const auto value = valueOf("<real>" + std::string(text) + "</real>");
        ASSERT_TRUE(value && value->real()) << text;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(*value->real()), std::bit_cast<std::uint64_t>(expected)) << text;
    }
    for (const char* text : {"nan", "NaN", "+nan"}) {
        const auto value = valueOf("<real>" + std::string(text) + "</real>");
        ASSERT_TRUE(value && value->real()) << text;
        EXPECT_TRUE(std::isnan(*value->real()));
    }
    for (const char* text : {"", "1,5", "0x1p3", "nan(1)", "1.5x", "+-1", "infinite"})
        EXPECT_FALSE(valueOf("<real>" + std::string(text) + "</real>")) << text;
}

TEST(PropertyListReader, DataMayHaveWhiteSpaceAnywhere)
{
    const NS::Value expected(NS::Data{0, 1, 2, 253, 254, 255, 7});
    for (const char* text :
         {"AAEC/f7/Bw==", "\n\tAAEC\n\t/f7/\r\n\tBw=\n=\n", "A A E C / f 7 / B w = =", "AAEC/f7/Bw"})
        EXPECT_EQ(valueOf("<data>" + std::string(text) + "</data>"), expected) << text;
    EXPECT_EQ(valueOf("<data/>"), NS::Value(NS::Data{}));
    EXPECT_EQ(valueOf("<data>\n\t</data>"), NS::Value(NS::Data{}));
    EXPECT_EQ(valueOf("<data>AAE=</data>"), NS::Value(NS::Data{0, 1}));
    for (const char* text : {"A", "AAEC/", "AA=A", "AAE==", "AA*=", "=", "AAAA="})
        EXPECT_FALSE(valueOf("<data>" + std::string(text) + "</data>")) << text;
}

TEST(PropertyListReader, TextIsReadHoweverXMLWritesIt)
{
    EXPECT_EQ(valueOf("<string>a&amp;b&lt;c&gt;&quot;&apos;&#65;&#x1F600;&#13;&#10;</string>"),
              NS::Value("a&b<c>\"'A\xF0\x9F\x98\x80\r\n"));
    EXPECT_EQ(valueOf("<string><![CDATA[<a> & ]]>b</string>"), NS::Value("<a> & b"));
    EXPECT_EQ(valueOf("<string>a<!-- no -->b<?nor this?>c</string>"), NS::Value("abc"));
    EXPECT_EQ(valueOf("<string>a\r\nb\rc</string>"), NS::Value("a\nb\nc"));
    EXPECT_EQ(valueOf("<string> kept </string>"), NS::Value(" kept "));
    EXPECT_EQ(valueOf("<string/>"), NS::Value(""));
    EXPECT_EQ(valueOf("<!-- first --><array> <true></true> <!-- between --> </array><?last?>"),
              NS::Value(NS::Value::Array{NS::Value(true)}));
}

TEST(PropertyListReader, OfAKeyThatComesTwiceTheLastValueCounts)
{
    EXPECT_EQ(valueOf("<dict><key>k</key><integer>1</integer><key>a</key><true/><key>k</key><integer>2</integer>"
                      "<key/><false/></dict>"),
              NS::Value(NS::Value::Dictionary{{"k", 2}, {"a", true}, {"", false}}));
}

TEST(PropertyListReader, OtherEncodingsOfXMLAreRead)
{
    const std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-16\"?><plist><dict><key>k</key><true/></dict></plist>";
    const NS::Value expected(NS::Value::Dictionary{{"k", true}});
    for (const bool bigEndian : {false, true}) {
        const auto value = parse(inUTF16(text, bigEndian));
        ASSERT_TRUE(value) << value.error();
        EXPECT_EQ(*value, expected);
    }
    const auto marked = parse("\xef\xbb\xbf" + propertyList("<string>\xc3\xa9</string>"));
    ASSERT_TRUE(marked);
    EXPECT_EQ(*marked, NS::Value("\xc3\xa9"));
    const auto latin = parse("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><plist><string>\xe9</string></plist>");
    ASSERT_TRUE(latin);
    EXPECT_EQ(*latin, NS::Value("\xc3\xa9"));
}

TEST(PropertyListReader, TheWrapperAndTheDocumentTypeMayBeMissing)
{
    const auto value = parse("<dict><key>k</key><string>v</string></dict>");
    ASSERT_TRUE(value);
    EXPECT_EQ(*value, NS::Value(NS::Value::Dictionary{{"k", "v"}}));
}

TEST(PropertyListReader, EveryTruncationIsRefused)
{
    const std::string whole = propertyList("<dict><key>k</key><array><string>a&amp;b</string><data>AQ==</data>"
                                           "<date>2024-01-01T00:00:00Z</date></array></dict>");
    ASSERT_TRUE(parse(whole));
    // The last line end is not part of the document.
    for (std::size_t length = 0; length + 1 < whole.size(); ++length)
        EXPECT_FALSE(parse(std::string_view(whole).substr(0, length))) << length;
}

TEST(PropertyListReader, WhatIsWellFormedButNoPropertyListIsRefused)
{
    for (const char* inside : {"",
                               "<dict><key>k</key></dict>",
                               "<dict><true/></dict>",
                               "<dict><key>a</key><key>b</key><true/></dict>",
                               "<array><key>k</key></array>",
                               "<key>k</key>",
                               "<true/><true/>",
                               "<dict/><dict/>",
                               "<html/>",
                               "<array><nil/></array>",
                               "<string>a<true/></string>",
                               "<true>text</true>",
                               "<dict>text</dict>",
                               "<array>1</array>",
                               "text",
                               "<plist><true/></plist>",
                               "<array><plist/></array>",
                               "<date>yesterday</date>",
                               "<TRUE/>",
                               "<dict><key>k<b/></key><true/></dict>"})
        EXPECT_FALSE(valueOf(inside)) << inside;
    for (const char* text : {"", "\0", "bplist00", "{ a = 1; }", "<plist>", "<plist/>", "<plist><true/></plist>x",
                             "<a/>", "\xff\xff\xff", "<plist><string>\x80</string></plist>",
                             "<plist><string>&#0;</string></plist>", "<plist><string>&#xFFFE;</string></plist>"})
        EXPECT_FALSE(parse(text)) << text;
}

TEST(PropertyListReader, AFileThatDeclaresEntitiesIsRefusedAtOnce)
{
    std::string laughs = "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY a0 \"ha\">";
    for (int i = 1; i <= 60; ++i) {
        const std::string before = "&a" + std::to_string(i - 1) + ";";
        laughs += "<!ENTITY a" + std::to_string(i) + " \"" + before + before + "\">";
    }
    laughs += "]><plist><string>&a60;</string></plist>";
    const auto start = std::chrono::steady_clock::now();
    const auto value = parse(laughs);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(100));
    ASSERT_FALSE(value);
    EXPECT_NE(value.error().find("entity"), std::string::npos) << value.error();

    for (const char* subset : {"<!ENTITY a \"b\">", "<!ENTITY a SYSTEM \"/etc/hostname\">", "<!ENTITY % a \"b\">",
                               "<!ENTITY % a SYSTEM \"/etc/hostname\"> %a;"})
        EXPECT_FALSE(parse("<!DOCTYPE plist [" + std::string(subset) + "]><plist><true/></plist>")) << subset;
}

TEST(PropertyListReader, AnotherFileIsNeverLookedAt)
{
    const DefaultsTests::TemporaryFolder folder;
    DefaultsTests::writeFile(folder / "types.dtd", "<!ENTITY secret \"found\">");
    const std::string type = "<!DOCTYPE plist SYSTEM \"" + (folder / "types.dtd") + "\">";
    EXPECT_TRUE(parse(type + "<plist><true/></plist>"));
    // A reference that only that file could explain is not left out in silence either.
    EXPECT_FALSE(parse(type + "<plist><string>a&secret;b</string></plist>"));
}

TEST(PropertyListReader, SixtyFourLevelsAreReadAndNoMore)
{
    EXPECT_TRUE(valueOf(nested(maximumDepth)));
    EXPECT_FALSE(valueOf(nested(maximumDepth + 1)));
    EXPECT_FALSE(valueOf(nested(10000)));
    EXPECT_FALSE(parse(nested(1000000)));
}

TEST(PropertyListReader, WhatIsLargerThanTheBoundIsRefused)
{
    const std::string before = "<plist><string>";
    const std::string after = "</string></plist>";
    const std::string largest = before + std::string(maximumBytes - before.size() - after.size(), 'a') + after;
    EXPECT_TRUE(parse(largest));
    EXPECT_FALSE(parse(largest + " "));
}

} // namespace
