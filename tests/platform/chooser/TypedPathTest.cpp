#include "TemporaryFolder.h"

#include "platform/linux/chooser/TypedPath.h"
#include "platform/linux/text/FileNameText.h"

#include <gtest/gtest.h>

using namespace LinuxDesktop;
using namespace Qt::StringLiterals;

TEST(TypedPath, IsAbsoluteOrRelativeToTheShownFolder)
{
    EXPECT_EQ(pathFromTypedText(u"/usr//bin/"_s, "/tmp"), "/usr/bin");
    EXPECT_EQ(pathFromTypedText(u"a/b"_s, "/tmp"), "/tmp/a/b");
    EXPECT_EQ(pathFromTypedText(u"../x/./y"_s, "/tmp/z"), "/tmp/x/y");
    EXPECT_EQ(pathFromTypedText(u""_s, "/tmp"), "/tmp");
    EXPECT_EQ(pathFromTypedText(u"/"_s, "/tmp"), "/");
}

TEST(TypedPath, ATildeIsTheHomeFolder)
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", "/home/someone");
    EXPECT_EQ(pathFromTypedText(u"~"_s, "/tmp"), "/home/someone");
    EXPECT_EQ(pathFromTypedText(u"~/a"_s, "/tmp"), "/home/someone/a");
    EXPECT_EQ(pathFromTypedText(u"~a"_s, "/tmp"), "/tmp/~a");
    qputenv("HOME", home);
}

TEST(TypedPath, AFileAddressIsDecodedToBytes)
{
    EXPECT_EQ(pathFromTypedText(u"file:///a%20b/%FF"_s, "/tmp"), "/a b/\xff");
}

TEST(TypedPath, TheShownFoldersTextLeadsToItsBytes)
{
    const TemporaryFolder folder;
    folder.folder("x\xfe");
    const std::string shown = folder.folder("x\xff");
    EXPECT_EQ(pathFromTypedText(fileNameText(shown), shown), shown);
    EXPECT_EQ(pathFromTypedText(fileNameText(shown) + u"/y"_s, shown), shown + "/y");
}

TEST(TypedPath, ANameAsItIsShownLeadsToTheFile)
{
    const TemporaryFolder folder;
    const std::string file = folder.file("a\nb\xff");
    EXPECT_EQ(pathFromTypedText(fileNameText(file), "/"), file);
}

TEST(TypedPath, AFileOfTheVeryNameGoesFirst)
{
    const TemporaryFolder folder;
    folder.file("a\nb");
    const std::string literal = folder.file("a↵b");
    EXPECT_EQ(pathFromTypedText(u"a↵b"_s, folder.path()), literal);
}
