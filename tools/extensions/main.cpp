#include "extension/protocol/ActionsFolder.h"
#include "extensions/ExtensionControl.h"
#include "extensions/ExtensionsWindow.h"
#include "extensions/FileManagersControl.h"
#include "platform/linux/program/Program.h"
#include "settings/Deployment.h"

#include <QCoreApplication>

#include <string>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Extension)
};

using namespace ExtensionsTool;
using namespace LinuxDesktop;

const ProgramDescription extensions = {
    .name = "orvik-menu-extensions",
    // Of this window, not of any extension.
    .identifier = std::string(Deployment::applicationIdentifier) + ".extensions",
    .usage = R"(Usage: orvik-menu-extensions [OPTION]
Shows the extensions of Orvik Menu, switches them on and off, and tells how far
they have come into each file manager.

  --help     print this text
  --version  print the version
)",
    .noDisplay = "there is no display to show the window on",
    .noSessionBus = "there is no session bus",
};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

Extension menuExtension()
{
    return {
        .identifier = text(Deployment::extensionIdentifier),
        .program = QCoreApplication::applicationDirPath() + QStringLiteral("/orvik-menu-extension"),
        .title = Texts::tr("Orvik Menu Extension"),
        .explanation = Texts::tr("Adds Orvik Menu's actions to the file manager's right-click menu."),
        .icon = text(Deployment::applicationIdentifier),
    };
}

} // namespace

int main(int argc, char** argv)
{
    return Program::run(extensions, argc, argv, [](Program& program) {
        ExtensionControl control(program.bus(), autostartFolders(), menuExtension());
        FileManagersControl fileManagers(MenuExtension::usualPlaces());
        ExtensionsWindow window({&control}, fileManagers, MenuExtension::folderOfActions(), Program::icon());
        return program.show(window);
    });
}
