#include "platform/linux/system/OwnEnvironment.h"

#include "platform/linux/system/Command.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

using namespace LinuxDesktop;

namespace {

bool isHandedOn(const std::string& variable)
{
    return std::ranges::count(Command::environment(), variable) == 1;
}

} // namespace

TEST(OwnEnvironment, IsSeenByThisProcessAndNotByWhatItStarts)
{
    ::unsetenv("ORVIK_TEST_OWN");
    ::setenv("ORVIK_TEST_OWN_TOO", "others'", 1);
    OwnEnvironment::set("ORVIK_TEST_OWN", "mine");
    EXPECT_STREQ(std::getenv("ORVIK_TEST_OWN"), "mine");
    EXPECT_FALSE(isHandedOn("ORVIK_TEST_OWN=mine"));
    EXPECT_TRUE(isHandedOn("ORVIK_TEST_OWN_TOO=others'"));
}

TEST(OwnEnvironment, AnEmptyVariableIsAsNone)
{
    ::setenv("ORVIK_TEST_EMPTY", "", 1);
    OwnEnvironment::set("ORVIK_TEST_EMPTY", "mine");
    EXPECT_STREQ(std::getenv("ORVIK_TEST_EMPTY"), "mine");
    EXPECT_FALSE(isHandedOn("ORVIK_TEST_EMPTY=mine"));
}

TEST(OwnEnvironment, WhatAPersonHasSetStaysAndIsHandedOn)
{
    ::setenv("ORVIK_TEST_SET", "theirs", 1);
    OwnEnvironment::set("ORVIK_TEST_SET", "mine");
    EXPECT_STREQ(std::getenv("ORVIK_TEST_SET"), "theirs");
    EXPECT_TRUE(isHandedOn("ORVIK_TEST_SET=theirs"));
}
