#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

struct Hidden : testing::Test {
    Hidden()
    {
        folder.file(".hidden");
        folder.file("plain");
        chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("plain")));
    }

    TemporaryFolder folder;
    LinuxDesktop::ModalState modal;
    FileChooser chooser{modal};
};

} // namespace

TEST_F(Hidden, FilesComeAndGoByEachOfTheirKeys)
{
    runChooser(chooser, [](const ShownChooser& shown) {
        const std::array keys = {std::pair(Qt::Key_H, Qt::ControlModifier),
                                 std::pair(Qt::Key_Period, Qt::AltModifier)};
        for (const auto& [key, modifier] : keys) {
            EXPECT_EQ(shown.names(), QStringList{u"plain"_s});
            shown.key(key, modifier);
            EXPECT_EQ(shown.names(), (QStringList{u".hidden"_s, u"plain"_s}));
            EXPECT_EQ(shown.notice().text(), u"Hidden files are shown."_s);
            EXPECT_EQ(shown.selected(), u"plain"_s);
            shown.key(key, modifier);
            EXPECT_EQ(shown.notice().text(), u"Hidden files are not shown."_s);
        }
        EXPECT_EQ(shown.names(), QStringList{u"plain"_s});
        shown.cancel();
    });
}

TEST_F(Hidden, OneThatIsSelectedIsNotSaidToBeLost)
{
    runChooser(chooser, [](const ShownChooser& shown) {
        shown.key(Qt::Key_H, Qt::ControlModifier);
        shown.click(u".hidden"_s);
        shown.key(Qt::Key_H, Qt::ControlModifier);
        EXPECT_TRUE(shown.selected().isNull());
        EXPECT_EQ(shown.notice().text(), u"Hidden files are not shown."_s);
        EXPECT_FALSE(shown.confirmButton().isEnabled());
        shown.cancel();
    });
}

TEST_F(Hidden, FilesAreWhatAnEmptyListTellsOf)
{
    folder.remove("plain");
    chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path()));
    runChooser(chooser, [](const ShownChooser& shown) {
        EXPECT_EQ(shown.listWords().text(), u"All that is in this folder is hidden. Ctrl+H shows it."_s);
        EXPECT_TRUE(shown.list().accessibleDescription().endsWith(u". "_s + shown.listWords().text()));
        shown.key(Qt::Key_H, Qt::ControlModifier);
        EXPECT_TRUE(shown.listWords().text().isEmpty());
        shown.cancel();
    });
}

TEST_F(Hidden, NamesAreProposedOnceTheyAreShown)
{
    runChooser(chooser, [&](const ShownChooser& shown) {
        const QString typed = QString::fromStdString(folder.path(".hi"));
        shown.typePath(typed);
        shown.key(Qt::Key_Tab);
        EXPECT_EQ(shown.pathField().text(), typed);
        shown.key(Qt::Key_H, Qt::ControlModifier);
        shown.typePath(typed);
        shown.key(Qt::Key_Tab);
        EXPECT_EQ(shown.pathField().text(), typed + u"dden"_s);
        shown.cancel();
    });
}
