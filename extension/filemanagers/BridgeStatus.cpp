#include "extension/filemanagers/BridgeStatus.h"

#include "extension/filemanagers/Installed.h"
#include "extension/filemanagers/Processes.h"

#include <algorithm>
#include <optional>

namespace MenuExtension {

namespace {

bool isOf(const Process& process, const FileManager& manager, const std::string& program)
{
    return process.program.empty() ? process.name == manager.program : process.program == program;
}

BridgeStatus statusOf(const Process& process, const FileManager& manager, const std::string& bridge)
{
    const auto files = loadedFiles(process);
    if (!files)
        return BridgeStatus::NotKnown;
    if (files->empty())
        return BridgeStatus::NotRunning;

    const std::string modules = bridge.substr(0, bridge.rfind('/') + 1);
    bool isLoaded = false;
    bool hasModules = false;
    for (const std::string& path : *files) {
        if (path == bridge)
            isLoaded = true;
        // An installation may have given it another name before it went.
        else if (path.starts_with(bridge) && path.ends_with(deletedMark))
            return BridgeStatus::OlderLoaded;
        else if (path.starts_with(modules))
            hasModules = true;
    }
    if (isLoaded)
        return BridgeStatus::Loaded;
    const bool loadsLater =
        manager.loading == Loading::WithMenu || (manager.loading == Loading::WithFirstWindow && !hasModules);
    return loadsLater ? BridgeStatus::LoadedLater : BridgeStatus::NotLoaded;
}

BridgeStatus statusOf(const FileManager& manager, const std::vector<Process>& processes, const Places& places)
{
    const auto program = programOf(manager, places);
    if (!program)
        return BridgeStatus::NoFileManager;
    const auto bridge = bridgeOf(manager, *program);
    if (!bridge)
        return BridgeStatus::NotInstalled;
    BridgeStatus status = BridgeStatus::NotRunning;
    for (const Process& process : processes) {
        if (isOf(process, manager, *program))
            status = std::max(status, statusOf(process, manager, *bridge));
    }
    return status;
}

} // namespace

bool needsRestart(BridgeStatus status)
{
    return status == BridgeStatus::NotLoaded || status == BridgeStatus::OlderLoaded;
}

BridgeStatuses bridgeStatuses(const Places& places)
{
    const std::vector<Process> processes = processesOfUser(places);
    BridgeStatuses statuses{};
    std::ranges::transform(fileManagers, statuses.begin(),
                           [&](const FileManager& manager) { return statusOf(manager, processes, places); });
    return statuses;
}

} // namespace MenuExtension
