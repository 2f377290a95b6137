#include "platform/ApplicationMain.h"

#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/program/Program.h"
#include "platform/linux/scenes/Accessibility.h"
#include "settings/Deployment.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace {

using namespace LinuxDesktop;

const ProgramDescription panel = {
    .name = "orvik-menu",
    .identifier = std::string(Deployment::applicationIdentifier),
    .usage = R"(Usage: orvik-menu [OPTION]
The control panel of Orvik Menu: which actions the file manager's menu shows, and where.

  --help     show this text and end
  --version  show the version and end
)",
    .noDisplay = "there is no display to show the panel on",
    .noSessionBus = "no session bus: the panel works, but hears nothing of the extension",
};

/// Controllers may outlive the QApplication; widgets must not.
void destroyWindows()
{
    QList<QPointer<QWidget>> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        // A popup is somebody's own, who takes it away.
        if (window->windowType() != Qt::Popup)
            windows.append(window);
    }
    for (const QPointer<QWidget>& window : windows)
        delete window.data();
}

int runPanel(Program& program, const NS::ClassTable& classes)
{
    QApplication::setQuitOnLastWindowClosed(false);
    installAccessibility();
    LinuxPlatform platform(classes, Program::resources(), program.bus(), program.name());
    NS::installPlatform(&platform);
    program.whenAskedToEnd([&] { platform.application().terminate(); });
    const int status = platform.application().run(platform.loadDelegate());
    destroyWindows();
    return status;
}

} // namespace

int NS::ApplicationMain(int argc, char** argv, const ClassTable& classes)
{
    const int status =
        Program::run(panel, argc, argv, [&classes](Program& program) { return runPanel(program, classes); });
    NS::installPlatform(nullptr);
    return status;
}
