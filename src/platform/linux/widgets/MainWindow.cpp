#include "platform/linux/widgets/MainWindow.h"

#include "platform/linux/widgets/WidgetScene.h"

#include <QCloseEvent>

namespace LinuxDesktop {

void MainWindow::setContentViewController(std::shared_ptr<NS::ViewController> controller)
{
    setCentralWidget(&WidgetScene::rootOf(*controller));
    m_content = std::move(controller);
}

void MainWindow::makeKeyAndOrderFront()
{
    if (isMinimized())
        showNormal();
    else
        show();
    raise();
    activateWindow();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_delegate)
        m_delegate->windowWillClose();
    event->accept();
}

} // namespace LinuxDesktop
