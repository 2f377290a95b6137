#include "CompanionStandIn.h"
#include "Waiting.h"
#include "settings/AppliesTo.h"

#include <KFileItemActions>
#include <KFileItemListProperties>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Asks the built module as Dolphin does.
class MenuPluginTest : public testing::Test {
protected:
    MenuPluginTest()
    {
        QDir().mkpath(path("in/sub"));
        QDir().mkpath(path("out"));
        for (const char* const name : {"in/a.txt", "in/b.txt", "out/o.txt"})
            write(path(name), "text");
        write(path("in/p.png"), "\x89PNG\r\n\x1a\n");
    }

    ~MenuPluginTest() override { companion.vanish(); }

    [[nodiscard]] QString path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    static void write(const QString& path, const char* text)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    void companionSays(const QList<ActionRow>& actions, bool showIcons = false, bool inSubmenu = false,
                       const QStringList& customFolders = {})
    {
        m_titles.clear();
        for (const ActionRow& action : actions)
            m_titles += action.title;
        QVariantMap said = properties(actions, {{path("in"), true}}, showIcons, inSubmenu);
        said[QStringLiteral("CustomFolders")] = customFolders;
        companion.answers = {said};
    }

    /// What a menu shows of these actions, once it shows some.
    QStringList titlesIn(const QMenu& menu) const
    {
        QStringList titles;
        const QList<QAction*> actions = menu.actions();
        for (const QAction* const action : actions) {
            const QString title = action->text().replace(QLatin1String("&&"), QLatin1String("&"));
            if (action->isVisible() && (m_titles.contains(title) || action->menu() != nullptr))
                titles += title;
        }
        return titles;
    }

    /// A menu as the host makes it.
    std::unique_ptr<QMenu> menuFor(const QStringList& paths)
    {
        KFileItemList items;
        for (const QString& path : paths)
            items += KFileItem(QUrl::fromLocalFile(path));
        m_host->setItemListProperties(KFileItemListProperties(items));
        auto menu = std::make_unique<QMenu>();
        m_host->addActionsTo(menu.get(), KFileItemActions::MenuActionSource::Plugins);
        return menu;
    }

    QStringList offered(const QStringList& paths) { return titlesIn(*menuFor(paths)); }

    /// The companion is there, and the module knows what it says.
    void settle()
    {
        companion.appear();
        ASSERT_TRUE(waitUntil([&] { return !offered({path("in/a.txt")}).isEmpty(); }));
    }

    /// Chooses an action of a menu, and answers what the companion is asked then.
    QDBusMessage choose(const QMenu& menu, const QString& title)
    {
        const QList<QAction*> actions = menu.actions();
        for (QAction* const action : actions) {
            if (action->text() == title)
                action->trigger();
        }
        EXPECT_TRUE(waitUntil([&] { return !companion.runs.isEmpty(); }));
        return companion.runs.isEmpty() ? QDBusMessage() : companion.runs.takeFirst();
    }

    static QList<QByteArray> pathsIn(const QDBusMessage& run)
    {
        return qdbus_cast<QList<QByteArray>>(run.arguments().value(1));
    }

    static QVariantMap optionsIn(const QDBusMessage& run)
    {
        return qdbus_cast<QVariantMap>(run.arguments().value(2));
    }

    CompanionStandIn companion{QString::fromLatin1(qgetenv("DBUS_SESSION_BUS_ADDRESS"))};

private:
    QTemporaryDir m_folder;
    QStringList m_titles;
    std::unique_ptr<KFileItemActions> m_host = std::make_unique<KFileItemActions>();
};

/// Of every action of a menu.
QStringList all(const QMenu& menu, QString (QAction::*property)() const)
{
    QStringList texts;
    const QList<QAction*> actions = menu.actions();
    for (const QAction* const action : actions)
        texts += (action->*property)();
    return texts;
}

const auto first = QStringLiteral("First");
const auto second = QStringLiteral("Second");

