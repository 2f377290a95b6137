#include "platform/linux/DesktopApplication.h"

#include "platform/linux/bus/ApplicationName.h"
#include "platform/linux/program/Program.h"
#include "platform/linux/scenes/MainWindow.h"
#include "platform/linux/scenes/ModalBlock.h"

#include <QApplication>
#include <QWidget>

#include <cstdlib>
#include <utility>

namespace LinuxDesktop {

DesktopApplication::DesktopApplication(ApplicationName& name, std::function<void()> reopened)
    : m_name(name), m_reopened(std::move(reopened))
{}

bool DesktopApplication::setActivationPolicy(NS::ActivationPolicy policy)
{
    if (policy != NS::ActivationPolicy::Regular)
        return true;
    m_name.whenActivated([this] {
        activateIgnoringOtherApps(true);
        m_reopened();
    });
    if (m_name.claim() != ApplicationName::Claim::OwnedByAnother)
        return true;
    // Another process has become the program since this one looked.
    static_cast<void>(m_name.activateOther({}));
    terminate();
    return false;
}

void DesktopApplication::activateIgnoringOtherApps(bool)
{
    // A modal panel is in front of the windows it blocks, which are all of them; a sheet is in front of its own.
    QWidget* front = QApplication::activeModalWidget();
    if (!front || front->windowModality() != Qt::ApplicationModal)
        front = MainWindow::front();
    if (!front)
        return;
    QWidget* panel = panelInFrontOf(*front);
    bringToFront(panel ? *panel : *front);
}

void DesktopApplication::terminate()
{
    m_terminated = true;
    QCoreApplication::exit(EXIT_SUCCESS);
}

int DesktopApplication::run(NS::ApplicationDelegate& delegate)
{
    delegate.applicationWillFinishLaunching();
    if (!m_terminated)
        delegate.applicationDidFinishLaunching();
    const int status = m_terminated ? EXIT_SUCCESS : QApplication::exec();
    delegate.applicationWillTerminate();
    return status;
}

} // namespace LinuxDesktop
