#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <climits>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

/// A folder whose path is as long as the system takes one, and in it another, which therefore no path leads to.
struct LongPath : testing::Test {
    LongPath()
    {
        constexpr std::size_t longest = PATH_MAX - 1;
        int at = ::open(top.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        deepest = top.path();
        while (deepest.size() < longest) {
            // What is left for a last name must not be a slash alone.
            const std::size_t left = longest - deepest.size() - 1;
            at = enterNew(at, std::string(left <= NAME_MAX ? left : NAME_MAX - 2, 'd'));
        }
        EXPECT_EQ(deepest.size(), longest);
        EXPECT_EQ(::mkdirat(at, "beyond", 0755), 0);
        ::close(at);
        chooser.setCanChooseFiles(false);
        chooser.setCanChooseDirectories(true);
    }

    int enterNew(int folder, const std::string& name)
    {
        EXPECT_EQ(::mkdirat(folder, name.c_str(), 0755), 0);
        const int inside = ::openat(folder, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        EXPECT_GE(inside, 0);
        ::close(folder);
        deepest += "/" + name;
        return inside;
    }

    TemporaryFolder top;
    std::string deepest;
    LinuxDesktop::ModalState modal;
    FileChooser chooser{modal};
};

} // namespace

TEST_F(LongPath, ATypedNameThatIsTooLongIsToldAsSuch)
{
    const QString name(NAME_MAX + 1, u'n');
    EXPECT_EQ(runChooser(chooser,
                         [&](const ShownChooser& shown) {
                             shown.typePath(QString::fromStdString(top.path()) + u'/' + name);
                             shown.key(Qt::Key_Return);
                             EXPECT_EQ(shown.notice().text(),
                                       u"“%1” cannot be chosen: its path is too long."_s.arg(name));
                             shown.cancel();
                         }),
              NS::ModalResponseCancel);
}

TEST_F(LongPath, TheLongestCanBeChosen)
{
    chooser.setDirectoryURL(NS::URL::fileURLWithPath(deepest));
    EXPECT_EQ(runChooser(chooser, [](const ShownChooser& shown) { shown.press(shown.confirmButton()); }),
              NS::ModalResponseOK);
    ASSERT_TRUE(chooser.URL());
    EXPECT_EQ(chooser.URL()->path(), deepest);
}

TEST_F(LongPath, OneThatIsTooLongIsRefusedWithTheReason)
{
    chooser.setDirectoryURL(NS::URL::fileURLWithPath(deepest + "/none"));
    EXPECT_EQ(runChooser(chooser,
                         [](const ShownChooser& shown) {
                             shown.click(u"beyond"_s);
                             shown.press(shown.confirmButton());
                             EXPECT_EQ(shown.notice().text(), u"“beyond” cannot be chosen: its path is too long."_s);

                             shown.doubleClick(u"beyond"_s);
                             shown.press(shown.confirmButton());
                             EXPECT_EQ(shown.notice().text(), u"“beyond” cannot be chosen: its path is too long."_s);
                             EXPECT_TRUE(shown.dialog().isVisible());
                             shown.cancel();
                         }),
              NS::ModalResponseCancel);
}
