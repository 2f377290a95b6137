#include "platform/linux/store/DateText.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

using LinuxDesktop::DateText::format;
using LinuxDesktop::DateText::parse;

double secondsOf(std::string_view text)
{
    const auto date = parse(text);
    EXPECT_TRUE(date) << text;
    return date ? date->timeIntervalSince1970 : 0.0;
}

TEST(DateText, KnownMomentsHaveTheirNumbers)
{
    EXPECT_EQ(secondsOf("1970-01-01T00:00:00Z"), 0.0);
    EXPECT_EQ(secondsOf("1969-12-31T23:59:59Z"), -1.0);
    EXPECT_EQ(secondsOf("2001-01-01T00:00:00Z"), 978307200.0);
    EXPECT_EQ(secondsOf("2024-02-29T23:59:59Z"), 1709251199.0);
    EXPECT_EQ(secondsOf("0001-01-01T00:00:00Z"), -62135596800.0);
    EXPECT_EQ(secondsOf("4001-01-01T00:00:00Z"), 64092211200.0);
    EXPECT_EQ(secondsOf("0000-03-01T00:00:00Z"), -62162035200.0);
}

TEST(DateText, YearsOutsideTheUsualOnesAreReadAndWritten)
{
    for (const char* text : {"0000-01-01T00:00:00Z", "-0001-12-31T23:59:59Z", "-4712-01-01T12:00:00Z",
                             "10000-01-01T00:00:00Z", "2147483647-12-31T23:59:52Z", "-2147483648-01-01T00:00:00Z"}) {
        const auto date = parse(text);
        ASSERT_TRUE(date) << text;
        EXPECT_EQ(format(*date), text);
    }
    EXPECT_EQ(secondsOf("-001-01-01T00:00:00Z"), secondsOf("-0001-01-01T00:00:00Z"));
}

TEST(DateText, SmallerUnitsMayBeLeftOut)
{
    EXPECT_EQ(secondsOf("2024Z"), secondsOf("2024-01-01T00:00:00Z"));
    EXPECT_EQ(secondsOf("2024-05Z"), secondsOf("2024-05-01T00:00:00Z"));
    EXPECT_EQ(secondsOf("2024-05-06Z"), secondsOf("2024-05-06T00:00:00Z"));
    EXPECT_EQ(secondsOf("2024-05-06T07:08Z"), secondsOf("2024-05-06T07:08:00Z"));
}

TEST(DateText, AFractionIsReadAndWrittenBack)
{
    EXPECT_EQ(secondsOf("1970-01-01T00:00:05.25Z"), 5.25);
    EXPECT_EQ(secondsOf("1969-12-31T23:59:58.75Z"), -1.25);
    for (const char* text : {"2024-02-29T23:59:05.25Z", "1969-12-31T23:59:58.75Z", "1970-01-01T00:00:00.000000001Z",
                             "2024-02-29T23:59:59.999Z", "0001-01-01T00:00:00.5Z"}) {
        const auto date = parse(text);
        ASSERT_TRUE(date) << text;
        EXPECT_EQ(format(*date), text);
    }
}

TEST(DateText, WhatWasReadIsWrittenAsTheSameMoment)
{
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        const auto seconds = std::uniform_int_distribution<std::int64_t>(-62135596800, 253402300799)(random);
        const auto fraction = std::uniform_int_distribution<int>(0, 999999999)(random);
        const auto whole = format(NS::Date{static_cast<double>(seconds)});
        ASSERT_TRUE(whole);
        const auto date =
            parse(whole->substr(0, whole->size() - 1) + "." + std::to_string(1000000000 + fraction).substr(1) + "Z");
        ASSERT_TRUE(date);
        const auto text = format(*date);
        ASSERT_TRUE(text);
        EXPECT_EQ(parse(*text), date) << *text;
    }
}

TEST(DateText, WhatIsNoDateIsNotRead)
{
    for (const char* text : {"",
                             "Z",
                             "2024",
                             "24-01-01T00:00:00Z",
                             "2024-13-01T00:00:00Z",
                             "2024-00-01T00:00:00Z",
                             "2023-02-29T00:00:00Z",
                             "2024-01-32T00:00:00Z",
                             "2024-01-01T24:00:00Z",
                             "2024-01-01T00:60:00Z",
                             "2024-01-01T00:00:60Z",
                             "2024-01-01T00:00:00",
                             "2024-01-01T00:00:00ZZ",
                             "2024-01-01 00:00:00Z",
                             "2024-1-1T00:00:00Z",
                             "2024-01-01T00:00:00.Z",
                             "2024-01-01T00:00.5Z",
                             "99999999999-01-01T00:00:00Z",
                             "2147483648-01-01T00:00:00Z",
                             "+2024-01-01T00:00:00Z",
                             "2024-01-01T00:00:00+01:00"})
        EXPECT_FALSE(parse(text)) << text;
}

TEST(DateText, MomentsThatNoTextHoldsHaveNone)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double seconds : {infinity, -infinity, std::nan(""), 1e300, -1e300, 6.8e16, -6.8e16})
        EXPECT_FALSE(format(NS::Date{seconds})) << seconds;
}

} // namespace
