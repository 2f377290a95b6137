#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <QAccessible>
#include <QApplication>
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
    runChooser(chooser, [](const ShownChooser& shown) {
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&shown.list());
        ASSERT_TRUE(list->tableInterface());
        EXPECT_EQ(list->tableInterface()->rowCount(), 2);
        QAccessibleInterface* cell = list->tableInterface()->cellAt(1, 0);
        ASSERT_TRUE(cell);
        EXPECT_EQ(cell->text(QAccessible::Name), u"link"_s);
        EXPECT_EQ(cell->text(QAccessible::Description), u"Link to a file"_s);
        shown.cancel();
    });
}
