#include "extension/actions/hide-unhide-item/HiddenList.h"

#include <gtest/gtest.h>

namespace {

using namespace MenuExtension;
using namespace std::string_literals;

TEST(HiddenList, NamesAreAddedInTheirOrderAfterWhatIsThere)
{
    EXPECT_EQ(HiddenList::with("", {"b", "a"}), "b\na\n");
    EXPECT_EQ(HiddenList::with("x\n", {"b", "a", "b"}), "x\nb\na\n");
}

TEST(HiddenList, AListThatDoesNotEndItsLastLineKeepsThatName)
{
    EXPECT_EQ(HiddenList::with("x", {"a"}), "x\na\n");
    EXPECT_EQ(HiddenList::without("x\na", {"a"}), "x\n");
    EXPECT_EQ(HiddenList::without("x\na", {"x"}), "a");
}

TEST(HiddenList, WhatIsListedIsNotAddedAgain)
{
    EXPECT_EQ(HiddenList::with("x\ny", {"y", "x"}), "x\ny");
}

TEST(HiddenList, EveryLineOfANameGoesAndAllOtherBytesStay)
{
    EXPECT_EQ(HiddenList::without("a\n\n\xff\r\n a\na \na\nA\n", {"a"}), "\n\xff\r\n a\na \nA\n");
    EXPECT_EQ(HiddenList::without("a\0b\nc\n"s, {"c"}), "a\0b\n"s);
    EXPECT_EQ(HiddenList::without("\n\n", {""}), "\n\n");
}

TEST(HiddenList, ALineHoldsOneName)
{
    EXPECT_FALSE(HiddenList::canHold("a\nb"));
    EXPECT_FALSE(HiddenList::canHold(""));
    EXPECT_TRUE(HiddenList::canHold("\xff\r $(x)"));
    EXPECT_EQ(HiddenList::namesIn("a\n\nb\r\nc"), (std::set<std::string_view>{"a", "b\r", "c"}));
}

} // namespace
