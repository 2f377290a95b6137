#include "platform/linux/store/PropertyList.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace {

using namespace LinuxDesktop::PropertyList;

NS::Value nested(std::size_t levels)
{
    NS::Value value(NS::Value::Array{});
    for (std::size_t i = 1; i < levels; ++i)
        value = NS::Value::Array{value};
    return value;
}

std::string written(const NS::Value& value)
{
    const auto bytes = serialise(value);
    EXPECT_TRUE(bytes) << bytes.error();
    return bytes ? *bytes : std::string();
}

/// What stands between the root element's tags.
std::string inside(const NS::Value& value)
{
    const std::string text = written(value);
    const std::string opening = "<plist version=\"1.0\">\n";
    const auto from = text.find(opening) + opening.size();
    return text.substr(from, text.rfind("</plist>") - from);
}

TEST(PropertyListWriter, TheLayoutIsTheUsualOne)
{
    const NS::Value value(NS::Value::Dictionary{
        {"array", NS::Value::Array{NS::Value(1), NS::Value(NS::Value::Array{})}},
        {"boolean", true},
        {"data", NS::Data(60, 0xff)},
        {"date", NS::Date{1709251199.0}},
        {"dictionary", NS::Value::Dictionary{}},
        {"large", std::numeric_limits<std::uint64_t>::max()},
        {"real", 1.5},
        {"text", "a < b & c > \"d\"\r\n\t"},
    });
    EXPECT_EQ(written(value), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                              "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                              "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                              "<plist version=\"1.0\">\n"
                              "<dict>\n"
                              "\t<key>array</key>\n"
                              "\t<array>\n"
                              "\t\t<integer>1</integer>\n"
                              "\t\t<array/>\n"
                              "\t</array>\n"
                              "\t<key>boolean</key>\n"
                              "\t<true/>\n"
                              "\t<key>data</key>\n"
                              "\t<data>\n"
                              "\t////////////////////////////////////////////////////////////////////\n"
                              "\t////////////\n"
                              "\t</data>\n"
                              "\t<key>date</key>\n"
                              "\t<date>2024-02-29T23:59:59Z</date>\n"
                              "\t<key>dictionary</key>\n"
                              "\t<dict/>\n"
                              "\t<key>large</key>\n"
                              "\t<integer>18446744073709551615</integer>\n"
                              "\t<key>real</key>\n"
                              "\t<real>1.5</real>\n"
                              "\t<key>text</key>\n"
                              "\t<string>a &lt; b &amp; c &gt; \"d\"&#13;\n\t</string>\n"
                              "</dict>\n"
                              "</plist>\n");
}

TEST(PropertyListWriter, IntegersAreWrittenOverTheirWholeRange)
{
    using Limits = std::numeric_limits<std::int64_t>;
    EXPECT_EQ(inside(Limits::min()), "<integer>-9223372036854775808</integer>\n");
    EXPECT_EQ(inside(0), "<integer>0</integer>\n");
    EXPECT_EQ(inside(Limits::max()), "<integer>9223372036854775807</integer>\n");
}

TEST(PropertyListWriter, RealsAreWrittenInTheShortestFormThatReadsTheSame)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(inside(0.1), "<real>0.1</real>\n");
    EXPECT_EQ(inside(-0.0), "<real>-0</real>\n");
    EXPECT_EQ(inside(1e300), "<real>1e+300</real>\n");
    EXPECT_EQ(inside(infinity), "<real>+infinity</real>\n");
    EXPECT_EQ(inside(-infinity), "<real>-infinity</real>\n");
    EXPECT_EQ(inside(std::nan("")), "<real>nan</real>\n");
}

