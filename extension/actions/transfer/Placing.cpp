#include "extension/actions/transfer/Placing.h"

#include "extension/actions/transfer/KeepBothName.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>

namespace MenuExtension::Transfers {

namespace {

/// A folder with so many of them has a reason.
constexpr int namesTried = 100'000;

bool rename(SystemCalls& calls, const Place& from, const Place& to, unsigned flags)
{
    return calls.rename(from.folder, from.name.c_str(), to.folder, to.name.c_str(), flags) == 0;
}

/// Whether the file system can only rename plainly.
bool isUnknown(int error)
{
    return error == EINVAL || error == ENOSYS || error == ENOTSUP;
}

/// For a file system that cannot do it in one step. A name, or an empty folder, is made first, which fails where
/// something has it.
bool placeNewPlainly(SystemCalls& calls, const Place& item, const Place& target, bool isFolder)
{
    if (isFolder) {
        if (calls.makeFolder(target.folder, target.name.c_str(), S_IRWXU) != 0)
            return false;
        if (rename(calls, item, target, 0))
            return true;
        const int error = errno;
        static_cast<void>(calls.remove(target.folder, target.name.c_str(), AT_REMOVEDIR));
        errno = error;
        return false;
    }
    if (calls.link(item.folder, item.name.c_str(), target.folder, target.name.c_str()) == 0) {
        // Both names are the file's: the worst that can happen is that it keeps them.
        static_cast<void>(calls.remove(item.folder, item.name.c_str(), 0));
        return true;
    }
    if (errno != EPERM && errno != ENOSYS && errno != ENOTSUP && errno != EMLINK)
        return false;
    struct stat status = {};
    if (calls.status(target.folder, target.name.c_str(), status) == 0) {
        errno = EEXIST;
        return false;
    }
    return errno == ENOENT && rename(calls, item, target, 0);
}

/// For a file system that cannot exchange two items: the old one gets a name that people see first, where it is found
/// if this is as far as it comes.
Replacing placeInsteadBySteps(SystemCalls& calls, const Place& item, const Place& target, bool isFolder,
                              const Place& old)
{
    struct stat replaced = {};
    if (calls.status(target.folder, target.name.c_str(), replaced) != 0)
        return Replacing::Failed;
    const bool wasFolder = S_ISDIR(replaced.st_mode);
    constexpr std::size_t longestEverywhere = 143;
    const std::string spare = placeBeside(calls, target, target, wasFolder, longestEverywhere);
    if (spare.empty())
        return Replacing::Failed;
    const Place beside{target.folder, spare};
    if (placeNew(calls, item, target, isFolder)) {
        static_cast<void>(placeNew(calls, beside, old, wasFolder));
        return Replacing::Replaced;
    }
    const int error = errno;
    static_cast<void>(placeNew(calls, beside, target, wasFolder));
    errno = error;
    return Replacing::Failed;
}

} // namespace

bool placeNew(SystemCalls& calls, const Place& item, const Place& target, bool isFolder)
{
    if (rename(calls, item, target, RENAME_NOREPLACE))
        return true;
    return isUnknown(errno) && placeNewPlainly(calls, item, target, isFolder);
}

Replacing placeInstead(SystemCalls& calls, const Place& item, const Place& target, bool isFolder, const Place& old)
{
    if (!rename(calls, item, target, RENAME_EXCHANGE)) {
        if (errno == ENOENT)
            return placeNew(calls, item, target, isFolder) ? Replacing::NothingReplaced : Replacing::Failed;
        return isUnknown(errno) ? placeInsteadBySteps(calls, item, target, isFolder, old) : Replacing::Failed;
    }
    if ((item.folder == old.folder && item.name == old.name) || rename(calls, item, old, 0))
        return Replacing::Replaced;
    const int error = errno;
    static_cast<void>(rename(calls, item, target, RENAME_EXCHANGE));
    errno = error;
    return Replacing::Failed;
}

std::string placeBeside(SystemCalls& calls, const Place& item, const Place& target, bool isFolder,
                        std::size_t longestName)
{
    for (int number = 2; number <= namesTried; ++number) {
        Place place{target.folder, keepBothName(target.name, isFolder, number, longestName)};
        if (placeNew(calls, item, place, isFolder))
            return std::move(place.name);
        if (errno != EEXIST && errno != ENOTEMPTY)
            break;
    }
    return {};
}

} // namespace MenuExtension::Transfers
