#include "platform/linux/mailing/MailableName.h"

#include <gtest/gtest.h>

using namespace LinuxDesktop;

TEST(MailableName, LeavesWhatGetsThroughAlone)
{
    for (const char* name :
         {"report.pdf", "a b 'c' \"d\" $(e) `f` ;&|<>*?[]{}~#%41 !.txt", "-n", "h\xc3\xa9\xe2\x82\xac"}) {
        EXPECT_TRUE(isMailablePath(name)) << name;
        EXPECT_EQ(mailableName(name), name);
    }
}

TEST(MailableName, ReplacesWhatDoesNot)
{
    EXPECT_FALSE(isMailablePath("/a\nb"));
    EXPECT_FALSE(isMailablePath("/a,b/c"));
    EXPECT_FALSE(isMailablePath("/a\\b"));
    EXPECT_FALSE(isMailablePath("/a\xff"));
    EXPECT_EQ(mailableName("a\nb,c\\d\xff"
                           "e\n"),
              "a_b_c_d_e_");
}

TEST(MailableName, FitsAFileNameWithItsSuffixAndCutsNoCharacter)
{
    EXPECT_EQ(mailableName(std::string(255, 'a'), ".zip"), std::string(251, 'a') + ".zip");
    std::string name(250, 'a');
    name += "\xc3\xa9";
    EXPECT_EQ(mailableName(name, ".zip"), std::string(250, 'a') + ".zip");
    EXPECT_EQ(mailableName("folder", ".zip"), "folder.zip");
}
