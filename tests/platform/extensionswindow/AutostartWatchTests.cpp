#include "extensions/AutostartWatch.h"

#include "../bus/Waiting.h"
#include "Files.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <utility>

using namespace ExtensionsTool;

namespace {

struct WatchedEntry : AutostartTestFolders, testing::Test {
    /// Waits for a change that was told since the last question.
    [[nodiscard]] bool tellsChange()
    {
        const bool told = waitUntil([this] { return m_changes > 0; });
        runFor(std::chrono::milliseconds(50));
        m_changes = 0;
        return told;
    }

    void watch()
    {
        m_watch = std::make_unique<AutostartWatch>(path);
        QObject::connect(m_watch.get(), &AutostartWatch::changed, [this] { ++m_changes; });
    }

    const QString path = own(file);

private:
    int m_changes = 0;
    std::unique_ptr<AutostartWatch> m_watch;
};

} // namespace

TEST_F(WatchedEntry, IsSeenToComeChangeAndGo)
{
    writeFile(own(QStringLiteral("/other")), "");
    watch();
    writeFile(path, "one");
    EXPECT_TRUE(tellsChange());
    writeFile(path, "changed in place");
    EXPECT_TRUE(tellsChange());
    writeFile(own(QStringLiteral("/new")), "replaced");
    ASSERT_TRUE(tellsChange());
    ASSERT_EQ(::rename(qPrintable(own(QStringLiteral("/new"))), qPrintable(path)), 0);
    EXPECT_TRUE(tellsChange());
    writeFile(path, "changed in place again");
    EXPECT_TRUE(tellsChange());
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_TRUE(tellsChange());
}

TEST_F(WatchedEntry, IsSeenToComeWithItsFolders)
{
    watch();
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(QDir().mkpath(own()));
        EXPECT_TRUE(tellsChange());
        writeFile(path, "one");
        EXPECT_TRUE(tellsChange());
        ASSERT_TRUE(QDir(root.filePath(QStringLiteral("own"))).removeRecursively());
        EXPECT_TRUE(tellsChange());
    }
}
