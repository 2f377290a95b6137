#include "extensions/FileManagerStatus.h"

namespace ExtensionsTool {

using MenuExtension::BridgeStatus;
using MenuExtension::FileManager;

namespace {

QString afterwards(const FileManager& manager)
{
    return quitCommand(manager).empty() ? QStringLiteral(" Close it and open it again.")
                                        : QStringLiteral(" Restarting it closes its windows and stops any copying.");
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
        return QStringLiteral("Closing…");
    if (!status.trouble.isEmpty())
        return status.trouble;
    switch (status.bridge) {
    case BridgeStatus::NoFileManager:
        return QStringLiteral("It is not installed.");
    case BridgeStatus::NotInstalled:
        return QStringLiteral("The menu is missing. Install the package %1.")
            .arg(QString::fromStdString(packageFor(manager)));
    case BridgeStatus::NotRunning:
        return QStringLiteral("It is not running. It loads the menu when it starts.");
    case BridgeStatus::LoadedLater:
        return QStringLiteral("It loads the menu when it needs it.");
    case BridgeStatus::Loaded:
        return QStringLiteral("It has loaded the menu.");
    case BridgeStatus::NotLoaded:
        return QStringLiteral("It is running without the menu.") + afterwards(manager);
    case BridgeStatus::OlderLoaded:
        return QStringLiteral("It has loaded an older version of the menu.") + afterwards(manager);
    case BridgeStatus::NotKnown:
        break;
    }
    return QStringLiteral("It is running. Whether it has loaded the menu is not known.");
}

} // namespace ExtensionsTool
