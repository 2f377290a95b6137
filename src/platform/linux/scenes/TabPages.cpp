#include "platform/linux/scenes/TabPages.h"

#include "platform/FatalError.h"
#include "platform/linux/scenes/MenuButton.h"
#include "platform/linux/scenes/Page.h"
#include "platform/linux/scenes/WidgetScene.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QShortcut>
#include <QShowEvent>
#include <QStyle>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace LinuxDesktop {

TabPages::TabPages(QWidget* parent)
    : QTabWidget(parent), m_beforeTabs(new QHBoxLayout(new QWidget)), m_afterTabs(new QHBoxLayout(new QWidget))
{
    m_afterTabs->addWidget(new MenuButton);
    setCornerWidget(m_beforeTabs->parentWidget(), Qt::TopLeftCorner);
    setCornerWidget(m_afterTabs->parentWidget(), Qt::TopRightCorner);
    connect(this, &QTabWidget::currentChanged, this, [this] {
        if (isVisible())
            loadCurrentPage();
        // Beside the tabs the keyboard stays where it is, and nothing would be read of another page.
        if (const QWidget* focused = window()->focusWidget();
            focused && m_afterTabs->parentWidget()->isAncestorOf(focused))
            tabBar()->setFocus(Qt::OtherFocusReason);
    });
    for (const auto& [keys, step] : {std::pair(Qt::Key_PageUp, -1), std::pair(Qt::Key_PageDown, 1)}) {
        auto* shortcut = new QShortcut(Qt::ControlModifier | keys, this);
        connect(shortcut, &QShortcut::activated, this,
                [this, step = step] { setCurrentIndex((currentIndex() + step + count()) % count()); });
    }
    tabBar()->setAccessibleName(tr("Pages"));
    tabBar()->installEventFilter(this);
}

bool TabPages::eventFilter(QObject* watched, QEvent* event)
{
    // The toolkit tells that the bar has the keyboard, in which a tab has it.
    if (watched == tabBar() && event->type() == QEvent::FocusIn)
        QMetaObject::invokeMethod(this, &TabPages::tellFocusedTab, Qt::QueuedConnection);
    return QTabWidget::eventFilter(watched, event);
}

void TabPages::tellFocusedTab()
{
    if (!tabBar()->hasFocus())
        return;
    QAccessibleEvent focus(tabBar(), QAccessible::Focus);
    focus.setChild(currentIndex());
    QAccessible::updateAccessibility(&focus);
}

void TabPages::selectTabViewItemAtIndex(int index)
{
    if (index < 0 || index >= count())
        NS::fatalError("there is no tab " + std::to_string(index));
    setCurrentIndex(index);
}

void TabPages::showEvent(QShowEvent* event)
{
    loadCurrentPage();
    QTabWidget::showEvent(event);
}

void TabPages::resizeEvent(QResizeEvent* event)
{
    // The first tab's text begins where the pages do, and the menu ends where they do.
    const int start = Page::contentStart(width());
    const int padding = style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, tabBar()) / 2;
    m_beforeTabs->setContentsMargins(std::max(0, start - padding), 0, 0, 0);
    const int end = start - MenuButton::padding;
    m_afterTabs->setContentsMargins(isRightToLeft() ? QMargins(end, 0, 0, 0) : QMargins(0, 0, end, 0));
    QTabWidget::resizeEvent(event);
}

void TabPages::loadCurrentPage()
{
    QWidget* page = currentWidget();
    if (!m_loader || !page || page->layout())
        return;
    auto screen = m_loader(page->property("scene").toString().toStdString());
    if (!screen)
        NS::fatalError("a tab names a scene that does not exist");
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins({});
    QWidget& root = WidgetScene::rootOf(*screen);
    layout->addWidget(&root, 0, qobject_cast<Page*>(&root) ? Qt::AlignHCenter : Qt::Alignment());
    m_screens.push_back(std::move(screen));
    // A page that had nothing in it yet was given the focus itself.
    if (page->hasFocus())
        focusNextChild();
}

} // namespace LinuxDesktop
