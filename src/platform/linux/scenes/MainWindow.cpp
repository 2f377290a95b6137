#include "platform/linux/scenes/MainWindow.h"

#include "platform/linux/look/FitToScreen.h"
#include "platform/linux/scenes/ScrollPane.h"
#include "platform/linux/scenes/WidgetScene.h"
#include "platform/linux/scenes/WindowSizes.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QLayout>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>

namespace LinuxDesktop {

namespace {

/// Counts up, so that of two windows the one with the larger number was in front later.
constexpr const char* frontOrder = "frontOrder";

} // namespace

MainWindow* MainWindow::front()
{
    MainWindow* latest = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<MainWindow*>(widget);
        if (window && window->isVisible() &&
            (!latest || window->property(frontOrder).toInt() > latest->property(frontOrder).toInt()))
            latest = window;
    }
    return latest;
}

void MainWindow::noteInFront()
{
    const MainWindow* latest = front();
    if (latest != this)
        setProperty(frontOrder, (latest ? latest->property(frontOrder).toInt() : 0) + 1);
}

void MainWindow::setContentViewController(std::shared_ptr<NS::ViewController> controller)
{
    QWidget& root = WidgetScene::rootOf(*controller);
    setCentralWidget(&root);
    // Else the keyboard would begin at what stands first, a menu for example.
    const QString begin = root.property("beginsAt").toString();
    if (auto* first = begin.isEmpty() ? nullptr : root.findChild<QWidget*>(begin))
        first->setFocus(Qt::OtherFocusReason);
    m_content = std::move(controller);
}

/// What is shown may ask for a window that has room for it and no more.
void MainWindow::fitToContent()
{
    const QWidget* content = centralWidget();
    const auto* pane = content ? content->findChild<ScrollPane*>() : nullptr;
    if (!pane || !content->property("windowFitsContent").toBool())
        return;
    const QList<QWidget*> inside = content->findChildren<QWidget*>();
    // Until then they do not know how large they are, and their layouts not before those within them.
    for (const QWidget* part : inside)
        part->ensurePolished();
    for (auto part = inside.rbegin(); part != inside.rend(); ++part) {
        if (QLayout* layout = (*part)->layout())
            layout->activate();
    }
    const QWidget* scrolled = pane->widget();
    // A pane that once had a scroll bar goes without it only where there is room for all with it.
    const int room = width() - style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, pane);
    int height = scrolled->heightForWidth(std::min(room, scrolled->maximumWidth()));
    const QLayout* parts = content->layout();
    for (int index = 0; index < parts->count(); ++index) {
        QLayoutItem* part = parts->itemAt(index);
        if (part->widget() != pane)
            height += part->sizeHint().height();
    }
    resize(width(), height);
}

MainWindow::~MainWindow()
{
    const QSize left = isMaximized() || isFullScreen() ? normalGeometry().size() : size();
    if (screen() && m_openedSize.isValid() && left.isValid() && left != m_openedSize)
        WindowSizes::remember(objectName(), *screen(), left);
}

void MainWindow::takeSize()
{
    resize(WindowSizes::remembered(objectName(), *screen()).value_or(m_designedSize));
    fitToScreen(*this);
    m_openedSize = size();
}

void MainWindow::makeKeyAndOrderFront()
{
    if (!testAttribute(Qt::WA_WState_Created)) {
        fitToContent();
        m_designedSize = size();
        takeSize();
        create();
        // It is the window manager who chooses the screen, and a person who moves the window later on.
        const auto placed = connect(windowHandle(), &QWindow::screenChanged, this, &MainWindow::takeSize);
        connect(windowHandle(), &QWindow::activeChanged, this, [placed] { disconnect(placed); });
    }
    if (isMinimized())
        showNormal();
    else
        show();
    noteInFront();
    raise();
    activateWindow();
}

void MainWindow::endSheet(NS::Sheet& sheet)
{
    if (auto* dialog = dynamic_cast<QDialog*>(&sheet))
        dialog->done(QDialog::Rejected);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        noteInFront();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_delegate)
        m_delegate->windowWillClose();
    event->accept();
}

} // namespace LinuxDesktop
