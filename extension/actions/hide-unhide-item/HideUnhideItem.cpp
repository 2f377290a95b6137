#include "HiddenFolder.h"
#include "HiddenList.h"
#include "extension/actions/support/Action.h"
#include "extension/actions/support/FolderLock.h"
#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"
#include "platform/linux/system/ParentFolder.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <map>
#include <utility>

namespace MenuExtension {

using NS::LocalizedString;
using NS::stringWithFormat;

using LinuxDesktop::FileDescriptor;

namespace {

/// Names of items by the path of the folder that they lie in.
using ItemsByFolder = std::map<std::string, std::vector<std::string>>;

enum class Task { Hide, Unhide };

ItemsByFolder byFolder(const std::vector<std::string>& paths)
{
    ItemsByFolder items;
    for (const std::string& path : paths)
        items[LinuxDesktop::parentFolder(path)].push_back(path.substr(path.rfind('/') + 1));
    return items;
}

bool isHiddenByItsName(const std::string& name)
{
    return name.starts_with('.');
}

FileDescriptor open(const Request& request, const ItemsByFolder::value_type& items)
{
    return openFolderOfItem(request, items.first + '/' + items.second.front(), O_RDONLY);
}

std::string cannotBeChanged(const std::string& folder)
{
    return stringWithFormat(LocalizedString("HideUnhideItem", "What is hidden in %1 cannot be changed: %2."),
                            {Words::name(folder), Words::reason(errno)});
}

bool areAllHidden(const std::vector<std::string>& items, const std::string& text)
{
    const auto listed = HiddenList::namesIn(text);
    return std::ranges::all_of(
        items, [&](const std::string& name) { return isHiddenByItsName(name) || listed.contains(name); });
}

/// Hides where there is an item that is not hidden.
Task taskFor(const Request& request, const ItemsByFolder& folders)
{
    for (const auto& items : folders) {
        const FileDescriptor folder = open(request, items);
        const auto text = folder ? HiddenFolder(folder).read() : std::nullopt;
        if (text && !areAllHidden(items.second, *text))
            return Task::Hide;
    }
    return Task::Unhide;
}

std::vector<std::string> thoseToHide(const std::vector<std::string>& items, Words::Troubles& troubles)
{
    std::vector<std::string> names;
    for (const std::string& name : items) {
        if (isHiddenByItsName(name))
            continue;
        if (HiddenList::canHold(name))
            names.push_back(name);
        else
            troubles.add(stringWithFormat(
                LocalizedString("HideUnhideItem",
                                "%1 cannot be hidden, since its name has a line end. Rename it and try again."),
                {Words::name(name)}));
    }
    return names;
}

/// Takes the dots from the beginning of a name, where nothing has the name without them. Gives that name, or the one
/// before.
std::string withoutDots(const FileDescriptor& folder, const std::string& name, Words::Troubles& troubles)
{
    std::string bare = name.substr(std::min(name.find_first_not_of('.'), name.size()));
    const std::string shown = Words::name(name);
    if (bare.empty())
        troubles.add(stringWithFormat(
            LocalizedString("HideUnhideItem", "%1 cannot be unhidden: its name has dots alone."), {shown}));
    else if (name == HiddenFolder::listName)
        troubles.add(stringWithFormat(
            LocalizedString("HideUnhideItem", "%1 cannot be unhidden: it is the list of what is hidden."), {shown}));
    else if (::renameat2(folder.get(), name.c_str(), folder.get(), bare.c_str(), RENAME_NOREPLACE) == 0)
        return bare;
    else if (errno == EEXIST)
        troubles.add(stringWithFormat(
            LocalizedString("HideUnhideItem", "%1 cannot be unhidden: there is a %2 already. Rename one of the two."),
            {shown, Words::name(bare)}));
    else
        troubles.add(stringWithFormat(LocalizedString("HideUnhideItem", "%1 cannot be unhidden: %2."),
                                      {shown, Words::reason(errno)}));
    return name;
}

/// The names that nothing may be hidden by.
std::vector<std::string> thoseToUnhide(const FileDescriptor& folder, const std::vector<std::string>& items,
                                       Words::Troubles& troubles)
{
    std::vector<std::string> names = items;
    for (const std::string& name : items) {
        if (isHiddenByItsName(name))
            names.push_back(withoutDots(folder, name, troubles));
    }
    return names;
}

void change(Task task, const Request& request, const ItemsByFolder::value_type& items, Words::Troubles& troubles)
{
    const auto& [path, names] = items;
    const FileDescriptor folder = open(request, items);
    if (!folder) {
        troubles.add(cannotBeChanged(path));
        return;
    }
    if (!lockFolder(folder)) {
        troubles.add(stringWithFormat(
            LocalizedString(
                "HideUnhideItem",
                "What is hidden in %1 cannot be changed, since another program is changing it. Try again."),
            {Words::name(path)}));
        return;
    }
    const HiddenFolder hidden(folder);
    const auto text = hidden.read();
    if (!text) {
        troubles.add(stringWithFormat(
            LocalizedString("HideUnhideItem",
                            "The list of what is hidden in %1, a file named .hidden, cannot be read: %2."),
            {Words::name(path), Words::reason(errno)}));
        return;
    }
    const std::string changed = task == Task::Hide
                                    ? HiddenList::with(*text, thoseToHide(names, troubles))
                                    : HiddenList::without(*text, thoseToUnhide(folder, names, troubles));
    if (changed != *text && !hidden.replace(changed))
        troubles.add(cannotBeChanged(path));
}

} // namespace

Outcome perform(const Request& request)
{
    const ItemsByFolder folders = byFolder(request.paths);
    const Task task = taskFor(request, folders);
    Words::Troubles troubles;
    for (const auto& items : folders)
        change(task, request, items, troubles);
    return troubles.outcome();
}

} // namespace MenuExtension
