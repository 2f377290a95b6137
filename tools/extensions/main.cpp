#include "extensions/ExtensionControl.h"
#include "extensions/ExtensionsWindow.h"
#include "platform/linux/bus/ApplicationName.h"
#include "platform/linux/bus/SessionBus.h"
#include "platform/linux/look/Appearance.h"
#include "platform/linux/program/ColorSchemeSetting.h"
#include "platform/linux/program/TerminationSignals.h"
#include "settings/Deployment.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

using namespace ExtensionsTool;
using namespace LinuxDesktop;

constexpr int exitUsage = 2;

constexpr const char* usage = R"(Usage: orvik-menu-extensions [OPTION]
Shows the extensions of Orvik Menu and switches them on and off.

  --help     print this text
  --version  print the version
)";

/// Of this window, not of any extension.
const std::string identifier = std::string(Deployment::applicationIdentifier) + ".extensions";

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString programFolder()
{
    return QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
}

Extension menuExtension()
{
    return {
        .identifier = text(Deployment::extensionIdentifier),
        .program = programFolder() + QStringLiteral("/orvik-menu-extension"),
        .title = QStringLiteral("Orvik Menu Extension"),
        .explanation = QStringLiteral("Adds Orvik Menu's actions to the file manager's right-click menu."),
        .icon = text(Deployment::applicationIdentifier),
    };
}

int show(SessionBus& bus, ApplicationName& name, TerminationSignals& terminationSignals)
{
    applyAppearance(ColorScheme::Light);
    const ColorSchemeSetting colorScheme(
        bus, [](bool dark) { applyAppearance(dark ? ColorScheme::Dark : ColorScheme::Light); });

    ExtensionControl control(bus, autostartFolders(), menuExtension());
    const QString icon =
        QDir::cleanPath(programFolder() + QStringLiteral("/" ORVIK_RESOURCES "/Assets/orvik-menu.svg"));
    ExtensionsWindow window({&control}, QIcon(icon));
    name.whenActivated([&window](const QString& activationToken) {
        // Where the compositor guards the focus, the token is what lets a window come to the front.
        if (!activationToken.isEmpty())
            qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
        window.comeToFront();
    });
    terminationSignals.whenAsked([] { QCoreApplication::quit(); });
    window.show();
    return QApplication::exec();
}

int start(const QVariantMap& platformData, TerminationSignals& terminationSignals)
{
    SessionBus bus("orvik-menu-extensions: there is no session bus");
    ApplicationName name(bus, identifier);
    if (name.claim() != ApplicationName::Claim::OwnedByAnother)
        return show(bus, name, terminationSignals);
    if (name.activateOther(platformData))
        return EXIT_SUCCESS;
    std::fputs("orvik-menu-extensions: it is running already, but does not answer\n", stderr);
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    for (int index = 1; index < argc; ++index) {
        if (std::strcmp(argv[index], "--help") == 0) {
            std::fputs(usage, stdout);
            return EXIT_SUCCESS;
        }
        if (std::strcmp(argv[index], "--version") == 0) {
            std::puts("orvik-menu-extensions " ORVIK_VERSION);
            return EXIT_SUCCESS;
        }
    }
    const QVariantMap platformData = platformDataFromEnvironment();
    TerminationSignals terminationSignals;
    SessionBus::keepToolkitFromStartingOne();
    const QApplication application(argc, argv);
    if (argc > 1) {
        std::fprintf(stderr, "orvik-menu-extensions: unknown argument: %s\n%s", argv[1], usage);
        return exitUsage;
    }
    QApplication::setApplicationName(QStringLiteral("orvik-menu-extensions"));
    QApplication::setApplicationVersion(QStringLiteral(ORVIK_VERSION));
    QGuiApplication::setDesktopFileName(QString::fromStdString(identifier));
    return start(platformData, terminationSignals);
}
