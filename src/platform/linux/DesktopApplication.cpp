#include "platform/linux/DesktopApplication.h"

#include "platform/linux/bus/ApplicationName.h"

#include <QApplication>
#include <QWidget>

namespace LinuxDesktop {

DesktopApplication::DesktopApplication(ApplicationName& name, std::function<void()> reopened)
    : m_name(name), m_reopened(std::move(reopened))
{
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
        m_reopened();
    });
    // Another process may have become the program since this one looked.
    if (m_name.claim() == ApplicationName::Claim::OwnedByAnother) {
        static_cast<void>(m_name.activateOther({}));
        terminate();
    }
}

void DesktopApplication::activateIgnoringOtherApps(bool)
{
    // A modal panel is in front of the windows it blocks.
    QWidget* front = QApplication::activeModalWidget();
    if (!front) {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (window->isVisible() && window->windowType() == Qt::Window)
                front = window;
        }
    }
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
