#include "platform/linux/bookmarks/FolderIdentity.h"

#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>

namespace LinuxDesktop {

namespace {

std::optional<FileTime> birthOf(int folder)
{
    struct statx status = {};
    if (::statx(folder, "", AT_EMPTY_PATH, STATX_BTIME, &status) != 0 || !(status.stx_mask & STATX_BTIME))
        return std::nullopt;
    return FileTime{status.stx_btime.tv_sec, status.stx_btime.tv_nsec};
}

std::optional<FileHandle> handleOf(int folder)
{
    FileHandleBuffer buffer;
    int mount = 0;
    if (::name_to_handle_at(folder, "", buffer.get(), &mount, AT_EMPTY_PATH) != 0)
        return std::nullopt;
    return buffer.handle();
}

std::uint64_t fileSystemOf(int folder)
{
    struct statfs status = {};
    if (::fstatfs(folder, &status) != 0)
        return 0;
    std::uint64_t number = 0;
    static_assert(sizeof(status.f_fsid) == sizeof(number));
    std::memcpy(&number, &status.f_fsid, sizeof(number));
    return number;
}

} // namespace

std::optional<FolderIdentity> FolderIdentity::of(const FileDescriptor& folder)
{
    struct stat status = {};
    if (::fstat(folder.get(), &status) != 0)
        return std::nullopt;
    return FolderIdentity{status.st_dev, status.st_ino, fileSystemOf(folder.get()), birthOf(folder.get()),
                          handleOf(folder.get())};
}

bool FolderIdentity::sameFileSystem(const FolderIdentity& other) const
{
    return fileSystem != 0 ? fileSystem == other.fileSystem : device == other.device;
}

bool FolderIdentity::sameFolder(const FolderIdentity& other) const
{
    if (!sameFileSystem(other) || inode != other.inode)
        return false;
    if (handle && other.handle && handle != other.handle)
        return false;
    return !birth || !other.birth || birth == other.birth;
}

FileDescriptor openFolderToIdentify(const std::string& path)
{
    return FileDescriptor(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

bool isFolderAt(const FolderIdentity& folder, const std::string& path)
{
    const FileDescriptor there = openFolderToIdentify(path);
    if (!there)
        return false;
    const auto identity = FolderIdentity::of(there);
    return identity && folder.sameFolder(*identity);
}

} // namespace LinuxDesktop
