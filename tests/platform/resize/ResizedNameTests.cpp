#include "extension/actions/resize-photos/ResizeJob.h"
#include "extension/actions/resize-photos/ResizedName.h"

#include <gtest/gtest.h>

using namespace MenuExtension::Resizing;

TEST(ResizedName, IsMadeByThePattern)
{
    const Size size{640, 480, 0};
    EXPECT_EQ(resizedName("{name}-{width}x{height}", "a.b.jpg", size, 1), "a.b-640x480.jpg");
    EXPECT_EQ(resizedName("small {name}", "photo", size, 1), "small photo");
    EXPECT_EQ(resizedName("{name}", ".hidden", size, 2), ".hidden (2)");
    EXPECT_EQ(resizedName("{name}", "{width}{name}.png", size, 3), "{width}{name} (3).png");
}

TEST(ResizedName, IsNoLongerThanANameMayBe)
{
    std::string longest(250, 'n');
    EXPECT_EQ(resizedName("{name}-{width}x{height}", longest + ".jpg", {640, 480, 0}, 12).size(), 255U);
    std::string umlauts;
    for (int count = 0; count < 125; ++count)
        umlauts += "\xC3\xBC";
    const std::string name = resizedName("{name}-{width}", umlauts + ".jpg", {640, 480, 0}, 1);
    EXPECT_LE(name.size(), 255U);
    EXPECT_EQ(name.find("\xC3-"), std::string::npos) << "a character is not cut";
}

TEST(ResizedName, APatternHasTheNameAndNothingThatNoNameHas)
{
    EXPECT_TRUE(isNamePattern("{name} small"));
    for (const std::string& pattern : {std::string(), std::string("small"), std::string("a/{name}"),
                                       std::string("{name}\0", 7), std::string(300, 'x')})
        EXPECT_FALSE(isNamePattern(pattern)) << pattern;
}

TEST(ResizeJob, IsUnderstoodByTheOtherEnd)
{
    const Job job{{Goal::Kind::Bytes, 500'000, 70, 2048}, 320};
    EXPECT_EQ(jobFrom(textOf(job)), job);
    for (std::size_t length = 0; length < textOf(job).size(); ++length)
        EXPECT_FALSE(jobFrom(textOf(job).substr(0, length)));
    const Result result = Resized{{1, 2, 3}, {4, 5, 6}, {1, 1, "abc"}, {}, Data::Lost};
    EXPECT_EQ(resultFrom(textOf(result)), result);
    const Result refusal = Refused{"cannot be read"};
    EXPECT_EQ(resultFrom(textOf(refusal)), refusal);
    for (const std::string text : {"", "D", "x", "Dabc"})
        EXPECT_TRUE(std::holds_alternative<Refused>(resultFrom(text)));
    // So many pixels that the number of their bytes begins anew.
    const Result boast = Resized{{}, {}, {}, {1'824'726'041, 3'369'774'176, std::string(32, 'x')}};
    EXPECT_TRUE(std::holds_alternative<Refused>(resultFrom(textOf(boast))));
}

TEST(ResizeJob, SizesFollowTheGoalAndNeverGrow)
{
    const Size photo{4000, 3000, 1};
    EXPECT_EQ(sizeFor({Goal::Kind::Length, 1920}, photo), (Size{1920, 1440, 0}));
    EXPECT_EQ(sizeFor({Goal::Kind::Length, 9999}, photo), (Size{4000, 3000, 0}));
    EXPECT_EQ(sizeFor({Goal::Kind::Percent, 50}, photo), (Size{2000, 1500, 0}));
    EXPECT_EQ(sizeFor({Goal::Kind::Percent, 200}, photo), (Size{4000, 3000, 0}));
    EXPECT_EQ(sizeFor({Goal::Kind::Length, 10}, {100'000, 1, 0}), (Size{10, 1, 0}));
}
