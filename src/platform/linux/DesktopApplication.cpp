#include "platform/linux/DesktopApplication.h"

#include "platform/linux/bus/ApplicationName.h"
#include "platform/linux/scenes/MainWindow.h"

#include <QApplication>
#include <QWidget>

#include <utility>

namespace LinuxDesktop {

DesktopApplication::DesktopApplication(ApplicationName& name, ModalState& modalState, std::function<void()> reopened)
    : m_name(name), m_modalState(modalState), m_reopened(std::move(reopened)),
      m_modalEnd(modalState.whenEnded([this] { reopenIfItWaits(); }))
{}

void DesktopApplication::reopenIfItWaits()
{
    if (std::exchange(m_reopenWaits, false))
        QMetaObject::invokeMethod(
            qApp, [this] { reopen(); }, Qt::QueuedConnection);
}

void DesktopApplication::reopen()
{
    if (m_modalState.active())
        m_reopenWaits = true;
    else
        m_reopened();
}

void DesktopApplication::setActivationPolicy(NS::ActivationPolicy policy)
{
    if (policy != NS::ActivationPolicy::Regular)
        return;
    m_name.whenActivated([this](const QString& activationToken) {
        // Where the compositor guards the focus, the token is what lets a window come to the front.
        if (!activationToken.isEmpty())
            qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
        activateIgnoringOtherApps(true);
        reopen();
    });
    // Another process may have become the program since this one looked.
    if (m_name.claim() == ApplicationName::Claim::OwnedByAnother) {
        static_cast<void>(m_name.activateOther({}));
        terminate();
    }
}

void DesktopApplication::activateIgnoringOtherApps(bool)
{
    // A modal panel is in front of the windows it blocks, which are all of them; a sheet follows its own.
    QWidget* front = QApplication::activeModalWidget();
    if (!front || front->windowModality() != Qt::ApplicationModal)
        front = MainWindow::front();
    if (!front)
        return;
    if (front->isMinimized())
        front->showNormal();
    front->raise();
    front->activateWindow();
}

void DesktopApplication::terminate()
{
    m_terminated = true;
    QCoreApplication::exit(0);
}

} // namespace LinuxDesktop
