#include "platform/linux/widgets/MainWindow.h"

#include "platform/linux/widgets/WidgetScene.h"

#include <QCloseEvent>
#include <QDialog>
#include <QScreen>

namespace LinuxDesktop {

void MainWindow::setContentViewController(std::shared_ptr<NS::ViewController> controller)
{
    setCentralWidget(&WidgetScene::rootOf(*controller));
    m_content = std::move(controller);
}

/// A window as its scene has it may be larger than the screen.
void MainWindow::fitToScreen()
{
    // What a window manager's frame takes, which is not known before the window shows.
    constexpr QSize frame(16, 48);
    const QSize room = screen()->availableSize() - frame;
    setMinimumSize(minimumSize().boundedTo(room));
    resize(size().boundedTo(room));
}

void MainWindow::makeKeyAndOrderFront()
{
    if (!testAttribute(Qt::WA_WState_Created))
        fitToScreen();
    if (isMinimized())
        showNormal();
    else
        show();
    raise();
    activateWindow();
}

void MainWindow::endSheet(NS::Sheet& sheet)
{
    if (auto* dialog = dynamic_cast<QDialog*>(&sheet))
        dialog->done(QDialog::Rejected);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_delegate)
        m_delegate->windowWillClose();
    event->accept();
}

} // namespace LinuxDesktop
