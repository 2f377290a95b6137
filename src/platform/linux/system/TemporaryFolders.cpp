#include "platform/linux/system/TemporaryFolders.h"

#include "platform/linux/system/Complaint.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>

namespace LinuxDesktop {

namespace {

constexpr std::string_view rootPrefix = "orvik-menu-mail-";

/// For the caller to find after the complaint.
void complainOf(const std::string& what, const std::string& path)
{
    const int error = errno;
    complain(what, path, error);
    errno = error;
}

/// The folder, open and locked; nothing when it is not the user's own folder or another process has it.
FileDescriptor lockFolder(const std::string& path)
{
    FileDescriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status = {};
    if (!folder || ::fstat(folder.get(), &status) != 0 || status.st_uid != ::geteuid() ||
        ::flock(folder.get(), LOCK_EX | LOCK_NB) != 0)
        return {};
    return folder;
}

/// Whether the locked folder still lies at `path`.
bool isAt(const FileDescriptor& folder, const std::string& path)
{
    struct stat there = {};
    struct stat here = {};
    return ::lstat(path.c_str(), &there) == 0 && ::fstat(folder.get(), &here) == 0 && there.st_dev == here.st_dev &&
           there.st_ino == here.st_ino;
}

void removeTree(const std::string& path)
{
    std::error_code error;
    std::filesystem::remove_all(path, error);
    if (error)
        complain("cannot remove", path, error.value());
}

} // namespace

TemporaryFolders::~TemporaryFolders()
{
    if (m_lock)
        removeTree(m_root);
}

std::string TemporaryFolders::place()
{
    if (const char* folder = std::getenv("XDG_RUNTIME_DIR"); folder && *folder == '/')
        return folder;
    std::error_code error;
    const auto folder = std::filesystem::temp_directory_path(error);
    return error ? "/tmp" : folder.native();
}

std::optional<std::string> TemporaryFolders::make()
{
    const std::lock_guard guard(m_mutex);
    if (!m_lock && !makeRoot()) {
        complainOf("cannot make a folder in", place());
        return std::nullopt;
    }
    std::string folder = m_root + '/' + std::to_string(++m_made);
    if (::mkdir(folder.c_str(), S_IRWXU) != 0) {
        complainOf("cannot make", folder);
        return std::nullopt;
    }
    return folder;
}

bool TemporaryFolders::makeRoot()
{
    // Between making and locking it another process may take the folder for a leftover: then it is made again.
    constexpr int attempts = 10;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        std::string root = place() + '/' + std::string(rootPrefix) + "XXXXXX";
        if (!::mkdtemp(root.data()))
            return false;
        auto lock = lockFolder(root);
        if (lock && isAt(lock, root)) {
            m_root = std::move(root);
            m_lock = std::move(lock);
            return true;
        }
    }
    errno = EBUSY;
    return false;
}

void TemporaryFolders::removeLeftovers()
{
    std::error_code error;
    for (std::filesystem::directory_iterator entry(place(), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string path = entry->path().native();
        if (entry->path().filename().native().starts_with(rootPrefix))
            if (const auto lock = lockFolder(path))
                removeTree(path);
    }
}

} // namespace LinuxDesktop
