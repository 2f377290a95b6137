#include "platform/TabViewController.h"
#include "platform/TableView.h"
#include "platform/WindowController.h"
#include "platform/linux/look/Appearance.h"
#include "platform/linux/scenes/ImageStore.h"
#include "platform/linux/scenes/Label.h"
#include "platform/linux/scenes/MainWindow.h"
#include "platform/linux/scenes/MenuButton.h"
#include "platform/linux/scenes/PushButton.h"
#include "platform/linux/scenes/RowList.h"
#include "platform/linux/scenes/RowWidget.h"
#include "platform/linux/scenes/SceneConnections.h"
#include "platform/linux/scenes/ScrollPane.h"
#include "platform/linux/scenes/TabPages.h"
#include "platform/linux/scenes/WidgetScene.h"
#include "platform/linux/scenes/WidgetStoryboard.h"
#include "ui/tblcell.h"

#include <QAction>
#include <QMenu>
#include <QScrollBar>
#include <QStyle>
#include <QTabBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using namespace LinuxDesktop;

class Window : public NS::WindowController, public NS::WindowDelegate {
public:
    void windowDidLoad() override { ++loaded; }
    void windowWillClose() override { ++closed; }

    int loaded = 0;
    int closed = 0;
};

class Screen : public NS::ViewController, public NS::TableViewDataSource, public NS::TableViewDelegate {
public:
    explicit Screen(int& loads) : m_loads(loads) {}

    void connect(NS::Connections& connections) override
    {
        connections.outlet(tblview);
        connections.outlet(missing);
    }
    void viewDidLoad() override { ++m_loads; }

    std::ptrdiff_t numberOfRowsInTableView(NS::TableView&) override { return 1; }
    NS::TableCellView* tableView_viewForTableColumn_row(NS::TableView& table, const NS::TableColumn*,
                                                        std::ptrdiff_t) override
    {
        cell = dynamic_cast<tblcell*>(table.makeViewWithIdentifier_owner("tblcell", nullptr));
        return cell;
    }

    NS::Outlet<NS::TableView> tblview{"tblview"};
    NS::Outlet<NS::TableView> missing{"no such view"};
    tblcell* cell = nullptr;

private:
    int& m_loads;
};

/// A screen that answers every action by nothing.
class Silent : public NS::ViewController {
public:
    void connect(NS::Connections& connections) override
    {
        for (const char* action : {"btnAddItems:", "btnremoveitem:", "btnopenSystemPrefrences:", "showiconinmenu:",
                                   "showinSubmenu:", "btnfacebook:", "btntwitter:", "btnweb:", "btnRateusClciked:"})
            connections.action(action, [](NS::Control&) {});
    }
};

class StoryboardFixture : public testing::Test {
protected:
    StoryboardFixture()
    {
        classes.controllers["mainStartWindow"] = [] { return std::make_shared<Window>(); };
        classes.controllers["tabviewcontroller"] = [] { return std::make_shared<NS::TabViewController>(); };
        classes.controllers["ViewController"] = [this] { return screen = std::make_shared<Screen>(screenLoads); };
        classes.cells["tblcell"] = [] { return std::make_unique<tblcell>(); };
        responders["menuItem_aboutCLicked:"] = [](NS::Control&) {};
        responders["terminate:"] = [this](NS::Control&) { ++terminations; };
    }

    template<class T>
    std::shared_ptr<T> make(const char* identifier)
    {
        return std::dynamic_pointer_cast<T>(storyboard.instantiateControllerWithIdentifier(identifier));
    }

    static QAction* entryOf(const Window& window, const QString& text)
    {
        for (auto* entry : WidgetScene::rootOf(window).findChildren<QAction*>()) {
            if (entry->text().remove(QLatin1Char('&')) == text)
                return entry;
        }
        return nullptr;
    }

    NS::ClassTable classes;
    ActionMap responders;
    ImageStore images{QStringLiteral(ORVIK_ASSETS)};
    WidgetStoryboard storyboard{classes, images, responders};
    std::shared_ptr<Screen> screen;
    int screenLoads = 0;
    int terminations = 0;
};

TEST_F(StoryboardFixture, GivesNothingForASceneThatItDoesNotHave)
{
    EXPECT_EQ(storyboard.instantiateControllerWithIdentifier("no such scene"), nullptr);
}

TEST_F(StoryboardFixture, EachInstanceIsANewOne)
{
    EXPECT_NE(make<Screen>("ViewController"), make<Screen>("ViewController"));
    EXPECT_EQ(screenLoads, 2);
}

TEST_F(StoryboardFixture, LoadsAWindowAndFillsItsOutlet)
{
    const auto window = make<Window>("mainStartWindow");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->loaded, 1);
    EXPECT_TRUE(window->window);
}