TEST(PropertyListWriter, WhatAFileCannotHoldIsNamed)
{
    const std::vector<NS::Value> unstorable{
        NS::Value(std::string("\x80")),
        NS::Value(std::string("\xc3")),
        NS::Value(std::string("\xc0\x80")),
        NS::Value(std::string("\xe0\x80\x80")),
        NS::Value(std::string("\xed\xa0\x80")),
        NS::Value(std::string("\xf4\x90\x80\x80")),
        NS::Value(std::string("\xf8\x88\x80\x80\x80")),
        NS::Value(std::string("\xf0\x9f\x98")),
        NS::Value(std::string("a\0b", 3)),
        NS::Value(std::string("\x1b[0m")),
        NS::Value(std::string("\xef\xbf\xbe")),
        NS::Value(std::string("\xef\xbf\xbf")),
        NS::Value(NS::Date{std::nan("")}),
        NS::Value(NS::Date{std::numeric_limits<double>::infinity()}),
        NS::Value(NS::Date{1e18}),
        NS::Value(std::string(maximumBytes, 'a')),
        NS::Value(std::string(maximumBytes / 4, '&')),
        NS::Value(NS::Data(maximumBytes - 1)),
        NS::Value(NS::Value::Array{NS::Value(NS::Value::Dictionary{{"\x01", true}})}),
        nested(maximumDepth),
    };
    for (const NS::Value& value : unstorable) {
        EXPECT_TRUE(unstorableReason(value));
        EXPECT_FALSE(serialise(NS::Value::Dictionary{{"k", value}}));
    }
    EXPECT_TRUE(unstorableKeyReason(std::string_view("\0", 1)));
    EXPECT_TRUE(unstorableKeyReason("\xff"));
    EXPECT_FALSE(unstorableKeyReason(""));
}

TEST(PropertyListWriter, WhatAFileCanHoldIsReadBackAsItWas)
{
    const std::vector<NS::Value> storable{
        NS::Value("\t\n\r\r\n\x7f"),
        NS::Value("\xc2\x80\xdf\xbf\xe0\xa0\x80\xed\x9f\xbf\xee\x80\x80\xef\xbf\xbd\xf0\x90\x80\x80\xf4\x8f\xbf\xbf"),
        NS::Value("\xf0\x9f\xbf\xbe"),
        NS::Value("]]> &amp; <!-- "),
        NS::Value(" leading and trailing "),
        NS::Value(NS::Data{}),
        NS::Value(std::numeric_limits<std::int64_t>::min()),
        NS::Value(std::numeric_limits<std::uint64_t>::max()),
        NS::Value(std::numeric_limits<double>::denorm_min()),
        NS::Value(-0.0),
        NS::Value(std::nan("")),
        NS::Value(NS::Date{-62198755200.0}),
        NS::Value(NS::Date{5.25}),
        nested(maximumDepth - 1),
    };
    for (const NS::Value& value : storable) {
        EXPECT_FALSE(unstorableReason(value));
        const NS::Value root(NS::Value::Dictionary{{"k\r\"&<>", value}});
        const auto back = parse(written(root));
        ASSERT_TRUE(back) << back.error();
        EXPECT_TRUE(identical(*back, root)) << written(root);
    }
}

TEST(PropertyListWriter, EveryLengthOfDataIsReadBackAtEveryDepth)
{
    for (std::size_t length = 0; length < 130; ++length) {
        NS::Data data(length);
        for (std::size_t i = 0; i < length; ++i)
            data[i] = static_cast<std::uint8_t>(i * 37);
        NS::Value value(data);
        for (std::size_t level = 0; level < 14; ++level) {
            const auto back = parse(written(value));
            ASSERT_TRUE(back) << back.error();
            ASSERT_EQ(*back, value);
            value = NS::Value::Array{value};
        }
    }
}

TEST(PropertyList, ValuesAreIdenticalOnlyWithTheirKindAndBits)
{
    EXPECT_TRUE(identical(NS::Value(std::nan("")), NS::Value(-std::nan(""))));
    EXPECT_FALSE(identical(NS::Value(0.0), NS::Value(-0.0)));
    EXPECT_FALSE(identical(NS::Value(1), NS::Value(1.0)));
    EXPECT_FALSE(identical(NS::Value(1), NS::Value(true)));
    EXPECT_FALSE(identical(NS::Value(NS::Value::Array{NS::Value(1)}), NS::Value(NS::Value::Array{})));
    EXPECT_FALSE(identical(NS::Value(NS::Value::Dictionary{{"a", 1}}), NS::Value(NS::Value::Dictionary{{"b", 1}})));
    EXPECT_TRUE(
        identical(NS::Value(NS::Value::Dictionary{{"a", 1.5}}), NS::Value(NS::Value::Dictionary{{"a", 1.5}})));
}

} // namespace
