#include "extensions/FileManagerStatus.h"

#include <QCoreApplication>

namespace ExtensionsTool {

using MenuExtension::BridgeStatus;
using MenuExtension::FileManager;

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FileManagerStatus)
};

QString afterwards(const FileManager& manager)
{
    return quitCommand(manager).empty() ? Texts::tr("Close it and open it again.")
                                        : Texts::tr("Restarting it closes its windows and stops any copying.");
}

} // namespace

QString nameOf(const FileManager& manager)
{
    return QString::fromUtf8(manager.name.data(), static_cast<qsizetype>(manager.name.size()));
}

bool isInstalled(const FileManagerStatus& status)
{
    return status.bridge != BridgeStatus::NoFileManager;
}

bool needsAttention(const FileManagerStatus& status)
{
    return !status.isClosing && (status.bridge == BridgeStatus::NotInstalled || needsRestart(status.bridge));
}

bool offersRestart(const FileManager& manager, const FileManagerStatus& status)
{
    return needsRestart(status.bridge) && !quitCommand(manager).empty();
}

QString inWords(const FileManager& manager, const FileManagerStatus& status)
{
    if (status.isClosing)
        return Texts::tr("Closing…");
    if (!status.trouble.isEmpty())
        return status.trouble;
    switch (status.bridge) {
    case BridgeStatus::NoFileManager:
        return Texts::tr("It is not installed.");
    case BridgeStatus::NotInstalled:
        return Texts::tr("The menu is missing. Install the package %1.")
            .arg(QString::fromStdString(packageFor(manager)));
    case BridgeStatus::NotRunning:
        return Texts::tr("It is not running. It loads the menu when it starts.");
    case BridgeStatus::LoadedLater:
        return Texts::tr("It loads the menu when it needs it.");
    case BridgeStatus::Loaded:
        return Texts::tr("It has loaded the menu.");
    case BridgeStatus::NotLoaded:
        return Texts::tr("It is running without the menu.") + u' ' + afterwards(manager);
    case BridgeStatus::OlderLoaded:
        return Texts::tr("It has loaded an older version of the menu.") + u' ' + afterwards(manager);
    case BridgeStatus::NotKnown:
        break;
    }
    return Texts::tr("It is running. Whether it has loaded the menu is not known.");
}

} // namespace ExtensionsTool
