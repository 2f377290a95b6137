#include "platform/LocalizedString.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace {

std::string shouting(std::string_view table, std::string_view text)
{
    errno = EIO;
    return std::string(table) + '/' + std::string(text) + '!';
}

struct LocalizedString : testing::Test {
    ~LocalizedString() override { NS::setLocalizer(nullptr); }
};

TEST_F(LocalizedString, IsTheTextItselfWhereNobodyLocalizes)
{
    EXPECT_EQ(NS::LocalizedString("Screen", "Remove selected folder?"), "Remove selected folder?");
}

TEST_F(LocalizedString, IsWhatTheLocalizerSaysOfTheTextInItsTable)
{
    NS::setLocalizer(shouting);

    EXPECT_EQ(NS::LocalizedString("Screen", "OK"), "Screen/OK!");
}

TEST_F(LocalizedString, OfNoTextIsNone)
{
    NS::setLocalizer(shouting);

    EXPECT_EQ(NS::LocalizedString("Screen", ""), "");
}

TEST_F(LocalizedString, LeavesTheReasonOfAFailureAlone)
{
    NS::setLocalizer(shouting);
    errno = EACCES;

    static_cast<void>(NS::LocalizedString("Screen", "OK"));

    EXPECT_EQ(errno, EACCES);
}

TEST_F(LocalizedString, IsEnglishWhereItIsOnlyMarked)
{
    NS::setLocalizer(shouting);

    EXPECT_EQ(NS::LocalizableString("Screen", "OK"), "OK");
}

TEST(StringWithFormat, PutsEachArgumentInItsPlaces)
{
    EXPECT_EQ(NS::stringWithFormat("%2, then %1, then %2", {"one", "two"}), "two, then one, then two");
}

TEST(StringWithFormat, LeavesPlacesWithoutAnArgumentAndOtherPercentSigns)
{
    EXPECT_EQ(NS::stringWithFormat("100 % of %2, %0 and %", {"one"}), "100 % of %2, %0 and %");
}

TEST(StringWithFormat, DoesNotLookIntoArguments)
{
    EXPECT_EQ(NS::stringWithFormat("%1 and %2", {"%2", "two"}), "%2 and two");
}

} // namespace
