#include "extensions/ExtensionStatus.h"

#include <gtest/gtest.h>

using namespace ExtensionsTool;
using Activity = ExtensionStatus::Activity;

namespace {

std::string words(const ExtensionStatus& status)
{
    return inWords(status).toStdString();
}

} // namespace

TEST(ExtensionStatus, IsOnWhenItRunsNowAndStartsAtLogIn)
{
    EXPECT_TRUE(isOn({.startsAtLogIn = true, .runs = true}));
    EXPECT_FALSE(isOn({.startsAtLogIn = true, .runs = false}));
    EXPECT_FALSE(isOn({.startsAtLogIn = false, .runs = true}));
    EXPECT_FALSE(isOn({}));
}

TEST(ExtensionStatus, IsToldInWords)
{
    EXPECT_EQ(words({.startsAtLogIn = true, .runs = true}), "It is running, and it starts at log-in.");
    EXPECT_EQ(words({}), "It is switched off.");
    EXPECT_EQ(words({.startsAtLogIn = true}), "It is set to start at log-in, but it is not running.");
    EXPECT_EQ(words({.runs = true}), "It is running, but it is not set to start at log-in.");
    EXPECT_EQ(words({.startsAtLogIn = true, .activity = Activity::Starting}), "Starting…");
    EXPECT_EQ(words({.runs = true, .activity = Activity::Stopping}), "Ending…");
    EXPECT_EQ(words({.hasBus = false}), "There is no session bus, so it can neither run nor be switched.");
    EXPECT_EQ(words({.hasBus = false, .startsAtLogIn = true}),
              "There is no session bus, so it can neither run nor be switched. It is set to start at log-in.");
}

TEST(ExtensionStatus, TellsWhatWentWrongBeforeHowThingsStandNow)
{
    EXPECT_EQ(words({.trouble = QStringLiteral("It broke.")}), "It broke.");
    EXPECT_EQ(words({.startsAtLogIn = true, .runs = true, .trouble = QStringLiteral("It broke.")}), "It broke.");
    EXPECT_EQ(words({.startsAtLogIn = true, .trouble = QStringLiteral("It broke.")}),
              "It broke. It is set to start at log-in, but it is not running.");
}

TEST(ExtensionStatus, NeedsAttentionWhereItIsNeitherOnNorOff)
{
    EXPECT_FALSE(needsAttention({}));
    EXPECT_FALSE(needsAttention({.startsAtLogIn = true, .runs = true}));
    EXPECT_TRUE(needsAttention({.startsAtLogIn = true}));
    EXPECT_TRUE(needsAttention({.runs = true}));
    EXPECT_TRUE(needsAttention({.hasBus = false}));
    EXPECT_TRUE(needsAttention({.trouble = QStringLiteral("It broke.")}));
    EXPECT_FALSE(needsAttention({.startsAtLogIn = true, .activity = Activity::Starting}));
}
