#include "platform/linux/mailing/MailText.h"

#include <gtest/gtest.h>

using namespace LinuxDesktop;

TEST(MailText, QuotesANameOnOneLine)
{
    EXPECT_EQ(MailText::quoted("a b.txt"), QStringLiteral("“a b.txt”"));
    EXPECT_EQ(MailText::quoted("line\nend"), QStringLiteral("“line↵end”"));
}

TEST(MailText, CutsALongNameInItsMiddleAndNoCharacter)
{
    EXPECT_EQ(MailText::quoted(std::string(25, 'a') + std::string(25, 'b')),
              u'“' + QString(20, u'a') + u'…' + QString(20, u'b') + u'”');
    std::string faces;
    for (int face = 0; face < 31; ++face)
        faces += "\xf0\x9f\x98\x80";
    const QString cut = MailText::quoted('-' + faces + '-');
    EXPECT_TRUE(cut.isValidUtf16());
    EXPECT_LE(cut.size(), 43);
}

TEST(MailText, NamesItemsByTheFirst)
{
    EXPECT_EQ(MailText::names({"/home/a"}), QStringLiteral("“a”"));
    EXPECT_EQ(MailText::names({"/home/a", "/home/b", "/c"}), QStringLiteral("“a” and 2 more"));
    EXPECT_EQ(MailText::names({"/"}), QStringLiteral("“/”"));
}
