#include "Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

ExtensionsTool::AutostartFolders AutostartTestFolders::folders() const
{
    return {.own = own(), .systemWide = {root.filePath(QStringLiteral("missing/autostart")), systemWide()}};
}

void writeFile(const QString& path, const QByteArray& contents)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(contents), contents.size());
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}
