#include "extension/actions/window/PerformInWindow.h"

#include "extension/actions/support/Answer.h"
#include "extension/actions/support/Programs.h"
#include "platform/LocalizedString.h"
#include "platform/linux/bus/SessionBus.h"
#include "platform/linux/look/FitToScreen.h"
#include "platform/linux/program/DisplayConnection.h"
#include "platform/linux/program/TerminationSignals.h"
#include "platform/linux/program/WindowSurroundings.h"
#include "settings/Deployment.h"

#include <QApplication>
#include <QFile>
#include <QWidget>

#include <array>
#include <cstdlib>
#include <string>
#include <utility>

namespace MenuExtension {

namespace {

/// What the process was started with is the request's, not the toolkit's.
std::string programName = "orvik-menu";
std::array<char*, 2> arguments{programName.data(), nullptr};
int argumentCount = 1;

int failWithoutDisplay()
{
    answer(Outcome::failed(NS::LocalizedString("Action", "There is no display to show the window on.")));
    return EXIT_FAILURE;
}

/// Shows a window and runs until it is closed, where that is all that an action is.
class WindowRunner : public QObject {
public:
    explicit WindowRunner(std::unique_ptr<QWidget> window) : m_window(std::move(window))
    {
        LinuxDesktop::fitToScreen(*m_window);
        m_window->show();
        m_window->raise();
        m_window->activateWindow();
        answer(Outcome::done());
    }

private:
    std::unique_ptr<QWidget> m_window;
};

} // namespace

Outcome performWithToolkit(const MakeRunner& make)
{
    LinuxDesktop::TerminationSignals terminationSignals;
    LinuxDesktop::SessionBus::keepToolkitFromStartingOne();
    const auto application = LinuxDesktop::connectToDisplay(argumentCount, arguments.data(), failWithoutDisplay);
    QApplication::setApplicationName(QString::fromStdString(programName));
    QApplication::setApplicationVersion(QStringLiteral(ORVIK_VERSION));
    QGuiApplication::setDesktopFileName(
        QString::fromUtf8(Deployment::applicationIdentifier.data(), Deployment::applicationIdentifier.size()));
    // Nobody is asked any more, as quit() would do.
    terminationSignals.whenAsked([] { QCoreApplication::exit(); });

    LinuxDesktop::SessionBus bus("orvik-menu: there is no session bus");
    const LinuxDesktop::WindowSurroundings surroundings(bus, QFile::decodeName(Programs::folder().c_str()));
    const auto runner = make(bus);
    QApplication::exec();
    return Outcome::done();
}

Outcome performInWindow(const MakeWindow& make)
{
    return performWithToolkit([&](LinuxDesktop::SessionBus&) { return std::make_unique<WindowRunner>(make()); });
}

} // namespace MenuExtension
