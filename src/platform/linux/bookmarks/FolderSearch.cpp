#include "platform/linux/bookmarks/FolderSearch.h"

#include "platform/linux/bookmarks/NearestFolder.h"
#include "platform/linux/system/ParentFolder.h"

#include <deque>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <unordered_set>
#include <utility>

namespace LinuxDesktop {

namespace {

struct CloseStream {
    void operator()(DIR* stream) const { ::closedir(stream); }
};

std::string childOf(const std::string& folder, const char* name)
{
    return (folder == "/" ? folder : folder + '/') + name;
}

/// Walks the folders of one device breadth-first from the old place, the one above ahead of those below.
class Search {
public:
    Search(const FolderIdentity& wanted, dev_t device, int mostEntries)
        : m_wanted(wanted), m_device(device), m_entriesLeft(mostEntries)
    {}

    std::optional<std::string> from(std::string start)
    {
        m_queue.push_back({std::move(start), true});
        while (!m_queue.empty() && m_entriesLeft > 0) {
            const Place place = std::move(m_queue.front());
            m_queue.pop_front();
            if (place.above && place.path != "/")
                m_queue.push_back({parentFolder(place.path), true});
            if (auto found = lookInto(place.path))
                return found;
        }
        return std::nullopt;
    }

private:
    struct Place {
        std::string path;
        /// Whether the old place is in it, however deep.
        bool above;
    };

    std::optional<std::string> lookInto(const std::string& folder)
    {
        const std::unique_ptr<DIR, CloseStream> stream(::opendir(folder.c_str()));
        struct stat status = {};
        if (!stream || ::fstat(::dirfd(stream.get()), &status) != 0 || status.st_dev != m_device ||
            !m_visited.insert(status.st_ino).second)
            return std::nullopt;
        for (const dirent* entry = nullptr; m_entriesLeft > 0 && (entry = ::readdir(stream.get())); --m_entriesLeft) {
            if (!isFolderOnDevice(::dirfd(stream.get()), *entry, status))
                continue;
            std::string path = childOf(folder, entry->d_name);
            if (status.st_ino == m_wanted.inode && isFolderAt(m_wanted, path))
                return path;
            m_queue.push_back({std::move(path), false});
        }
        return std::nullopt;
    }

    [[nodiscard]] bool isFolderOnDevice(int folder, const dirent& entry, struct stat& status) const
    {
        const std::string_view name = entry.d_name;
        return (entry.d_type == DT_DIR || entry.d_type == DT_UNKNOWN) && name != "." && name != ".." &&
               ::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT) == 0 &&
               S_ISDIR(status.st_mode) && status.st_dev == m_device;
    }

    const FolderIdentity& m_wanted;
    dev_t m_device;
    std::deque<Place> m_queue;
    std::unordered_set<ino_t> m_visited;
    int m_entriesLeft;
};

} // namespace

std::optional<std::string> searchFolderAround(const std::string& oldPath, const FolderIdentity& folder,
                                              int mostEntries)
{
    std::string start = nearestFolderAbove(oldPath);
    const FileDescriptor place = openFolderToIdentify(start);
    const auto identity = place ? FolderIdentity::of(place) : std::nullopt;
    if (!identity || !identity->sameFileSystem(folder))
        return std::nullopt;
    return Search(folder, identity->device, mostEntries).from(std::move(start));
}

} // namespace LinuxDesktop
