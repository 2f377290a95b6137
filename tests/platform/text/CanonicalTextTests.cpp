#include "platform/linux/text/CanonicalText.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using LinuxDesktop::canonicallyEqual;
using Pairs = std::vector<std::pair<std::string, std::string>>;

TEST(CanonicalText, IsTheSameInEveryNormalForm)
{
    const Pairs equal{
        {"", ""},
        {"/home/someone/Documents", "/home/someone/Documents"},
        {"Caf\u00e9", "Cafe\u0301"},
        // Two marks, in both orders.
        {"q\u0307\u0323", "q\u0323\u0307"},
        {"\u1e69", "s\u0307\u0323"},
        // Hangul, as a syllable and as its letters.
        {"\ud55c", "\u1112\u1161\u11ab"},
        {"\u212b", "A\u030a"},
        {"\u00c5", "\u212b"},
        {"\U0002f800", "\u4e3d"},
    };
    for (const auto& [one, other] : equal) {
        EXPECT_TRUE(canonicallyEqual(one, other)) << one << " and " << other;
        EXPECT_TRUE(canonicallyEqual(other, one)) << other << " and " << one;
    }
}

TEST(CanonicalText, MayBeAsciiOnOneSide)
{
    const Pairs equal{{"\u212a", "K"}, {"\u037e", ";"}, {"\u1fef", "`"}, {"/a/\u212a", "/a/K"}};
    for (const auto& [one, other] : equal) {
        EXPECT_TRUE(canonicallyEqual(one, other)) << one << " and " << other;
        EXPECT_TRUE(canonicallyEqual(other, one)) << other << " and " << one;
    }
}

TEST(CanonicalText, DiffersWhereOnlyTheLookOrTheMeaningIsAlike)
{
    const Pairs different{
        {"docs", "Docs"},
        {"docs", "docs "},
        {"docs", "docs/"},
        {"Cafe", "Caf\u00e9"},
        // Compatibility is not equivalence.
        {"\ufb01", "fi"},
        {"\uff21", "A"},
        {"\u00a0", " "},
        {"\u00df", "ss"},
        // Marks of one class keep their order.
        {"a\u0301\u0300", "a\u0300\u0301"},
        {"zero\u200bwidth", "zerowidth"},
        {"\ufeffdocs", "docs"},
    };
    for (const auto& [one, other] : different) {
        EXPECT_FALSE(canonicallyEqual(one, other)) << one << " and " << other;
        EXPECT_FALSE(canonicallyEqual(other, one)) << other << " and " << one;
    }
}

TEST(CanonicalText, ThatIsNotUtf8IsItselfAlone)
{
    EXPECT_TRUE(canonicallyEqual("a\xff", "a\xff"));
    EXPECT_FALSE(canonicallyEqual("a\xff", "a\xfe"));
    EXPECT_FALSE(canonicallyEqual("a\xff", "a\ufffd"));
    // The first byte of two.
    EXPECT_FALSE(canonicallyEqual("a\xc3", "a\xc4"));
    EXPECT_FALSE(canonicallyEqual("a\xc3", "a"));
}

} // namespace
