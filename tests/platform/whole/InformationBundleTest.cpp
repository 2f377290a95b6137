#include "platform/linux/InformationBundle.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using LinuxDesktop::InformationBundle;

struct Information : testing::Test {
    void write(const QByteArray& contents) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
    }
    [[nodiscard]] std::optional<NS::Value::Dictionary> read() const
    {
        return InformationBundle(folder.path().toStdString()).infoDictionary();
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Info.plist"));
    const QByteArray valid = "<plist version=\"1.0\"><dict><key>CFBundleShortVersionString</key>"
                             "<string>7.5</string></dict></plist>";
};

TEST_F(Information, IsWhatTheFileSays)
{
    write(valid);
    EXPECT_EQ(read(), (NS::Value::Dictionary{{"CFBundleShortVersionString", "7.5"}}));
}

TEST_F(Information, IsReadOnce)
{
    write(valid);
    InformationBundle bundle(folder.path().toStdString());
    const auto* first = &bundle.infoDictionary();
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(&bundle.infoDictionary(), first);
    EXPECT_TRUE(bundle.infoDictionary());
}

TEST_F(Information, IsMissingWhereTheFileIs)
{
    EXPECT_FALSE(read());
}

TEST_F(Information, IsMissingWhereTheFileIsNoDictionary)
{
    write("<plist version=\"1.0\"><array/></plist>");
    EXPECT_FALSE(read());
    write("version = 7.5");
    EXPECT_FALSE(read());
}

TEST_F(Information, IsMissingWhereAFolderHasItsName)
{
    ASSERT_TRUE(QDir().mkdir(path));
    EXPECT_FALSE(read());
}

TEST_F(Information, OfAPipeIsNotWaitedFor)
{
    ASSERT_EQ(::mkfifo(path.toLocal8Bit().constData(), 0600), 0);
    EXPECT_FALSE(read());
}

} // namespace
