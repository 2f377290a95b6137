#include "extension/protocol/Words.h"

#include <gtest/gtest.h>

namespace {

using namespace MenuExtension;
using namespace std::string_literals;

const std::string sign = "\xEF\xBF\xBD";

TEST(WordsForPeople, ANameIsTheLastPartOfAPathInQuotes)
{
    EXPECT_EQ(Words::name("/home/ada/Notes.txt"), "\"Notes.txt\"");
    EXPECT_EQ(Words::name("/home/ada/Docs/"), "\"Docs\"");
    EXPECT_EQ(Words::name("/"), "\"/\"");
    EXPECT_EQ(Words::name("/caf\xC3\xA9 \xF0\x9F\x98\x80"), "\"caf\xC3\xA9 \xF0\x9F\x98\x80\"");
}

TEST(WordsForPeople, WhatCannotBeSeenInANameIsMadeVisible)
{
    EXPECT_EQ(Words::name("/a\nb\tc"), "\"a\xE2\x86\xB5"
                                       "b\xE2\x87\xA5"
                                       "c\"");
    EXPECT_EQ(Words::name("/\x1b[0m\x7f"), '"' + sign + "[0m" + sign + '"');
    // C1 controls, line ends, what reorders.
    for (const char* text : {"\xC2\x9B", "\xE2\x80\xA8", "\xE2\x80\xAE", "\xE2\x81\xA6", "\xE2\x80\x8F"})
        EXPECT_EQ(Words::name("/"s + text), '"' + sign + '"');
}

TEST(WordsForPeople, EachByteThatIsNoTextIsASign)
{
    EXPECT_EQ(Words::name("/\xff\xfe"), '"' + sign + sign + '"');
    // Overlong, a surrogate, past the end of Unicode, broken off.
    EXPECT_EQ(Words::name("/\xC0\xAF"), '"' + sign + sign + '"');
    EXPECT_EQ(Words::name("/\xE0\x80\xAF"), '"' + sign + sign + sign + '"');
    EXPECT_EQ(Words::name("/\xED\xA0\x80"), '"' + sign + sign + sign + '"');
    EXPECT_EQ(Words::name("/\xF4\x90\x80\x80"), '"' + sign + sign + sign + sign + '"');
    EXPECT_EQ(Words::name("/x\xE2\x82"), "\"x" + sign + sign + '"');
}

TEST(WordsForPeople, ManyTroublesAreCounted)
{
    Words::Troubles troubles;
    EXPECT_EQ(troubles.outcome().kind, Outcome::Kind::Done);
    for (const char* sentence : {"One.", "Two.", "Three."})
        troubles.add(sentence);
    EXPECT_EQ(troubles.outcome().words, "One. Two. Three.");
    troubles.add("Four.");
    EXPECT_EQ(troubles.outcome().words, "One. Two. Three. There was 1 more like these.");
    troubles.add("Five.");
    EXPECT_EQ(troubles.outcome().kind, Outcome::Kind::Failed);
    EXPECT_EQ(troubles.outcome().words, "One. Two. Three. There were 2 more like these.");
}

} // namespace
