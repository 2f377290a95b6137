#include "platform/linux/chooser/FolderListing.h"

#include "platform/linux/system/FolderStream.h"

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <string_view>
#include <sys/stat.h>

namespace LinuxDesktop {

namespace {

std::optional<struct stat> statusOf(int folder, const char* name, int flags)
{
    struct stat status = {};
    if (::fstatat(folder, name, &status, flags | AT_NO_AUTOMOUNT) != 0)
        return {};
    return status;
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

FolderListing readFolder(const std::string& folder, HiddenFiles hidden, const std::string& revealed)
{
    FolderListing listing;
    const FolderStream stream = openFolder(folder);
    if (!stream) {
        listing.error = errno;
        return listing;
    }
    const int descriptor = ::dirfd(stream.get());
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
        if (name.starts_with('.') && hidden == HiddenFiles::Left && name != revealed)
            continue;
        listing.entries.push_back(entryFor(descriptor, *item));
    }
}

} // namespace LinuxDesktop