QList<ActionRow> twoActions()
{
    return {{QStringLiteral("first"), first, QStringLiteral("an-icon"), AppliesTo::Anything},
            {QStringLiteral("second"), second, QStringLiteral("an-icon"), AppliesTo::OneFile}};
}

QList<ActionRow> twoThatTakeFolders()
{
    return {{QStringLiteral("move-to-a-folder"), first, {}, AppliesTo::Items | AppliesTo::Target},
            {QStringLiteral("copy-to-a-folder"), second, {}, AppliesTo::Items | AppliesTo::Target}};
}

} // namespace

TEST_F(MenuPluginTest, OffersWhatAppliesInScopeInTheOrderOfTheMenu)
{
    companionSays(twoActions());
    settle();
    EXPECT_EQ(offered({path("in/a.txt")}), QStringList({first, second}));
    EXPECT_EQ(offered({path("in/sub")}), QStringList(first));
    EXPECT_EQ(offered({path("in/a.txt"), path("in/b.txt")}), QStringList(first));
}

TEST_F(MenuPluginTest, OffersNothingOutOfScope)
{
    companionSays(twoActions());
    settle();
    EXPECT_EQ(offered({path("out/o.txt")}), QStringList());
    EXPECT_EQ(offered({path("in")}), QStringList());
    EXPECT_EQ(offered({path("in/a.txt"), path("out/o.txt")}), QStringList());
    EXPECT_EQ(offered({path("in/a.txt"), path("in/dir\xef\xbf\xbd")}), QStringList());
}

TEST_F(MenuPluginTest, IsAskedAboutItemsOfEveryKind)
{
    companionSays(twoActions());
    settle();
    ASSERT_EQ(::mkfifo(path("in/pipe").toUtf8().constData(), 0600), 0);
    ASSERT_EQ(::symlink("nowhere", path("in/dangling").toUtf8().constData()), 0);
    ASSERT_EQ(::symlink("sub", path("in/linked").toUtf8().constData()), 0);
    write(path("in/empty"), "");
    for (const char* const name : {"in/pipe", "in/dangling", "in/linked", "in/empty", "in/p.png"})
        EXPECT_TRUE(offered({path(name)}).contains(first)) << name;
    EXPECT_EQ(offered({path("in/sub"), path("in/a.txt")}), QStringList(first));
    EXPECT_EQ(offered({path("in/sub"), path("in/pipe")}), QStringList(first));
    EXPECT_EQ(offered({path("in/a.txt"), path("in/p.png")}), QStringList(first));
}

TEST_F(MenuPluginTest, KnowsAPicture)
{
    companionSays({{QStringLiteral("picture"), first, {}, AppliesTo::OnePicture}});
    companion.appear();
    EXPECT_TRUE(waitUntil([&] { return offered({path("in/p.png")}) == QStringList(first); }));
    EXPECT_EQ(offered({path("in/a.txt")}), QStringList());
}

TEST_F(MenuPluginTest, ShowsTitlesAsTheyAre)
{
    const auto title = QStringLiteral("A & B && C\tD");
    companionSays({{QStringLiteral("first"), title, {}, AppliesTo::Anything}, twoActions().last()});
    settle();
    const auto menu = menuFor({path("in/a.txt")});
    EXPECT_EQ(menu->actions().first()->text(), QStringLiteral("A && B &&&& C D"));
}

TEST_F(MenuPluginTest, ShowsIconsWhereTheyAreOn)
{
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    QDir().mkpath(path("icons/hicolor/16x16"));
    ASSERT_TRUE(picture.save(path("icons/hicolor/16x16/an-icon.png")));
    write(path("icons/hicolor/index.theme"),
          "[Icon Theme]\nName=hicolor\nDirectories=16x16\n[16x16]\nSize=16\nType=Fixed\n");
    QIcon::setThemeSearchPaths({path("icons")});
    QIcon::setThemeName(QStringLiteral("hicolor"));
    for (const bool icons : {true, false}) {
        companionSays(twoActions(), icons);
        settle();
        EXPECT_EQ(menuFor({path("in/a.txt")})->actions().first()->icon().isNull(), !icons);
        companion.vanish();
        ASSERT_TRUE(waitUntil([&] { return offered({path("in/a.txt")}).isEmpty(); }));
    }
}

