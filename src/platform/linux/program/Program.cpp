#include "platform/linux/program/Program.h"

#include "platform/linux/bus/ActivationToken.h"
#include "platform/linux/look/FitToScreen.h"
#include "platform/linux/program/DisplayConnection.h"
#include "platform/linux/program/Resources.h"
#include "platform/linux/program/TerminationSignals.h"
#include "platform/linux/program/WindowSurroundings.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>

namespace LinuxDesktop {

namespace {

constexpr int exitUsage = 2;

/// Answers the options that need no desktop. Whether there was one.
bool answerOption(const ProgramDescription& description, int argc, char** argv)
{
    const auto* option = std::find_if(argv + 1, argv + argc, [](std::string_view argument) {
        return argument == "--help" || argument == "--version";
    });
    if (option == argv + argc)
        return false;
    if (*option == std::string_view("--help"))
        std::fputs(description.usage, stdout);
    else
        std::printf("%s " ORVIK_VERSION "\n", description.name.c_str());
    return true;
}

/// Says what is wrong with the arguments that are not the toolkit's. Whether something is. `option` gets the value of
/// the program's own.
bool refuses(const ProgramDescription& description, int argc, char** argv, QString& option)
{
    if (argc <= 1)
        return false;
    const bool isOption = description.option && argv[1] == std::string_view(description.option);
    if (isOption && argc == 3) {
        option = QString::fromUtf8(argv[2]);
        return false;
    }
    const char* const name = description.name.c_str();
    if (isOption && argc == 2)
        std::fprintf(stderr, "%s: %s needs %s\n%s", name, argv[1], description.optionValue, description.usage);
    else
        std::fprintf(stderr, "%s: unknown argument: %s\n%s", name, argv[isOption ? 3 : 1], description.usage);
    return true;
}

/// The exit status of a program without a display, after a line that says why it ends. A word after one dash may be
/// the toolkit's, which has not taken all of its own yet.
int statusWithoutDisplay(const ProgramDescription& description, int argc, char** argv)
{
    const bool isToolkits = argc > 1 && argv[1][0] == '-' && argv[1][1] != '-';
    if (QString option; !isToolkits && refuses(description, argc, argv, option))
        return exitUsage;
    std::fprintf(stderr, "%s: %s\n", description.name.c_str(), description.noDisplay);
    return EXIT_FAILURE;
}

} // namespace

int Program::run(const ProgramDescription& description, int argc, char** argv, const Main& main)
{
    if (answerOption(description, argc, argv))
        return EXIT_SUCCESS;
    const QVariantMap platformData = ActivationToken::platformDataFromEnvironment();
    TerminationSignals terminationSignals;
    SessionBus::keepToolkitFromStartingOne();
    const auto application =
        connectToDisplay(argc, argv, [&] { return statusWithoutDisplay(description, argc, argv); });
    QString option;
    if (refuses(description, argc, argv, option))
        return exitUsage;
    QApplication::setApplicationName(QString::fromStdString(description.name));
    QApplication::setApplicationVersion(QStringLiteral(ORVIK_VERSION));
    QGuiApplication::setDesktopFileName(QString::fromStdString(description.identifier));

    Program program(description, platformData, terminationSignals);
    program.m_option = option;
    // The running one comes to the front, and takes on what this start may have been made for.
    if (description.runsOnce && program.m_name.ownedByAnother())
        return program.activateOther();

    const WindowSurroundings surroundings(program.m_bus, QCoreApplication::applicationDirPath());
    program.whenAskedToEnd([] { QCoreApplication::quit(); });
    // A process that is ending is not the one to be activated.
    QObject::connect(application.get(), &QCoreApplication::aboutToQuit, [&program] { program.m_name.release(); });
    return main(program);
}

Program::Program(const ProgramDescription& description, const QVariantMap& platformData, TerminationSignals& endings)
    : m_description(description), m_platformData(platformData), m_terminationSignals(endings),
      m_bus(description.name + ": " + description.noSessionBus), m_name(m_bus, description.identifier)
{}

QString Program::resources()
{
    return installedResources(QCoreApplication::applicationDirPath());
}

QIcon Program::icon()
{
    return productIcon(QCoreApplication::applicationDirPath());
}

void Program::whenAskedToEnd(std::function<void()> asked)
{
    m_terminationSignals.whenAsked(std::move(asked));
}

int Program::show(QWidget& window)
{
    m_name.whenActivated([&window] {
        QWidget* panel = QApplication::activeModalWidget();
        bringToFront(panel ? *panel : window);
    });
    // Another process may have become the program since this one looked.
    if (m_name.claim() == ApplicationName::Claim::OwnedByAnother && m_description.runsOnce)
        return activateOther();
    fitToScreen(window);
    bringToFront(window);
    return QApplication::exec();
}

int Program::activateOther()
{
    if (m_name.activateOther(m_platformData))
        return EXIT_SUCCESS;
    std::fprintf(stderr, "%s: it is running already, but does not answer\n", m_description.name.c_str());
    return EXIT_FAILURE;
}

void bringToFront(QWidget& window)
{
    // A sheet is on view with its window only.
    if (const QWidget* parent = window.parentWidget(); parent && parent->window()->isMinimized())
        parent->window()->showNormal();
    if (window.isMinimized())
        window.showNormal();
    else
        window.show();
    window.raise();
    window.activateWindow();
}

} // namespace LinuxDesktop
