#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include "platform/linux/chooser/FileChooserDialog.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>

using namespace LinuxDesktop;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A chooser for which one folder answers only once it is told to.
struct SilentShare : testing::Test {
    [[nodiscard]] FileChooserSettings settings(const std::string& silent)
    {
        const auto recall = [silent](const std::string& path) -> std::optional<FileKind> {
            if (path != silent || m_answers)
                return lookUpFileKind(path);
            return std::nullopt;
        };
        const auto lookUp = [](const std::string& path) {
            m_answers.wait(false);
            return lookUpFileKind(path);
        };
        FileChooserSettings settings;
        settings.canChooseDirectories = true;
        settings.directory = folder.path("none");
        settings.kinds = std::make_shared<FileKinds>(recall, lookUp, 10ms);
        return settings;
    }

    void answer()
    {
        m_answers = true;
        m_answers.notify_all();
    }

    void SetUp() override
    {
        folder.folder("share");
        folder.file("share/inside");
        folder.folder("there");
    }

    /// The look-up may run after its test.
    static std::atomic<bool> m_answers;
    TemporaryFolder folder;
};

std::atomic<bool> SilentShare::m_answers = false;

} // namespace

TEST_F(SilentShare, IsWaitedForWhileTheChooserCanBeUsedAndShownOnceItAnswers)
{
    m_answers = false;
    FileChooserDialog dialog(settings(folder.path("share")));
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const ShownChooser shown(dialog);
    shown.doubleClick(u"share"_s);
    EXPECT_EQ(shown.notice().text(),
              u"Waiting for “%1” to answer…"_s.arg(QString::fromStdString(folder.path("share"))));
    EXPECT_EQ(shown.names(), (QStringList{u"share"_s, u"there"_s}));
    answer();
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.names() == QStringList{u"inside"_s}; }));
    EXPECT_FALSE(shown.notice().isVisible());
}

TEST_F(SilentShare, IsNotGoneToAnyMoreOnceSomethingElseIs)
{
    m_answers = false;
    FileChooserDialog dialog(settings(folder.path("share")));
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const ShownChooser shown(dialog);
    shown.doubleClick(u"share"_s);
    shown.doubleClick(u"there"_s);
    EXPECT_TRUE(shown.names().isEmpty());
    answer();
    QTest::qWait(500);
    EXPECT_TRUE(shown.names().isEmpty());
}

TEST_F(SilentShare, IsNotChosen)
{
    m_answers = false;
    FileChooserDialog dialog(settings(folder.path("share")));
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const ShownChooser shown(dialog);
    shown.click(u"share"_s);
    shown.press(shown.confirmButton());
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(shown.notice().text(), u"“%1” does not answer. It may be on a network share that is gone."_s.arg(
                                         QString::fromStdString(folder.path("share"))));
    answer();
    shown.press(shown.confirmButton());
    EXPECT_EQ(dialog.chosen(), std::vector<std::string>{folder.path("share")});
}

TEST_F(SilentShare, ThatTheChooserIsToOpenAtIsWaitedForElsewhere)
{
    m_answers = false;
    FileChooserSettings there = settings(folder.path("share"));
    there.directory = folder.path("share");
    FileChooserDialog dialog(std::move(there));
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const ShownChooser shown(dialog);
    EXPECT_EQ(shown.pathField().text(), u"/"_s);
    answer();
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.selected() == u"share"_s; }));
}
