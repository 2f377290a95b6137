#include "ActionTest.h"
#include "extension/actions/support/Request.h"

#include <gtest/gtest.h>

namespace {

using MenuExtension::requestFrom;
using namespace std::string_literals;

TEST(Request, PathsAreBytesEachEndedByAZero)
{
    const auto request = requestFrom({}, "/a/b\0/c\n\xff\0"s);
    ASSERT_TRUE(request);
    EXPECT_EQ(request->paths, (std::vector<std::string>{"/a/b", "/c\n\xff"}));
    EXPECT_FALSE(request->background);
}

TEST(Request, SlashesAtTheEndCountForNothing)
{
    const auto request = requestFrom({"--background"}, "/a/b//\0"s);
    ASSERT_TRUE(request);
    EXPECT_EQ(request->paths.front(), "/a/b");
    EXPECT_EQ(requestFrom({}, "//\0"s)->paths.front(), "/");
}

TEST(Request, SlashesInARowAreOne)
{
    const auto request = requestFrom({"--target", "//t///u"}, "//a//b/c\0"s);
    ASSERT_TRUE(request);
    EXPECT_EQ(request->paths.front(), "/a/b/c");
    EXPECT_EQ(request->target, "/t/u");
}

TEST(Request, TheOptionsSayWhoAsksAndWhereTo)
{
    const auto request = requestFrom({"--target", "/t/", "--caller", ":1.7", "--background"}, "/a\0"s);
    ASSERT_TRUE(request);
    EXPECT_EQ(request->target, "/t");
    EXPECT_EQ(request->caller, ":1.7");
    EXPECT_TRUE(request->background);
}

TEST(Request, WhatCouldMeanSomethingElseIsNone)
{
    for (const std::string& input :
         {""s, "/a"s, "/a\0/b"s, "\0"s, "a\0"s, "./a\0"s, "/a/../b\0"s, "/a/.\0"s, "/..\0"s, "/a\0\0"s, "-\0"s})
        EXPECT_FALSE(requestFrom({}, input)) << input;
    EXPECT_TRUE(requestFrom({}, "/..a/b../...\0"s));
    EXPECT_FALSE(requestFrom({"--background"}, "/a\0/b\0"s));
    EXPECT_FALSE(requestFrom({"--other"}, "/a\0"s));
    EXPECT_FALSE(requestFrom({"--target"}, "/a\0"s));
    EXPECT_FALSE(requestFrom({"--target", "t"}, "/a\0"s));
    EXPECT_FALSE(requestFrom({"--target", "/t/../u"}, "/a\0"s));
}

class AskedAction : public ActionTest {};

TEST_F(AskedAction, ARequestThatIsNoneFailsInWords)
{
    const Answer answer = runWith("create-new-text-file", {QStringLiteral("--background")}, "relative\0");
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words, "");
    const auto climbing = listed().native() + "/../outside";
    EXPECT_EQ(run("create-new-text-file", {climbing}, {.background = true}).kind, '1');
    EXPECT_EQ(namesIn(outside()), std::vector<std::string>{});
}

TEST_F(AskedAction, MoreThanARequestCanHaveIsNotRead)
{
    const QByteArray endless(qsizetype{65} << 20U, 'a');
    EXPECT_EQ(runWith("add-folders", {}, endless).kind, '1');
}

TEST_F(AskedAction, WhatIsOutOfScopeIsLeftAlone)
{
    const Answer answer = run("create-new-text-file", {outside()}, {.background = true});
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words.find("\"outside\""), std::string::npos);
    EXPECT_EQ(namesIn(outside()), std::vector<std::string>{});
    // The listed folder is an item of the one above it.
    EXPECT_EQ(run("create-new-text-file", {listed()}).kind, '1');
    const Path inner = folder("inner");
    storeFolders({{listed(), true}, {inner, false}});
    for (const std::string& path : {inner.native(), listed().native() + "//inner", inner.native() + "//"})
        EXPECT_EQ(run("create-new-text-file", {path}, {.background = true}).kind, '1') << path;
    EXPECT_EQ(namesIn(inner), std::vector<std::string>{});
}

TEST_F(AskedAction, OneItemOutOfScopeStopsThemAll)
{
    EXPECT_EQ(run("hide-unhide-item", {file("a"), outside()}).kind, '1');
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{"a"});
}

TEST_F(AskedAction, WithoutSettingsNothingIsInScope)
{
    std::filesystem::remove_all(settingsFolder());
    EXPECT_EQ(run("create-new-text-file", {listed()}, {.background = true}).kind, '1');
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{});
    EXPECT_FALSE(std::filesystem::exists(settingsFolder()));
}

TEST_F(AskedAction, AnItemThatIsGoneIsNamed)
{
    const Answer answer = run("hide-unhide-item", {listed() / "gone"});
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words.find("\"gone\""), std::string::npos);
}

} // namespace
