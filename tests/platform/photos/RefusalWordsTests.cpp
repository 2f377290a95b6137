#include "extension/actions/photos/RefusalWords.h"

#include "platform/LocalizedString.h"

#include <gtest/gtest.h>

namespace {

using MenuExtension::Photos::refusalInWords;

std::string german(std::string_view table, std::string_view text)
{
    if (table == "Photos" && text == "is too large: it has %1 × %2 pixels")
        return "ist zu groß: %1 mal %2 Pixel";
    return table == "Photos" && text == "cannot be made that small" ? "wird nicht so klein" : std::string(text);
}

struct RefusalWords : testing::Test {
    RefusalWords() { NS::setLocalizer(german); }
    ~RefusalWords() override { NS::setLocalizer(nullptr); }
};

TEST_F(RefusalWords, AreInTheLanguageOfTheUser)
{
    EXPECT_EQ(refusalInWords("cannot be made that small"), "wird nicht so klein");
}

TEST_F(RefusalWords, KeepTheNumbers)
{
    EXPECT_EQ(refusalInWords("is too large: it has 30000 × 20001 pixels"), "ist zu groß: 30000 mal 20001 Pixel");
}

TEST_F(RefusalWords, StayWhereTheyAreInNoCatalogue)
{
    EXPECT_EQ(refusalInWords("has 1, 22 and 333 faults, 100 % of %1"), "has 1, 22 and 333 faults, 100 % of %1");
    EXPECT_EQ(refusalInWords(""), "");
}

} // namespace
