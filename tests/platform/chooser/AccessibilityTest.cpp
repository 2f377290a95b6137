#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include "platform/linux/chooser/ModifiedText.h"

#include <QAccessible>
#include <QApplication>
#include <QFileInfo>
#include <QSet>

#include <gtest/gtest.h>

#include <array>
#include <utility>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

QString accessibleName(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

/// How it is said when the item was changed.
QString changed(const std::string& path)
{
    const QDateTime when = QFileInfo(QString::fromStdString(path)).lastModified();
    return LinuxDesktop::modifiedText(when, QDateTime::currentDateTime(), QLocale());
}

struct Accessibility : testing::Test {
    Accessibility()
    {
        folder.file("file");
        chooser.setMessage("Choose the file");
        chooser.setPrompt("Attach");
        chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("file")));
    }

    TemporaryFolder folder;
    LinuxDesktop::ModalState modal;
    FileChooser chooser{modal};
};

} // namespace

TEST_F(Accessibility, EveryControlHasItsName)
{
    runChooser(chooser, [](const ShownChooser& shown) {
        EXPECT_EQ(accessibleName(shown.dialog()), u"Attach"_s);
        EXPECT_EQ(accessibleName(shown.message()), u"Choose the file"_s);
        EXPECT_EQ(accessibleName(shown.confirmButton()), u"Attach"_s);
        EXPECT_EQ(accessibleName(shown.cancelButton()), u"Cancel"_s);
        EXPECT_EQ(accessibleName(shown.list()), u"Files"_s);
        EXPECT_EQ(accessibleName(shown.places()), u"Places"_s);
        EXPECT_EQ(accessibleName(shown.pathField()), u"Location"_s);
        shown.cancel();
    });
}

TEST_F(Accessibility, TabReachesEveryControlBothWaysAndEachHasAName)
{
    runChooser(chooser, [](const ShownChooser& shown) {
        QSet<QWidget*> controls;
        for (QWidget* widget : shown.dialog().findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
                !widget->focusProxy())
                controls.insert(widget);
        }
        EXPECT_GE(controls.size(), 7);
        const std::array ways = {std::pair(Qt::Key_Tab, Qt::NoModifier),
                                 std::pair(Qt::Key_Backtab, Qt::ShiftModifier)};
        for (const auto& [key, modifier] : ways) {
            QSet<QWidget*> reached;
            for (qsizetype step = 0; step < 2 * controls.size(); ++step) {
                shown.key(key, modifier);
                reached.insert(QApplication::focusWidget());
                EXPECT_FALSE(accessibleName(*QApplication::focusWidget()).isEmpty())
                    << QApplication::focusWidget()->objectName().toStdString();
            }
            EXPECT_EQ(reached, controls);
        }
        shown.cancel();
    });
}

TEST_F(Accessibility, ARowIsNamedAsItsFileAndTellsItsKind)
{
    folder.link("link", "file");
    runChooser(chooser, [&](const ShownChooser& shown) {
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&shown.list());
        ASSERT_TRUE(list->tableInterface());
        EXPECT_EQ(list->tableInterface()->rowCount(), 2);
        QAccessibleInterface* cell = list->tableInterface()->cellAt(1, 0);
        ASSERT_TRUE(cell);
        EXPECT_EQ(cell->text(QAccessible::Name), u"link"_s);
        EXPECT_EQ(cell->text(QAccessible::Description),
                  u"Link to a file, 0 bytes, %1"_s.arg(changed(folder.path("file"))));
        shown.cancel();
    });
}

TEST_F(Accessibility, ARowTellsItsNameItsKindItsSizeAndItsDateInThatOrder)
{
    folder.file("Report.pdf", 1'500'000);
    folder.file("file", 1);
    folder.folder("sub");
    runChooser(chooser, [&](const ShownChooser& shown) {
        QAccessibleTableInterface* rows = QAccessible::queryAccessibleInterface(&shown.list())->tableInterface();
        const auto said = [&](int row) {
            QAccessibleInterface* cell = rows->cellAt(row, 0);
            return cell->text(QAccessible::Name) + u" | "_s + cell->text(QAccessible::Description);
        };
        EXPECT_EQ(said(0), u"sub | Folder, %1"_s.arg(changed(folder.path("sub"))));
        EXPECT_EQ(said(1), u"file | File, 1 byte, %1"_s.arg(changed(folder.path("file"))));
        EXPECT_EQ(said(2), u"Report.pdf | PDF document, 1.5 MB, %1"_s.arg(changed(folder.path("Report.pdf"))));
        shown.cancel();
    });
}

TEST_F(Accessibility, TheArrowKeysReachEveryRowAlsoThoseThatCannotBeChosen)
{
    folder.link("broken", "/nowhere/at/all");
    folder.folder("sub");
    chooser.setCanChooseFiles(false);
    chooser.setCanChooseDirectories(true);
    chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("none")));
    runChooser(chooser, [](const ShownChooser& shown) {
        const auto current = [&] { return shown.list().currentIndex().data().toString(); };
        QStringList reached;
        for (int step = 0; step < 3; ++step) {
            shown.key(Qt::Key_Down);
            reached.push_back(current());
        }
        EXPECT_EQ(reached, (QStringList{u"sub"_s, u"broken"_s, u"file"_s}));
        EXPECT_TRUE(shown.selected().isNull());
        shown.key(Qt::Key_Return);
        EXPECT_EQ(shown.notice().text(), u"“file” is a file. Only folders can be chosen here."_s);
        shown.key(Qt::Key_Up);
        shown.key(Qt::Key_Return);
        EXPECT_EQ(shown.notice().text(), u"“broken” leads to something that is not there."_s);
        shown.key(Qt::Key_Up);
        EXPECT_EQ(shown.selected(), u"sub"_s);
        EXPECT_FALSE(shown.notice().isVisible());
        shown.key(Qt::Key_Return);
    });
    ASSERT_TRUE(chooser.URL());
    EXPECT_EQ(chooser.URL()->path(), folder.path("sub"));
}

TEST_F(Accessibility, EnterChoosesAFolderThatWasGoneToAndHasFilesAlone)
{
    folder.folder("sub");
    folder.file("sub/inside");
    chooser.setCanChooseFiles(false);
    chooser.setCanChooseDirectories(true);
    chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("none")));
    runChooser(chooser, [](const ShownChooser& shown) {
        shown.doubleClick(u"sub"_s);
        EXPECT_EQ(shown.list().currentIndex().data().toString(), u"inside"_s);
        shown.key(Qt::Key_Return);
    });
    ASSERT_TRUE(chooser.URL());
    EXPECT_EQ(chooser.URL()->path(), folder.path("sub"));
}

TEST_F(Accessibility, APlaceTellsItsPath)
{
    runChooser(chooser, [](const ShownChooser& shown) {
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&shown.places());
        QAccessibleInterface* last = list->child(list->childCount() - 1);
        EXPECT_EQ(last->text(QAccessible::Name), u"File System"_s);
        EXPECT_EQ(last->text(QAccessible::Description), u"/"_s);
        shown.cancel();
    });
}
