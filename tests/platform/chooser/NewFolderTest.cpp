#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

/// The question for a name while it is shown.
struct Question {
    explicit Question(const ShownChooser& shown) : dialog(shown.dialog().findChild<QDialog*>(u"newFolder"_s))
    {
        if (!dialog)
            qFatal("no name is asked for");
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
    }

    [[nodiscard]] QLineEdit& name() const { return *dialog->findChild<QLineEdit*>(u"nameField"_s); }
    [[nodiscard]] QPushButton& create() const { return *dialog->findChild<QPushButton*>(u"createButton"_s); }
    [[nodiscard]] QString complaint() const { return dialog->findChild<QLabel*>(u"complaintLabel"_s)->text(); }

    void enter(const QString& text) const
    {
        name().setText(text);
        QTest::keyClick(&name(), Qt::Key_Return);
    }

    QDialog* dialog;
};

struct NewFolder : testing::Test {
    NewFolder()
    {
        folder.folder("there");
        chooser.setCanChooseFiles(false);
        chooser.setCanChooseDirectories(true);
        chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("none")));
    }

    static void ask(const ShownChooser& shown) { shown.key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier); }

    TemporaryFolder folder;
    LinuxDesktop::ModalState modal;
    FileChooser chooser{modal};
};

} // namespace

TEST_F(NewFolder, IsMadeSelectedAndChosenByKeysAlone)
{
    EXPECT_EQ(runChooser(chooser,
                         [](const ShownChooser& shown) {
                             ask(shown);
                             const Question question(shown);
                             EXPECT_TRUE(question.name().hasFocus());
                             EXPECT_FALSE(question.create().isEnabled());
                             question.enter(u"Grüße & 漢字"_s);
                             EXPECT_EQ(shown.selected(), u"Grüße & 漢字"_s);
                             // Off screen, nobody makes the window active again.
                             shown.dialog().activateWindow();
                             EXPECT_TRUE(QTest::qWaitFor([&] { return shown.list().hasFocus(); }));
                             shown.key(Qt::Key_Return);
                         }),
              NS::ModalResponseOK);
    ASSERT_TRUE(chooser.URL());
    EXPECT_EQ(chooser.URL()->path(), folder.path("Grüße & 漢字"));
    EXPECT_TRUE(std::filesystem::is_directory(folder.path("Grüße & 漢字")));
}

TEST_F(NewFolder, OfANameThatCannotBeIsToldAndAskedForAnew)
{
    runChooser(chooser, [&](const ShownChooser& shown) {
        ask(shown);
        const Question question(shown);
        question.enter(u"there"_s);
        EXPECT_EQ(question.complaint(), u"“there” is already there."_s);
        for (const QString& name : {u"."_s, u".."_s, u"a/b"_s}) {
            question.enter(name);
            EXPECT_EQ(question.complaint(), u"“%1” cannot be the name of a folder."_s.arg(name));
        }
        question.enter(QString(300, u'n'));
        EXPECT_TRUE(question.complaint().contains(u"cannot be made"_s));
        EXPECT_TRUE(question.dialog->isVisible());
        EXPECT_TRUE(question.name().hasFocus());
        question.dialog->reject();
        EXPECT_EQ(shown.names(), QStringList{u"there"_s});
        shown.cancel();
    });
}

TEST_F(NewFolder, WhereNobodyMayWriteIsToldInWords)
{
    runChooser(chooser, [&](const ShownChooser& shown) {
        folder.setMode("", 0555);
        const OrdinaryUser user;
        shown.press(shown.tool("newFolderButton"));
        const Question question(shown);
        question.enter(u"new"_s);
        EXPECT_EQ(question.complaint(), u"“new” cannot be made: Permission denied."_s);
        question.dialog->reject();
        shown.cancel();
    });
}

TEST_F(NewFolder, IsOfferedOnlyWhereFoldersAreChosen)
{
    FileChooser filesOnly(modal);
    filesOnly.setDirectoryURL(NS::URL::fileURLWithPath(folder.path()));
    runChooser(filesOnly, [](const ShownChooser& shown) {
        EXPECT_FALSE(shown.tool("newFolderButton").isVisible());
        ask(shown);
        EXPECT_FALSE(shown.dialog().findChild<QDialog*>(u"newFolder"_s));
        shown.cancel();
    });
}
