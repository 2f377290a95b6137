#include "platform/linux/chooser/FolderListing.h"

#include "platform/linux/chooser/FilePath.h"
#include "platform/linux/system/FolderStream.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace LinuxDesktop {

namespace {

std::optional<struct stat> statusOf(int folder, const char* name, int flags)
{
    struct stat status = {};
    if (::fstatat(folder, name, &status, flags | AT_NO_AUTOMOUNT) != 0)
        return {};
    return status;
}

std::string linkTarget(int folder, const char* name)
{
    std::array<char, PATH_MAX> target = {};
    const ssize_t length = ::readlinkat(folder, name, target.data(), target.size());
    return length < 0 ? std::string() : std::string(target.data(), static_cast<std::size_t>(length));
}

/// Whether to look at the item is to ask a network share. One inside a share answers if the folder did.
bool asksShare(const std::string& folder, int descriptor, const dirent& item, const std::vector<Mount>& mounts)
{
    std::string path = pathInFolder(folder, item.d_name);
    if (item.d_type == DT_LNK) {
        const std::string target = linkTarget(descriptor, item.d_name);
        path = normalizedPath(target.starts_with('/') ? target : pathInFolder(folder, target));
    }
    const Mount* share = networkShareOf(path, mounts);
    return share && share != networkShareOf(folder, mounts);
}

FileEntry entryByName(const dirent& item)
{
    FileEntry entry;
    entry.name = item.d_name;
    entry.isLink = item.d_type == DT_LNK;
    // What a share is mounted on is a folder, and what a link leads to there most likely.
    entry.kind = item.d_type == DT_REG ? FileEntry::Kind::File : FileEntry::Kind::Folder;
    return entry;
}

FileEntry entryFor(int folder, const dirent& item)
{
    FileEntry entry;
    entry.name = item.d_name;
    entry.isLink = item.d_type == DT_LNK;
    std::optional<struct stat> status;
    // Some file systems do not say in the folder what an item is.
    if (item.d_type == DT_UNKNOWN) {
        status = statusOf(folder, item.d_name, AT_SYMLINK_NOFOLLOW);
        entry.isLink = status && S_ISLNK(status->st_mode);
        if (entry.isLink)
            status.reset();
    }
    if (!status)
        status = statusOf(folder, item.d_name, 0);

    if (status) {
        entry.kind = S_ISDIR(status->st_mode) ? FileEntry::Kind::Folder : FileEntry::Kind::File;
        entry.size = S_ISDIR(status->st_mode) ? 0 : status->st_size;
        entry.modified = status->st_mtime;
    } else if (entry.isLink) {
        entry.kind = FileEntry::Kind::BrokenLink;
    } else {
        // A folder that may be read but not searched gives names alone.
        entry.kind = item.d_type == DT_DIR ? FileEntry::Kind::Folder : FileEntry::Kind::File;
    }
    return entry;
}

} // namespace

FolderListing readFolder(const std::string& folder, HiddenFiles hidden, const std::string& revealed,
                         const std::vector<Mount>& mounts)
{
    FolderListing listing;
    const FolderStream stream = openFolder(folder);
    if (!stream) {
        listing.error = errno;
        return listing;
    }
    const int descriptor = ::dirfd(stream.get());
    const bool anyShare = std::ranges::any_of(mounts, &Mount::isNetwork);
    for (;;) {
        errno = 0;
        const dirent* item = ::readdir(stream.get());
        if (!item) {
            listing.error = errno;
            return listing;
        }
        const std::string_view name = item->d_name;
        if (name == "." || name == "..")
            continue;
        if (name.starts_with('.') && hidden == HiddenFiles::Left && name != revealed) {
            ++listing.hidden;
            continue;
        }
        const bool asks = anyShare && asksShare(folder, descriptor, *item, mounts);
        listing.entries.push_back(asks ? entryByName(*item) : entryFor(descriptor, *item));
    }
}

} // namespace LinuxDesktop
