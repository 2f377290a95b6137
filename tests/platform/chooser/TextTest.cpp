#include "platform/linux/chooser/FilePath.h"
#include "platform/linux/system/ParentFolder.h"
#include "platform/linux/text/FileNameText.h"

#include <gtest/gtest.h>

using namespace LinuxDesktop;
using namespace Qt::StringLiterals;

TEST(FileNameText, ShowsOrdinaryNamesAsTheyAre)
{
    EXPECT_EQ(fileNameText("Grüße 漢字 😀.txt"), u"Grüße 漢字 😀.txt"_s);
}

TEST(FileNameText, ShowsASignForEachByteThatIsNotUtf8)
{
    EXPECT_EQ(fileNameText("a\xff\xfe.txt"), u"a\ufffd\ufffd.txt"_s);
}

TEST(FileNameText, ShowsControlCharactersOnOneLine)
{
    EXPECT_EQ(fileNameText("a\nb\tc\x1b\x7f"), u"a↵b⇥c\ufffd\ufffd"_s);
    EXPECT_EQ(fileNameText("a\u2028b\u0085"), u"a\ufffdb\ufffd"_s);
}

TEST(FileNameText, ShowsCharactersThatWouldReorderTheName)
{
    const QString rightToLeftOverride = QChar(0x202e);
    EXPECT_EQ(fileNameText((u"gpj"_s + rightToLeftOverride + u"exe.x"_s).toStdString()), u"gpj\ufffdexe.x"_s);
}

TEST(FilePath, NormalizesWithoutAskingTheFileSystem)
{
    EXPECT_EQ(normalizedPath("/a//b/./c/"), "/a/b/c");
    EXPECT_EQ(normalizedPath("/a/../b"), "/b");
    EXPECT_EQ(normalizedPath("/.."), "/");
    EXPECT_EQ(normalizedPath("//"), "/");
    EXPECT_EQ(normalizedPath("/a\xff/\n "), "/a\xff/\n ");
}

TEST(FilePath, TheRootLiesInItself)
{
    EXPECT_EQ(parentFolder("/a/b"), "/a");
    EXPECT_EQ(parentFolder("/a"), "/");
    EXPECT_EQ(parentFolder("/"), "/");
    EXPECT_EQ(fileName("/a/b"), "b");
    EXPECT_EQ(fileName("/"), "");
    EXPECT_EQ(pathInFolder("/", "a"), "/a");
    EXPECT_EQ(pathInFolder("/a", "b"), "/a/b");
}
