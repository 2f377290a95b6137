#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include "platform/linux/text/FileNameText.h"

#include <gtest/gtest.h>

using LinuxDesktop::FileChooser;
using LinuxDesktop::fileNameText;
using namespace Qt::StringLiterals;

namespace {

/// Every way to come by a name must give its bytes.
class AnyName : public testing::TestWithParam<std::string> {
protected:
    void expectChosen(const std::function<void(const ShownChooser&)>& steps, const std::string& directory)
    {
        FileChooser chooser(m_modal);
        chooser.setDirectoryURL(NS::URL::fileURLWithPath(directory));
        EXPECT_EQ(runChooser(chooser, steps), NS::ModalResponseOK);
        ASSERT_TRUE(chooser.URL());
        EXPECT_EQ(chooser.URL()->path(), m_file);
    }

    TemporaryFolder m_folder;
    std::string m_file = m_folder.file(GetParam());
    LinuxDesktop::ModalState m_modal;
};

} // namespace

TEST_P(AnyName, IsChosenWhenAskedFor)
{
    expectChosen([](const ShownChooser& shown) { shown.press(shown.confirmButton()); }, m_file);
}

TEST_P(AnyName, IsChosenFromTheList)
{
    expectChosen(
        [](const ShownChooser& shown) {
            EXPECT_EQ(shown.names(), QStringList{fileNameText(GetParam())});
            shown.doubleClick(fileNameText(GetParam()));
        },
        m_folder.path());
}

TEST_P(AnyName, IsChosenByTypingWhatIsShown)
{
    expectChosen(
        [](const ShownChooser& shown) {
            shown.typePath(u"./"_s + fileNameText(GetParam()));
            shown.key(Qt::Key_Return);
        },
        m_folder.path());
}

INSTANTIATE_TEST_SUITE_P(Names, AnyName,
                         testing::Values("two  spaces ", " leading", "quotes'\"`", "new\nline", "-dash", "--",
                                         "tab\t", "ünïcode", "漢字", "e\xcc\x81", "bad\xff\xfe.txt", "\xc3",
                                         "\xed\xa0\x80", "a\\b", "50%20", "&amp;&", "<b>", "~", "x.tar.gz", "#?*[",
                                         std::string(255, 'n')));

TEST(Names, OfTwoThatReadAlikeTheSelectedOneIsChosen)
{
    const TemporaryFolder folder;
    folder.file("a\xfe");
    folder.file("a\xff");
    LinuxDesktop::ModalState modal;
    for (const std::string name : {"a\xfe", "a\xff"}) {
        FileChooser chooser(modal);
        chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path(name)));
        runChooser(chooser, [](const ShownChooser& shown) { shown.key(Qt::Key_Return); });
        ASSERT_TRUE(chooser.URL());
        EXPECT_EQ(chooser.URL()->path(), folder.path(name));
    }
}

TEST(Names, AFolderWhoseNameIsNotUtf8IsEnteredAndItsFileChosen)
{
    const TemporaryFolder folder;
    folder.folder("d\xff");
    const std::string file = folder.file("d\xff/f\xfe");
    LinuxDesktop::ModalState modal;
    FileChooser chooser(modal);
    chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path()));
    runChooser(chooser, [](const ShownChooser& shown) {
        shown.doubleClick(fileNameText("d\xff"));
        shown.doubleClick(fileNameText("f\xfe"));
    });
    ASSERT_TRUE(chooser.URL());
    EXPECT_EQ(chooser.URL()->path(), file);
}
