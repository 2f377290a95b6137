#include "extension/actions/transfer/Survey.h"

#include "extension/actions/transfer/FolderEntries.h"
#include "extension/actions/transfer/Staging.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <limits>
#include <linux/magic.h>
#include <string_view>
#include <sys/statvfs.h>
#include <sys/utsname.h>
#include <unistd.h>
#include <utility>

namespace MenuExtension::Transfers {

using LinuxDesktop::FileDescriptor;

namespace {

// Those that the system's headers do not name.
constexpr long magicBcachefs = 0xca451a4e;
constexpr long magicExfat = 0x2011bab0;
constexpr long magicJfs = 0x3153464a;
constexpr long magicNtfs = 0x7366746e;

/// Those whose flush reaches the disk, which are the ones that this machine writes itself.
constexpr std::array local{long{EXT4_SUPER_MAGIC},
                           long{XFS_SUPER_MAGIC},
                           long{BTRFS_SUPER_MAGIC},
                           long{F2FS_SUPER_MAGIC},
                           long{TMPFS_MAGIC},
                           long{RAMFS_MAGIC},
                           long{MSDOS_SUPER_MAGIC},
                           long{NILFS_SUPER_MAGIC},
                           long{REISERFS_SUPER_MAGIC},
                           magicBcachefs,
                           magicExfat,
                           magicJfs,
                           magicNtfs};
constexpr std::array sharing{long{BTRFS_SUPER_MAGIC}, long{XFS_SUPER_MAGIC}, magicBcachefs};

template<std::size_t count>
bool isOneOf(const std::array<long, count>& magics, long magic)
{
    return std::ranges::find(magics, magic) != magics.end();
}

/// Since Linux 5.8.
bool flushTellsErrors()
{
    static const bool tells = [] {
        struct utsname system = {};
        if (::uname(&system) != 0)
            return false;
        char* rest = nullptr;
        const long major = std::strtol(static_cast<const char*>(system.release), &rest, 10);
        const long minor = *rest == '.' ? std::strtol(rest + 1, nullptr, 10) : 0;
        return major > 5 || (major == 5 && minor >= 8);
    }();
    return tells;
}

} // namespace

std::vector<Identity> foldersAbove(SystemCalls& calls, int folder)
{
    std::vector<Identity> above;
    struct stat status = {};
    if (calls.status(folder, "", status) != 0)
        return above;
    above.push_back(identityOf(status));
    FileDescriptor reached;
    for (int at = folder;;) {
        FileDescriptor next = calls.open(at, "..", O_PATH | O_DIRECTORY);
        if (!next || calls.status(next.get(), "", status) != 0 || identityOf(status) == above.back())
            return above;
        above.push_back(identityOf(status));
        reached = std::move(next);
        at = reached.get();
    }
}

bool isAnothers(const struct stat& item, const struct stat& folder)
{
    const uid_t user = ::geteuid();
    return (folder.st_mode & S_ISVTX) != 0 && user != 0 && folder.st_uid != user && item.st_uid != user;
}

std::optional<Target> Target::open(SystemCalls& calls, const std::string& path)
{
    Target target;
    // A person may choose a link.
    FileDescriptor opened(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    target.m_folder = shareFolder(calls, std::move(opened), path);
    if (!target.m_folder || calls.fileSystem(target.m_folder->get(), target.m_fileSystem) != 0)
        return std::nullopt;
    if ((static_cast<unsigned long>(target.m_fileSystem.f_flags) & ST_RDONLY) != 0) {
        errno = EROFS;
        return std::nullopt;
    }
    if (::faccessat(target.m_folder->get(), ".", W_OK | X_OK, AT_EACCESS) != 0)
        return std::nullopt;
    target.m_above = foldersAbove(calls, target.m_folder->get());
    return target;
}

std::size_t Target::longestName() const
{
    constexpr std::size_t usual = 255;
    const auto longest = static_cast<std::size_t>(m_fileSystem.f_namelen);
    // Some count characters, of which each may have several bytes.
    return m_fileSystem.f_type == MSDOS_SUPER_MAGIC || longest == 0 ? usual : longest;
}

std::uint64_t Target::largestFile() const
{
    return m_fileSystem.f_type == MSDOS_SUPER_MAGIC ? std::numeric_limits<std::uint32_t>::max()
                                                    : std::numeric_limits<std::uint64_t>::max();
}

bool Target::hasLinks() const
{
    return m_fileSystem.f_type != MSDOS_SUPER_MAGIC && m_fileSystem.f_type != magicExfat;
}

std::uint64_t Target::roomFor(std::uint64_t size) const
{
    const auto block = static_cast<std::uint64_t>(std::max<long>(m_fileSystem.f_bsize, 1));
    return (size + block - 1) / block * block;
}

bool Target::hasRoomFor(std::uint64_t bytes, std::uint64_t files) const
{
    // Some have no bound, or do not tell it.
    const bool fits =
        m_fileSystem.f_blocks == 0 || bytes / static_cast<std::uint64_t>(std::max<long>(m_fileSystem.f_bsize, 1)) <=
                                          (::geteuid() == 0 ? m_fileSystem.f_bfree : m_fileSystem.f_bavail);
    return fits && (m_fileSystem.f_files == 0 || files <= m_fileSystem.f_ffree);
}

bool Target::sharesBytes(SystemCalls& calls, int folder, dev_t device) const
{
    if (device == m_folder->identity.device)
        return isOneOf(sharing, m_fileSystem.f_type);
    // A subvolume has a device of its own, but half of its number is the whole file system's.
    struct statfs other = {};
    return m_fileSystem.f_type == BTRFS_SUPER_MAGIC && calls.fileSystem(folder, other) == 0 &&
           other.f_type == BTRFS_SUPER_MAGIC && other.f_fsid.__val[0] == m_fileSystem.f_fsid.__val[0];
}

bool Target::canBeFlushedAsAWhole() const
{
    return flushTellsErrors() && isOneOf(local, m_fileSystem.f_type);
}

bool Target::liesIn(const Identity& folder) const
{
    return std::ranges::find(m_above, folder) != m_above.end();
}

bool Survey::look(const Folder& folder, const std::string& name, bool takesRoom)
{
    m_takesRoom = takesRoom;
    m_path = folder.path == "/" ? std::string() : folder.path;
    m_isPossible = true;
    lookAt(folder.get(), {}, name.c_str());
    return m_isPossible;
}

void Survey::lookAt(int folder, const struct stat& folderStatus, const char* name)
{
    struct stat status = {};
    if (m_calls.status(folder, name, status) != 0)
        return refuse(Problem::Kind::SourceUnusable, name, errno);
    if (S_ISDIR(status.st_mode) && m_depth > 0 && isStagingName(name))
        return;
    ++m_files;
    if (std::string_view(name).size() > m_target.longestName())
        return refuse(Problem::Kind::NameTooLong, name);
    if (m_isMove && isAnothers(status, folderStatus))
        return refuse(Problem::Kind::CannotLeave, name, EPERM);
    if (S_ISDIR(status.st_mode)) {
        lookAtFolder(folder, name, status);
        return;
    }
    ++m_progress.totalFiles;
    if (S_ISBLK(status.st_mode) || S_ISCHR(status.st_mode))
        return refuse(Problem::Kind::IsDevice, name);
    if (S_ISREG(status.st_mode))
        lookAtFile(folder, name, status);
}

void Survey::lookAtFile(int folder, const char* name, const struct stat& status)
{
    // Of the user's own files it is known without a call.
    const bool isReadable = (status.st_uid == m_user && (status.st_mode & S_IRUSR) != 0) ||
                            ::faccessat(folder, name, R_OK, AT_EACCESS) == 0;
    if (!isReadable)
        return refuse(Problem::Kind::SourceUnusable, name, errno);
    const auto size = static_cast<std::uint64_t>(status.st_size);
    if (size > m_target.largestFile())
        return refuse(Problem::Kind::TooLarge, name);
    m_progress.totalBytes += size;
    constexpr std::uint64_t blockOfStatus = 512;
    if (isKnown(status))
        --m_files;
    else if (m_takesRoom && !sharesBytes(folder, status.st_dev))
        m_room += m_target.roomFor(std::min(size, static_cast<std::uint64_t>(status.st_blocks) * blockOfStatus));
}

/// Whether the file is another name of one whose room is counted.
bool Survey::isKnown(const struct stat& file)
{
    if (file.st_nlink < 2 || !m_takesRoom || !m_target.hasLinks())
        return false;
    const std::pair identity{file.st_dev, file.st_ino};
    return m_several.size() < mostSeveral ? !m_several.insert(identity).second : m_several.contains(identity);
}

bool Survey::sharesBytes(int folder, dev_t device)
{
    if (std::exchange(m_device, device) != device)
        m_sharesBytes = m_target.sharesBytes(m_calls, folder, device);
    return m_sharesBytes;
}

void Survey::lookAtFolder(int folder, const char* name, const struct stat& status)
{
    const FileDescriptor opened = m_calls.open(folder, name, O_RDONLY | O_DIRECTORY);
    if (!opened)
        return refuse(Problem::Kind::SourceUnusable, name, errno);
    if (m_takesRoom && !sharesBytes(opened.get(), status.st_dev))
        m_room += m_target.roomFor(1);
    const std::size_t length = m_path.size();
    m_path.append("/").append(name);
    ++m_depth;
    FolderEntries entries(m_calls, opened);
    bool isEmpty = true;
    while (const char* entry = entries.next()) {
        if (m_progress.cancelled)
            break;
        isEmpty = false;
        lookAt(opened.get(), status, entry);
    }
    if (entries.error() != 0)
        refuse(Problem::Kind::SourceUnusable, "", entries.error());
    if (m_isMove && !isEmpty && ::faccessat(opened.get(), ".", W_OK | X_OK, AT_EACCESS) != 0)
        refuse(Problem::Kind::CannotLeave, "", errno);
    --m_depth;
    m_path.resize(length);
}

/// What is wrong within a folder does not keep the rest of it; but nothing is moved by halves that is known before.
void Survey::refuse(Problem::Kind kind, const char* name, int error)
{
    if (m_depth == 0 || kind == Problem::Kind::CannotLeave)
        m_isPossible = false;
    m_problems.add({kind, *name == '\0' ? m_path : m_path + '/' + name, error});
}

} // namespace MenuExtension::Transfers