TEST_F(StoryboardFixture, FillsTheOutletsThatTheSceneHasAndLeavesOthersEmpty)
{
    const auto made = make<Screen>("ViewController");
    EXPECT_TRUE(made->tblview);
    EXPECT_FALSE(made->missing);
    EXPECT_DEATH(made->missing->reloadData(), ": fatal error: the outlet \"no such view\" is empty");
}

TEST_F(StoryboardFixture, OutletsAreEmptyOnceTheSceneIsGone)
{
    const auto made = make<Screen>("ViewController");
    made->setScene(nullptr);
    EXPECT_FALSE(made->tblview);
}

TEST_F(StoryboardFixture, ACellOfTheStoryboardHasAllFourOutletsConnected)
{
    const auto made = make<Screen>("ViewController");
    QWidget& root = WidgetScene::rootOf(*made);
    root.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&root));
    ASSERT_NE(made->cell, nullptr);
    EXPECT_TRUE(made->cell->lbltitle);
    EXPECT_TRUE(made->cell->imgview);
    EXPECT_TRUE(made->cell->checkbox);
    EXPECT_TRUE(made->cell->btnDelete);
}

TEST_F(StoryboardFixture, ATextIsShownAsItIsAndNotAsMarkup)
{
    Label label;
    label.setStringValue("<b>bold</b> & \xe2\x82\xac");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.text(), QStringLiteral("<b>bold</b> & €"));
}

TEST_F(StoryboardFixture, AScreenIsMadeWhenItsTabIsFirstShownAndOnlyThen)
{
    const auto window = make<Window>("mainStartWindow");
    const auto tabs = make<NS::TabViewController>("tabviewcontroller");
    window->window->setContentViewController(tabs);
    EXPECT_EQ(screenLoads, 0);
    window->showWindow();
    EXPECT_EQ(screenLoads, 1);
    tabs->tabView->selectTabViewItemAtIndex(0);
    WidgetScene::rootOf(*window).hide();
    window->showWindow();
    EXPECT_EQ(screenLoads, 1);
}

TEST_F(StoryboardFixture, CtrlAndThePageKeysGoFromTabToTabRoundAndRound)
{
    const auto tabs = make<NS::TabViewController>("tabviewcontroller");
    QWidget& root = WidgetScene::rootOf(*tabs);
    auto* pages = root.findChild<TabPages*>();
    for (const char* scene : {"foldersArrvc", "genraltabvc", "aboutVc", "customFoldersVc"})
        classes.controllers[scene] = [] { return std::make_shared<Silent>(); };
    root.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&root));
    QTest::keyClick(&root, Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(pages->currentIndex(), 4);
    QTest::keyClick(&root, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(pages->currentIndex(), 0);
    QTest::keyClick(&root, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(pages->currentIndex(), 1);
}

TEST_F(StoryboardFixture, RemovingAFolderIsOffAsLongAsNoneIsSelectedAndTheKeyboardStaysNear)
{
    classes.controllers["foldersArrvc"] = [] { return std::make_shared<Silent>(); };
    const auto folders = make<Silent>("foldersArrvc");
    QWidget& root = WidgetScene::rootOf(*folders);
    root.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&root));
    auto* list = root.findChild<RowList*>();
    auto* remove = root.findChild<PushButton*>(QStringLiteral("btnRemove"));
    auto* add = root.findChild<PushButton*>(QStringLiteral("btnAdd"));
    // As beside a list with rows.
    add->show();
    remove->show();
    EXPECT_FALSE(remove->isEnabled());
    emit list->selectionChanged(true);
    EXPECT_TRUE(remove->isEnabled());
    remove->setFocus();
    emit list->selectionChanged(false);
    EXPECT_FALSE(remove->isEnabled());
    EXPECT_EQ(root.focusWidget(), add);
}

TEST_F(StoryboardFixture, EnterPressesTheButtonThatHasTheKeyboard)
{
    PushButton button;
    int pressed = 0;
    button.setAction([&](NS::Control&) { ++pressed; });
    button.show();
    QTest::keyClick(&button, Qt::Key_Return);
    QTest::keyClick(&button, Qt::Key_Enter);
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(pressed, 3);
}

TEST_F(StoryboardFixture, TheMenuAtTheEndOfTheTabsHasTheEntriesOfTheWindow)
{
    const auto window = make<Window>("mainStartWindow");
    window->window->setContentViewController(make<NS::TabViewController>("tabviewcontroller"));
    window->showWindow();
    QWidget& root = WidgetScene::rootOf(*window);
    auto* button = root.findChild<MenuButton*>();
    ASSERT_NE(button, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&root));

    QStringList entries;
    QTimer::singleShot(0, button, [&] {
        for (const QAction* entry : button->menu()->actions()) {
            if (button->menu()->isVisible() && !entry->isSeparator())
                entries.append(entry->text().remove(u'&'));
        }
        button->menu()->close();
    });
    QTest::keyClick(&root, Qt::Key_F10);

    EXPECT_EQ(entries, (QStringList{QStringLiteral("About Orvik Menu"), QStringLiteral("Close Window"),
                                    QStringLiteral("Quit Orvik Menu")}));
}

