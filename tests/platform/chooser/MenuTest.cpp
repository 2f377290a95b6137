#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>

#include <gtest/gtest.h>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

struct ContextMenu : testing::Test {
    ContextMenu()
    {
        folder.folder("sub");
        folder.file(".hidden");
        folder.file("file");
        chooser.setCanChooseDirectories(true);
        chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("sub")));
    }

    /// Opens the list's menu by its key.
    static QMenu& open(const ShownChooser& shown)
    {
        const QPoint at = shown.list().visualRect(shown.list().currentIndex()).center();
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, at, shown.list().viewport()->mapToGlobal(at));
        QApplication::sendEvent(shown.list().viewport(), &asked);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            qFatal("no menu is open");
        return *menu;
    }

    static QStringList titles(const QMenu& menu)
    {
        QStringList titles;
        for (const QAction* action : menu.actions()) {
            if (!action->isSeparator())
                titles.push_back(action->text().section(u'\t', 0, 0));
        }
        return titles;
    }

    /// Takes the item of that title by its keys.
    static void take(QMenu& menu, const QString& title)
    {
        for (QAction* action : menu.actions()) {
            if (action->text().section(u'\t', 0, 0) == title)
                menu.setActiveAction(action);
        }
        QTest::keyClick(&menu, Qt::Key_Return);
    }

    TemporaryFolder folder;
    LinuxDesktop::ModalState modal;
    FileChooser chooser{modal};
};

} // namespace

TEST_F(ContextMenu, OpensAFolder)
{
    runChooser(chooser, [&](const ShownChooser& shown) {
        QMenu& menu = open(shown);
        EXPECT_EQ(titles(menu),
                  (QStringList{u"Open"_s, u"Copy Location"_s, u"New Folder…"_s, u"Show Hidden Files"_s}));
        take(menu, u"Open"_s);
        EXPECT_EQ(shown.pathField().text(), QString::fromStdString(folder.path("sub")));
        shown.cancel();
    });
}

TEST_F(ContextMenu, CopiesTheLocationOfAFile)
{
    runChooser(chooser, [&](const ShownChooser& shown) {
        shown.click(u"file"_s);
        QMenu& menu = open(shown);
        EXPECT_FALSE(titles(menu).contains(u"Open"_s));
        take(menu, u"Copy Location"_s);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromStdString(folder.path("file")));
        shown.cancel();
    });
}

TEST_F(ContextMenu, ShowsHiddenFilesAndSaysWhetherItDoes)
{
    runChooser(chooser, [](const ShownChooser& shown) {
        QMenu& menu = open(shown);
        EXPECT_FALSE(menu.actions().last()->isChecked());
        take(menu, u"Show Hidden Files"_s);
        EXPECT_TRUE(shown.names().contains(u".hidden"_s));
        QMenu& again = open(shown);
        EXPECT_TRUE(again.actions().last()->isChecked());
        again.close();
        shown.cancel();
    });
}

TEST_F(ContextMenu, BesideTheRowsIsAboutTheFolderAlone)
{
    runChooser(chooser, [](const ShownChooser& shown) {
        shown.list().clearSelection();
        QMenu& menu = open(shown);
        EXPECT_EQ(titles(menu), (QStringList{u"New Folder…"_s, u"Show Hidden Files"_s}));
        menu.close();
        shown.cancel();
    });
}
