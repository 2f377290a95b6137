#include "extension/companion/StatusReport.h"

#include "extension/bus/SessionBus.h"
#include "settings/Deployment.h"

#include <cstdio>
#include <cstdlib>

namespace MenuExtension {

namespace {

/// A line, and what to do, which may be nothing.
struct Entry {
    std::string facts;
    std::string remedy{};
};

Entry entryFor(CompanionStatus companion)
{
    switch (companion) {
    case CompanionStatus::Running:
        return {"running"};
    case CompanionStatus::NotRunning:
        return {"not running", "Switch it on: orvik-menu-extensions"};
    case CompanionStatus::NoSessionBus:
        break;
    }
    return {"no session bus", "Without one no file manager shows the menu. Ask again in a terminal of the desktop."};
}

std::string restart(const FileManager& manager)
{
    const std::vector<std::string> command = quitCommand(manager);
    const std::string name(manager.name);
    if (command.empty())
        return "Close " + name + " and open it again.";
    std::string advice = "Restart " + name + ':';
    for (const std::string& word : command)
        advice += ' ' + word;
    return advice;
}

Entry entryFor(const FileManager& manager, BridgeStatus status)
{
    const std::string installed = "installed, bridge installed, ";
    switch (status) {
    case BridgeStatus::NoFileManager:
        return {"not installed"};
    case BridgeStatus::NotInstalled:
        return {"installed, bridge missing", "Install the package " + packageFor(manager) + '.'};
    case BridgeStatus::NotRunning:
        return {installed + "not running"};
    case BridgeStatus::LoadedLater:
        return {installed + "loaded when needed"};
    case BridgeStatus::Loaded:
        return {installed + "loaded"};
    case BridgeStatus::NotLoaded:
        return {installed + "not loaded", restart(manager)};
    case BridgeStatus::OlderLoaded:
        return {installed + "older one loaded", restart(manager)};
    case BridgeStatus::NotKnown:
        break;
    }
    return {installed + "not known whether loaded", restart(manager)};
}

std::string lines(std::string_view what, const Entry& entry)
{
    std::string text = std::string(what) + ": " + entry.facts + '\n';
    return entry.remedy.empty() ? text : text + "  " + entry.remedy + '\n';
}

CompanionStatus companionStatus()
{
    const Bus bus = openSessionBus();
    if (!bus)
        return CompanionStatus::NoSessionBus;
    const std::string name(Deployment::extensionIdentifier);
    return isOnBus(*bus, name.c_str()) ? CompanionStatus::Running : CompanionStatus::NotRunning;
}

} // namespace

std::string statusReport(CompanionStatus companion, const BridgeStatuses& bridges)
{
    std::string report = lines("companion", entryFor(companion));
    for (std::size_t index = 0; index < fileManagers.size(); ++index)
        report += lines(fileManagers.at(index).program, entryFor(fileManagers.at(index), bridges.at(index)));
    return report;
}

int tellStatus()
{
    std::fputs(statusReport(companionStatus(), bridgeStatuses(usualPlaces())).c_str(), stdout);
    return EXIT_SUCCESS;
}

} // namespace MenuExtension
