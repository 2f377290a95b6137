#include "Painting.h"
#include "extension/actions/find-duplicate-photos/WorkerJobs.h"

#include <gtest/gtest.h>

namespace {

using namespace MenuExtension::SimilarPhotos;

TEST(WorkerJobs, AJobComesOverAsItIs)
{
    EXPECT_EQ(pixelsFrom(jobText(0)), 0U);
    EXPECT_EQ(pixelsFrom(jobText(1024)), 1024U);
    EXPECT_FALSE(pixelsFrom(""));
    EXPECT_FALSE(pixelsFrom(jobText(1) + "x"));
}

TEST(WorkerJobs, ResultsComeOverAsTheyAre)
{
    const Thumb thumb = Painting::of(1).thumb();
    const auto described = std::get<Described>(resultFrom(resultText(Described{4000, 3000, thumb})));
    EXPECT_EQ(described.width, 4000U);
    EXPECT_EQ(described.height, 3000U);
    EXPECT_EQ(bytesOf(described.thumb), bytesOf(thumb));
    const auto shown = std::get<Shown>(resultFrom(resultText(Shown{2, 1, "abcdef"})));
    EXPECT_EQ(shown.bytes, "abcdef");
    EXPECT_EQ(std::get<Refused>(resultFrom(resultText(Refused{"is broken"}))).why, "is broken");
}

TEST(WorkerJobs, WhatIsNoResultIsARefusal)
{
    const std::string whole = resultText(Shown{2, 1, "abcdef"});
    for (const std::string& text :
         {std::string(), std::string("x"), std::string("d"), whole.substr(0, whole.size() - 1), whole + "g",
          resultText(Shown{0, 0, ""}), resultText(Shown{0x10000, 0x10000, ""}), std::string(2000, 'd')})
        EXPECT_TRUE(std::holds_alternative<Refused>(resultFrom(text)));
}

} // namespace