TEST_F(MenuPluginTest, PutsTheActionsIntoASubmenuWhereThatIsOn)
{
    companionSays(twoActions(), false, true);
    settle();
    const auto menu = menuFor({path("in/a.txt")});
    EXPECT_EQ(titlesIn(*menu), QStringList(QStringLiteral("Orvik Menu")));
    EXPECT_EQ(titlesIn(*menu->actions().first()->menu()), QStringList({first, second}));
    EXPECT_EQ(offered({path("out/o.txt")}), QStringList());
}

TEST_F(MenuPluginTest, OffersTheCustomFoldersBelowWhatMovesOrCopies)
{
    companionSays(twoThatTakeFolders(), false, false,
                  {QStringLiteral("/a&b/c"), QStringLiteral("/elsewhere/c"), QStringLiteral("/<b>\u00e4"),
                   QStringLiteral("none")});
    settle();
    const auto menu = menuFor({path("in/a.txt"), path("in/sub")});
    EXPECT_EQ(titlesIn(*menu), QStringList({first, second}));
    for (const QAction* const action : menu->actions().mid(0, 2)) {
        EXPECT_EQ(all(*action->menu(), &QAction::text),
                  QStringList({QStringLiteral("c (a&&b)"), QStringLiteral("c (elsewhere)"),
                               QStringLiteral("<b>\u00e4"), QStringLiteral("Choose Folder\u2026")}));
        EXPECT_TRUE(action->menu()->toolTipsVisible());
        EXPECT_EQ(all(*action->menu(), &QAction::toolTip),
                  QStringList({QStringLiteral("/a&b/c"), QStringLiteral("/elsewhere/c"),
                               QStringLiteral("<p style='white-space:pre'>/&lt;b&gt;\u00e4</p>"),
                               QStringLiteral("Asks for another folder")}));
    }
    EXPECT_EQ(offered({path("out/o.txt")}), QStringList());
}

TEST_F(MenuPluginTest, NamesTheCustomFolderThatWasChosenToTheCompanion)
{
    const auto target = QStringLiteral("/elsewhere/\u00e4 b");
    companionSays(twoThatTakeFolders(), false, true, {target});
    settle();
    const auto menu = menuFor({path("in/a.txt")});
    const QList<QAction*> actions = menu->actions().first()->menu()->actions();
    const QDBusMessage run = choose(*actions.last()->menu(), QStringLiteral("\u00e4 b"));
    EXPECT_EQ(run.arguments().first(), QStringLiteral("copy-to-a-folder"));
    EXPECT_EQ(pathsIn(run), QList{path("in/a.txt").toUtf8()});
    EXPECT_EQ(optionsIn(run).value(QStringLiteral("target")).toByteArray(), target.toUtf8());

    const QDBusMessage other = choose(*actions.first()->menu(), QStringLiteral("Choose Folder\u2026"));
    EXPECT_EQ(other.arguments().first(), QStringLiteral("move-to-a-folder"));
    EXPECT_FALSE(optionsIn(other).contains(QStringLiteral("target")));
}

TEST_F(MenuPluginTest, AsksForAFolderAtOnceWhereThereAreNoCustomFolders)
{
    companionSays(twoThatTakeFolders());
    settle();
    const QDBusMessage run = choose(*menuFor({path("in/a.txt")}), first);
    EXPECT_EQ(run.arguments().first(), QStringLiteral("move-to-a-folder"));
    EXPECT_FALSE(optionsIn(run).contains(QStringLiteral("target")));
}

