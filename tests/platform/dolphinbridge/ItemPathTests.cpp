#include "extension/bridges/dolphin/ItemPath.h"

#include <gtest/gtest.h>

using DolphinBridge::pathOf;

namespace {

QUrl local(const QString& path)
{
    return QUrl::fromLocalFile(path);
}

} // namespace

TEST(ItemPath, IsThatOfALocalFile)
{
    EXPECT_EQ(pathOf(local(QStringLiteral("/files/a.txt"))), "/files/a.txt");
    EXPECT_EQ(pathOf(local(QStringLiteral("/"))), "/");
    EXPECT_EQ(pathOf(local(QStringLiteral("/files/"))), "/files/");
}

TEST(ItemPath, KeepsWhatAddressesWriteInAnotherWay)
{
    const QString name = QStringLiteral("/files/50%25 #1? \"'$()&;\n-\u00fc\u0301\U0001F600");
    EXPECT_EQ(pathOf(local(name)), name.toStdString());
}

TEST(ItemPath, IsNoneOfWhatIsElsewhere)
{
    EXPECT_FALSE(pathOf(QUrl()));
    EXPECT_FALSE(pathOf(QUrl(QStringLiteral("sftp://host/files/a.txt"))));
    EXPECT_FALSE(pathOf(QUrl(QStringLiteral("file://host/files/a.txt"))));
    EXPECT_FALSE(pathOf(QUrl(QStringLiteral("trash:/a.txt"))));
}

TEST(ItemPath, IsNoneWhereTheBytesAreNotKnown)
{
    EXPECT_FALSE(pathOf(local(QStringLiteral("/files/dir\ufffd"))));
    EXPECT_FALSE(pathOf(local(QStringLiteral("/wo\ufffdrk/a.txt"))));
    EXPECT_FALSE(pathOf(QUrl(QStringLiteral("file:///files/dir%E9"))));
    EXPECT_FALSE(pathOf(QUrl(QStringLiteral("file:///files/a%00b"))));
}

TEST(ItemPath, HasTheBytesThatKIOsStandInsStandFor)
{
    EXPECT_EQ(pathOf(local(QStringLiteral("/files/dir\U0010FE69/a\U0010FE7F\U0010FE00.txt"))),
              "/files/dir\xe9/a\xff\x80.txt");
    // A name that is not ASCII elsewhere has none: these are its own characters.
    EXPECT_EQ(pathOf(local(QStringLiteral("/files/\u00fc\U0010FE69"))), "/files/\xc3\xbc\xf4\x8f\xb9\xa9");
    // Those beside them are none.
    EXPECT_EQ(pathOf(local(QStringLiteral("/\U0010FE80"))), "/\xf4\x8f\xba\x80");
    EXPECT_EQ(pathOf(local(QStringLiteral("/\U0010FDFF"))), "/\xf4\x8f\xb7\xbf");
}
