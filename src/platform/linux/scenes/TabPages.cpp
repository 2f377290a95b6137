#include "platform/linux/scenes/TabPages.h"

#include "platform/FatalError.h"
#include "platform/linux/scenes/WidgetScene.h"

#include <QAccessible>
#include <QShortcut>
#include <QShowEvent>
#include <QTabBar>
#include <QVBoxLayout>

#include <utility>

namespace LinuxDesktop {

TabPages::TabPages(QWidget* parent) : QTabWidget(parent)
{
    connect(this, &QTabWidget::currentChanged, this, [this] {
        if (isVisible())
            loadCurrentPage();
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
    layout->addWidget(&WidgetScene::rootOf(*screen));
    m_screens.push_back(std::move(screen));
    // A page that had nothing in it yet was given the focus itself.
    if (page->hasFocus())
        focusNextChild();
}

} // namespace LinuxDesktop