TEST_F(MenuPluginTest, FillsTheMenuThatWasOpenedBeforeTheCompanionHadAnswered)
{
    companionSays(twoActions());
    companion.isSilent = true;
    companion.appear();
    std::unique_ptr<QMenu> menu;
    ASSERT_TRUE(waitUntil([&] {
        menu = menuFor({path("in/a.txt")});
        return !companion.questions.isEmpty() && !menu->actions().isEmpty();
    }));
    menu->addAction(QStringLiteral("Properties"));
    menu->popup(QPoint(0, 0));
    EXPECT_EQ(titlesIn(*menu), QStringList());
    companion.answer(companion.questions.last());
    EXPECT_TRUE(waitUntil([&] { return titlesIn(*menu) == QStringList({first, second}); }));
    EXPECT_EQ(menu->actions().last()->text(), QStringLiteral("Properties"));
    EXPECT_EQ(pathsIn(choose(*menu, first)), QList{path("in/a.txt").toUtf8()});
}

TEST_F(MenuPluginTest, SurvivesAMenuThatIsClosedBeforeTheCompanionHasAnswered)
{
    companionSays(twoActions());
    companion.isSilent = true;
    companion.appear();
    ASSERT_TRUE(waitUntil([&] {
        menuFor({path("in/a.txt")});
        return !companion.questions.isEmpty();
    }));
    companion.isSilent = false;
    companion.answer(companion.questions.last());
    EXPECT_TRUE(waitUntil([&] { return offered({path("in/a.txt")}) == QStringList({first, second}); }));
}

TEST_F(MenuPluginTest, OffersNothingWhileTheCompanionIsAwayOrSpeaksGarbage)
{
    companionSays(twoActions());
    settle();
    companion.vanish();
    EXPECT_TRUE(waitUntil([&] { return menuFor({path("in/a.txt")})->actions().isEmpty(); }));
    settle();
    companion.answers = {QStringLiteral("garbage")};
    companion.announce();
    EXPECT_TRUE(waitUntil([&] { return menuFor({path("in/a.txt")})->actions().isEmpty(); }));
}

TEST_F(MenuPluginTest, ShowsAChangeInTheNextMenu)
{
    companionSays(twoActions());
    settle();
    const auto open = menuFor({path("in/a.txt")});
    companionSays({twoActions().last()});
    companion.announce();
    EXPECT_TRUE(waitUntil([&] { return offered({path("in/a.txt")}) == QStringList(second); }));
}

TEST_F(MenuPluginTest, AsksTheCompanionToDoTheAction)
{
    companionSays(twoActions());
    settle();
    const QDBusMessage run = choose(*menuFor({path("in/a.txt"), path("in/sub")}), first);
    EXPECT_EQ(run.signature(), QStringLiteral("saaya{sv}"));
    EXPECT_EQ(run.arguments().first(), QStringLiteral("first"));
    EXPECT_EQ(pathsIn(run), QList({path("in/a.txt").toUtf8(), path("in/sub").toUtf8()}));
    EXPECT_FALSE(optionsIn(run).contains(QStringLiteral("background")));
}

TEST_F(MenuPluginTest, TakesTenThousandItems)
{
    companionSays(twoActions());
    settle();
    QStringList paths;
    for (int item = 0; item < 10'000; ++item)
        paths += path("in/a.txt") + QString::number(item);
    const QDBusMessage run = choose(*menuFor(paths), first);
    EXPECT_EQ(pathsIn(run).size(), 10'000);
    EXPECT_EQ(pathsIn(run).last(), paths.last().toUtf8());
}

TEST_F(MenuPluginTest, CopiesPathsItselfAPathALine)
{
    companionSays({{QStringLiteral("copy-path-to-clipboard"), first, {}, AppliesTo::Anything}});
    settle();
    menuFor({path("in/a.txt"), path("in/sub")})->actions().first()->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), path("in/a.txt") + QLatin1Char('\n') + path("in/sub"));
    // What was asked of the companion next is the first that it was asked.
    companionSays(twoActions());
    companion.announce();
    ASSERT_TRUE(waitUntil([&] { return offered({path("in/a.txt")}).size() == 2; }));
    EXPECT_EQ(choose(*menuFor({path("in/a.txt")}), second).arguments().first(), QStringLiteral("second"));
}
