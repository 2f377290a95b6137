#include "extension/actions/transfer/KeepBothName.h"

#include <gtest/gtest.h>

namespace {

using MenuExtension::Transfers::keepBothName;

constexpr std::size_t usual = 255;

TEST(KeepBothName, HasTheNumberBeforeTheExtension)
{
    EXPECT_EQ(keepBothName("Notes.txt", false, 2, usual), "Notes 2.txt");
    EXPECT_EQ(keepBothName("Notes", false, 2, usual), "Notes 2");
    EXPECT_EQ(keepBothName("a.b.c", false, 12, usual), "a.b 12.c");
    EXPECT_EQ(keepBothName("packed.tar.gz", false, 2, usual), "packed 2.tar.gz");
}

TEST(KeepBothName, TakesNoExtensionFromWhatHasNone)
{
    EXPECT_EQ(keepBothName(".hidden", false, 2, usual), ".hidden 2");
    EXPECT_EQ(keepBothName("end.", false, 2, usual), "end. 2");
    EXPECT_EQ(keepBothName("Dr. Who is here", false, 2, usual), "Dr. Who is here 2");
    EXPECT_EQ(keepBothName("folder.d", true, 2, usual), "folder.d 2");
    EXPECT_EQ(keepBothName(".tar.gz", false, 2, usual), ".tar 2.gz");
}

TEST(KeepBothName, IsCutBetweenCharacters)
{
    EXPECT_EQ(keepBothName(std::string(255, 'x') + "", false, 2, usual), std::string(253, 'x') + " 2");
    EXPECT_EQ(keepBothName(std::string(251, 'x') + ".txt", false, 2, usual), std::string(249, 'x') + " 2.txt");
    // Two bytes each, of which neither half is left.
    EXPECT_EQ(keepBothName("\xC3\xA9\xC3\xA9\xC3\xA9", false, 2, 5), "\xC3\xA9 2");
    EXPECT_EQ(keepBothName("\xff\xff\xff", false, 2, 4), "\xff\xff 2");
}

} // namespace
