#pragma once

#include "platform/linux/bus/ApplicationName.h"
#include "platform/linux/bus/SessionBus.h"

#include <QIcon>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <string>

class QWidget;

namespace LinuxDesktop {

class TerminationSignals;

/// What a program with windows says of itself.
struct ProgramDescription {
    /// The command, which begins its lines on standard error.
    std::string name;
    /// Its name on the session bus, and its desktop entry's.
    std::string identifier;
    /// What --help prints.
    const char* usage;
    /// What standard error gets, after the name, where there is no display and where there is no session bus.
    const char* noDisplay;
    const char* noSessionBus;
    /// An option that takes a value, and whose value Program::option() gives; null for none.
    const char* option = nullptr;
    /// What that value is, in a message: "a title".
    const char* optionValue = nullptr;
    /// Whether a second start brings the first one's window to the front. Else each has a window of its own.
    bool runsOnce = true;
};

/// A program with windows: what it has of the desktop before it makes its first window.
/// Main thread.
class Program {
public:
    /// Makes the windows, runs the event loop and returns the exit status.
    using Main = std::function<int(Program&)>;

    /// Runs a program from its arguments to its exit status: 0; 1 where there is no display or the running process
    /// does not answer; 2 for an argument that is neither --help, --version, the program's own nor the toolkit's.
    /// `main` is called where none runs yet. Its windows look as the desktop wishes, and follow its wishes for
    /// colours, contrast and motion.
    static int run(const ProgramDescription& description, int argc, char** argv, const Main& main);

    /// The folder of the installed files.
    [[nodiscard]] static QString resources();
    /// The product's icon. The windows have it already.
    [[nodiscard]] static QIcon icon();

    /// What the description's option was given; empty where it was not.
    [[nodiscard]] const QString& option() const { return m_option; }
    [[nodiscard]] SessionBus& bus() { return m_bus; }
    /// Of which the process gives up being the owner when the event loop ends.
    [[nodiscard]] ApplicationName& name() { return m_name; }
    /// What a signal that asks the process to end does. At first it quits.
    void whenAskedToEnd(std::function<void()> asked);

    /// A `main` in one line: shows the window, brings it or the panel that blocks it to the front when the
    /// program is started again, and ends when it is closed.
    int show(QWidget& window);

private:
    Program(const ProgramDescription& description, const QVariantMap& platformData, TerminationSignals& endings);
    int activateOther();

    const ProgramDescription& m_description;
    QString m_option;
    const QVariantMap& m_platformData;
    TerminationSignals& m_terminationSignals;
    SessionBus m_bus;
    ApplicationName m_name;
};

/// Shows the window in front of the others, also where it or the one that it is attached to is minimised.
void bringToFront(QWidget& window);

} // namespace LinuxDesktop
