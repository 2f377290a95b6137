#include "support/FakeButton.h"

#include <gtest/gtest.h>

namespace {

class Control : public testing::Test {
protected:
    CallLog calls;
    FakeButton button{calls, "button"};
};

TEST_F(Control, WithoutAnActionDoesNothing)
{
    button.click();
    EXPECT_TRUE(calls.lines().empty());
}

TEST_F(Control, PassesItselfToItsAction)
{
    const NS::Control* sender = nullptr;
    button.setAction([&](NS::Control& control) { sender = &control; });

    button.click();

    EXPECT_EQ(sender, &button);
}

TEST_F(Control, ANewActionReplacesTheOldOne)
{
    int first = 0;
    int second = 0;
    button.setAction([&](NS::Control&) { ++first; });
    button.setAction([&](NS::Control&) { ++second; });

    button.click();

    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

TEST_F(Control, AnActionMayReplaceItselfWhileItRuns)
{
    int replaced = 0;
    int replacement = 0;
    button.setAction([&](NS::Control& control) {
        control.setAction([&](NS::Control&) { ++replacement; });
        ++replaced;
    });

    button.click();
    button.click();

    EXPECT_EQ(replaced, 1);
    EXPECT_EQ(replacement, 1);
}

TEST_F(Control, CarriesATagThatIsZeroAtFirst)
{
    EXPECT_EQ(button.tag(), 0);
    button.setTag(-3);
    EXPECT_EQ(button.tag(), -3);
}

} // namespace
