#include "platform/ApplicationMain.h"

#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/look/Appearance.h"
#include "platform/linux/program/ColorSchemeSetting.h"
#include "platform/linux/program/TerminationSignals.h"
#include "platform/linux/scenes/Accessibility.h"
#include "settings/Deployment.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

using namespace LinuxDesktop;

constexpr const char* usage = R"(Usage: orvik-menu [OPTION]
The control panel of Orvik Menu: which actions the file manager's menu shows, and where.

  --help     show this text and end
  --version  show the version and end
)";

constexpr int exitUsage = 2;

/// Where the program's files are, beside the folder that the program itself is in.
QString resourceFolder()
{
    const QString program = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
    return QDir::cleanPath(program + QStringLiteral("/" ORVIK_RESOURCES));
}

/// Answers the options that need no desktop. The exit status, or nothing when the program is to start.
std::optional<int> answerOptions(int argc, char** argv)
{
    for (int index = 1; index < argc; ++index) {
        if (std::strcmp(argv[index], "--help") == 0) {
            std::fputs(usage, stdout);
            return EXIT_SUCCESS;
        }
        if (std::strcmp(argv[index], "--version") == 0) {
            std::puts("orvik-menu " ORVIK_VERSION);
            return EXIT_SUCCESS;
        }
    }
    return std::nullopt;
}

bool hasDisplay(int argc, char** argv)
{
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    }
    for (int index = 1; index < argc; ++index) {
        if (std::strncmp(argv[index], "-platform", 9) == 0 || std::strncmp(argv[index], "-display", 8) == 0)
            return true;
    }
    return false;
}

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

int start(const NS::ClassTable& classes, const QVariantMap& platformData, TerminationSignals& terminationSignals)
{
    LinuxPlatform platform(classes, resourceFolder());
    NS::installPlatform(&platform);

    // The running one comes to the front, and takes on what this start may have been made for.
    if (platform.applicationName().ownedByAnother()) {
        if (platform.applicationName().activateOther(platformData))
            return EXIT_SUCCESS;
        std::fputs("orvik-menu: it is running already, but does not answer\n", stderr);
        return EXIT_FAILURE;
    }

    terminationSignals.whenAsked([&] { platform.application().terminate(); });
    applyAppearance(ColorScheme::Light);
    SessionBus& bus = platform.sessionBus();
    const ColorSchemeSetting colorScheme(
        bus, [](bool dark) { applyAppearance(dark ? ColorScheme::Dark : ColorScheme::Light); });
    installAccessibility();

    // The icon is drawn in many sizes, which can wait until the window shows.
    QTimer::singleShot(0, qApp, [] {
        QApplication::setWindowIcon(QIcon(resourceFolder() + QStringLiteral("/Assets/orvik-menu.svg")));
    });
    platform.loadDelegate().applicationWillFinishLaunching();
    const int status = platform.application().isTerminated() ? EXIT_SUCCESS : QApplication::exec();
    destroyWindows();
    return status;
}

} // namespace

int NS::ApplicationMain(int argc, char** argv, const ClassTable& classes)
{
    if (const auto status = answerOptions(argc, argv))
        return *status;
    if (!hasDisplay(argc, argv)) {
        std::fputs("orvik-menu: there is no display to show the panel on\n", stderr);
        return EXIT_FAILURE;
    }
    const QVariantMap platformData = platformDataFromEnvironment();
    TerminationSignals terminationSignals;
    SessionBus::keepToolkitFromStartingOne();
    QApplication application(argc, argv);
    if (argc > 1) {
        std::fprintf(stderr, "orvik-menu: unknown argument: %s\n%s", argv[1], usage);
        return exitUsage;
    }
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationName(QStringLiteral("orvik-menu"));
    QApplication::setApplicationVersion(QStringLiteral(ORVIK_VERSION));
    QGuiApplication::setDesktopFileName(
        QString::fromUtf8(Deployment::applicationIdentifier.data(), Deployment::applicationIdentifier.size()));
    const int status = start(classes, platformData, terminationSignals);
    NS::installPlatform(nullptr);
    return status;
}
