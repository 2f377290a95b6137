#include "platform/Print.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <unistd.h>

namespace {

TEST(Print, WritesEachLineWithItsEndAndNothingElse)
{
    testing::internal::CaptureStdout();

    NS::print("one");
    NS::print("");
    NS::print("two words");

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "one\n\ntwo words\n");
}

TEST(Print, WritesPercentSignsAndOtherAlphabetsAsTheyStand)
{
    testing::internal::CaptureStdout();

    NS::print("100 %s of \u00e9t\u00e9 \\n");

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "100 %s of \u00e9t\u00e9 \\n\n");
}

TEST(PrintDeathTest, ALineIsOutBeforeTheProgramCanEndWithoutFlushing)
{
    EXPECT_EXIT(
        {
            dup2(STDERR_FILENO, STDOUT_FILENO);
            std::setvbuf(stdout, nullptr, _IOFBF, BUFSIZ);
            NS::print("said");
            _exit(0);
        },
        testing::ExitedWithCode(0), "^said\n$");
}

} // namespace
