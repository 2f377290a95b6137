#include "extension/actions/find-duplicate-files/SystemPlaces.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <linux/magic.h>
#include <sys/vfs.h>

namespace MenuExtension {

namespace {

constexpr std::array systemFolders{"bin",  "boot", "dev",  "etc",  "lib", "lib32", "lib64", "libx32",
                                   "proc", "run",  "sbin", "snap", "sys", "tmp",   "usr",   "var"};

bool isTrash(std::string_view name)
{
    return name == ".Trash" || name.starts_with(".Trash-");
}

} // namespace

bool isSystemFolder(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    const std::string_view name = std::string_view(path).substr(slash + 1);
    if (slash == 0 && std::ranges::find(systemFolders, name) != systemFolders.end())
        return true;
    return name == "lost+found" || isTrash(name) || path.ends_with("/.local/share/Trash");
}

bool mayBeSystemFolder(std::string_view name)
{
    return name == "lost+found" || name == "Trash" || isTrash(name) ||
           std::ranges::find(systemFolders, name) != systemFolders.end();
}

bool isSystemFile(std::string_view name)
{
    constexpr std::array names{".DS_Store", ".directory", "Thumbs.db", "desktop.ini", "ehthumbs.db"};
    return std::ranges::find(names, name) != names.end() || name.starts_with("._");
}

bool isKernelFileSystem(int folder)
{
    // Not every kernel header has them all.
    constexpr std::uint64_t configurations = 0x62656570;
    constexpr std::uint64_t controls = 0x65735543;
    constexpr std::uint64_t queues = 0x19800202;
    constexpr std::array<std::uint64_t, 19> kinds{AUTOFS_SUPER_MAGIC,
                                                  BINFMTFS_MAGIC,
                                                  BPF_FS_MAGIC,
                                                  CGROUP2_SUPER_MAGIC,
                                                  CGROUP_SUPER_MAGIC,
                                                  DEBUGFS_MAGIC,
                                                  DEVPTS_SUPER_MAGIC,
                                                  EFIVARFS_MAGIC,
                                                  HUGETLBFS_MAGIC,
                                                  NSFS_MAGIC,
                                                  PROC_SUPER_MAGIC,
                                                  PSTOREFS_MAGIC,
                                                  SECURITYFS_MAGIC,
                                                  SELINUX_MAGIC,
                                                  SYSFS_MAGIC,
                                                  TRACEFS_MAGIC,
                                                  configurations,
                                                  controls,
                                                  queues};
    struct statfs status = {};
    if (::fstatfs(folder, &status) != 0)
        return false;
    const auto kind = static_cast<std::uint64_t>(status.f_type) & UINT32_MAX;
    return std::ranges::find(kinds, kind) != kinds.end();
}

} // namespace MenuExtension
