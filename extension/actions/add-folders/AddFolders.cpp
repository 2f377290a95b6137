#include "extension/actions/support/Action.h"
#include "extension/actions/support/FolderLock.h"
#include "extension/bus/SessionBus.h"
#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"
#include "platform/linux/store/PropertyList.h"
#include "platform/linux/store/Store.h"
#include "settings/Deployment.h"
#include "settings/NotificationNames.h"
#include "settings/Reading.h"
#include "settings/Settings.h"

#include <algorithm>
#include <fcntl.h>
#include <string_view>
#include <unordered_set>

namespace MenuExtension {

using NS::LocalizedString;
using NS::stringWithFormat;

namespace {

std::string_view withoutSlashAtEnd(std::string_view path)
{
    return path.substr(0, std::max<std::size_t>(1, path.find_last_not_of('/') + 1));
}

/// Adds to the list what it lacks. Whether that was anything.
bool add(const std::vector<std::string>& paths, std::vector<std::string>& list)
{
    std::unordered_set<std::string> known;
    for (const std::string& path : list)
        known.emplace(withoutSlashAtEnd(path));
    const std::size_t before = list.size();
    for (const std::string& path : paths) {
        if (known.insert(path).second)
            list.push_back(path);
    }
    return list.size() != before;
}

/// Adds the folders to the stored list and tells the panel. False where that failed.
bool store(const std::vector<std::string>& paths)
{
    LinuxDesktop::Store store;
    const auto suite = store.open(Deployment::suiteName);
    if (!suite || !store.folder())
        return false;
    const auto& setting = Settings::arrCustomFoldersUrls;
    {
        // Two that add at the same time would each lose what the other adds.
        LinuxDesktop::FileOperations files;
        if (makeFolders(files, *store.folder()))
            return false;
        const LinuxDesktop::FileDescriptor folder = files.open(*store.folder(), O_RDONLY | O_DIRECTORY);
        if (!folder || !lockFolder(folder))
            return false;
        auto list = readSound(setting, suite->contents().value_or(NS::Value::Dictionary()));
        if (!add(paths, list))
            return true;
        suite->setValue_forKeyPath(NS::Value::Array(list.begin(), list.end()), setting.key);
        if (!suite->synchronize())
            return false;
    }
    if (const Bus bus = openSessionBus())
        post(*bus, NotificationName::ReloadCustomFolders);
    return true;
}

} // namespace

Outcome perform(const Request& request)
{
    Words::Troubles troubles;
    std::vector<std::string> paths;
    for (const std::string& path : request.paths) {
        if (LinuxDesktop::PropertyList::unstorableReason(NS::Value(path)))
            troubles.add(stringWithFormat(
                LocalizedString("AddFolders",
                                "%1 cannot be added: its name or that of a folder above it has characters "
                                "that are no text. Rename it and try again."),
                {Words::name(path)}));
        else
            paths.push_back(path);
    }
    if (!paths.empty() && !store(paths))
        troubles.add(LocalizedString(
            "AddFolders",
            "The folders cannot be added: the settings of Orvik Menu cannot be written. Is the disk full?"));
    return troubles.outcome();
}

} // namespace MenuExtension