TEST_F(StoryboardFixture, TabsAndPageBeginAndEndAtTheSameEdgesAndPagesDoNotBecomeTooWide)
{
    applyAppearance(ColorScheme::Light);
    const auto window = make<Window>("mainStartWindow");
    window->window->setContentViewController(make<NS::TabViewController>("tabviewcontroller"));
    QWidget& root = WidgetScene::rootOf(*window);
    for (const int width : {440, 600, 1200}) {
        root.resize(width, 600);
        window->showWindow();
        QCoreApplication::processEvents();
        const auto* list = root.findChild<RowList*>();
        const auto* bar = root.findChild<QTabBar*>();
        const int edge = list->mapTo(&root, QPoint()).x();
        const int padding = bar->style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, bar) / 2;
        EXPECT_EQ(bar->mapTo(&root, bar->tabRect(0).topLeft()).x() + padding, edge) << width;
        const auto* button = root.findChild<MenuButton*>();
        EXPECT_EQ(button->mapTo(&root, QPoint(button->width() - MenuButton::padding, 0)).x(), edge + list->width())
            << width;
        EXPECT_LE(list->width(), 640) << width;
        EXPECT_LE(std::abs(root.width() - 2 * edge - list->width()), 1) << width;
        EXPECT_LE(bar->tabRect(bar->count() - 1).right(), bar->width()) << width;
    }
}

TEST_F(StoryboardFixture, TheWindowOfTheFirstRunHasRoomForAllOfItAndNoMore)
{
    applyAppearance(ColorScheme::Light);
    classes.controllers["firstRunvc"] = [] { return std::make_shared<NS::ViewController>(); };
    responders["btnsystemPrefrences:"] = [](NS::Control&) {};
    responders["btnselectfolder:"] = [](NS::Control&) {};
    const auto window = make<Window>("mainStartWindow");
    window->window->setContentViewController(make<NS::ViewController>("firstRunvc"));
    window->showWindow();
    QCoreApplication::processEvents();
    const auto* pane = WidgetScene::rootOf(*window).findChild<ScrollPane*>();

    EXPECT_EQ(pane->verticalScrollBar()->maximum(), 0);
    constexpr int oneLine = 24;
    EXPECT_LE(pane->viewport()->height(), pane->widget()->heightForWidth(pane->widget()->width()) + oneLine);
}

TEST_F(StoryboardFixture, SelectingATabThatDoesNotExistIsFatal)
{
    const auto tabs = make<NS::TabViewController>("tabviewcontroller");
    EXPECT_DEATH(tabs->tabView->selectTabViewItemAtIndex(99), "fatal error: there is no tab 99");
    EXPECT_DEATH(tabs->tabView->selectTabViewItemAtIndex(-1), "fatal error: there is no tab -1");
}

TEST_F(StoryboardFixture, ClosingAWindowTellsItsDelegateOnce)
{
    const auto window = make<Window>("mainStartWindow");
    window->showWindow();
    entryOf(*window, QStringLiteral("Close Window"))->trigger();
    EXPECT_EQ(window->closed, 1);
    EXPECT_FALSE(WidgetScene::rootOf(*window).isVisible());
}

TEST_F(StoryboardFixture, AnActionThatTheControllerDoesNotHaveGoesToTheApplication)
{
    const auto window = make<Window>("mainStartWindow");
    entryOf(*window, QStringLiteral("Quit Orvik Menu"))->trigger();
    EXPECT_EQ(terminations, 1);
}

TEST_F(StoryboardFixture, AnActionThatNobodyHasIsFatal)
{
    responders.erase("terminate:");
    EXPECT_DEATH(static_cast<void>(storyboard.instantiateControllerWithIdentifier("mainStartWindow")),
                 "nothing answers the action \"terminate:\"");
}

TEST_F(StoryboardFixture, ASceneOfAClassThatDoesNotExistIsFatal)
{
    classes.controllers.clear();
    EXPECT_DEATH(static_cast<void>(storyboard.instantiateControllerWithIdentifier("ViewController")),
                 "there is no class \"ViewController\"");
}

TEST_F(StoryboardFixture, AnOutletOfAnotherClassIsFatal)
{
    NS::Outlet<NS::TextField> wrong{"tblview"};
    const auto made = make<Screen>("ViewController");
    SceneConnections connections(&WidgetScene::rootOf(*made));
    EXPECT_DEATH(connections.outlet(wrong), "the view \"tblview\" is of another class");
}

} // namespace
