#include "extension/actions/find-duplicate-files/FolderWalk.h"

#include "extension/actions/find-duplicate-files/SystemPlaces.h"
#include "extension/actions/transfer/Staging.h"
#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"
#include "platform/linux/system/ParentFolder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace MenuExtension {

using LinuxDesktop::FileDescriptor;
using FolderNumber = FileTree::FolderNumber;

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
/// How many folders in each other are open at once.
constexpr std::size_t longestWay = 200;
constexpr std::size_t mostEntriesAtOnce = 10'000;

bool isSelfOrParent(const char* name)
{
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

/// The names that the file ".hidden" of a folder lists.
std::unordered_set<std::string> hiddenNamesIn(int folder)
{
    constexpr std::size_t longest = std::size_t{1} << 20U;
    const FileDescriptor file(::openat(folder, ".hidden", O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    std::string text(std::min(longest, static_cast<std::size_t>(status.st_size)), '\0');
    const ssize_t count = ::read(file.get(), text.data(), text.size());
    text.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    std::unordered_set<std::string> names;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        names.insert(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return names;
}

} // namespace

void FolderWalk::addFile(const std::string& path, const struct stat& status)
{
    const std::size_t slash = path.rfind('/');
    if (status.st_size > 0 || m_choices.empty)
        m_tree.addFile(m_tree.addPlace(slash == 0 ? "/" : path.substr(0, slash)), path.substr(slash + 1), status);
}

void FolderWalk::addFolder(const std::string& path, FileDescriptor folder)
{
    struct stat status = {};
    if (::fstat(folder.get(), &status) != 0)
        return m_trouble(path, Words::cannotBeRead(errno));
    const auto root = m_tree.addRoot(path, status);
    if (!root)
        return;
    m_way.clear();
    m_way.push_back({*root, status.st_dev, std::move(folder)});
    list(m_way.back());
    while (!m_waiting.empty() && !m_stop.stop_requested()) {
        const FolderNumber next = m_waiting.back();
        m_waiting.pop_back();
        enter(next);
    }
    m_waiting.clear();
}

void FolderWalk::enter(FolderNumber folder)
{
    OpenFolder opened{folder, 0, open(folder)};
    struct stat status = {};
    if (!opened.descriptor || ::fstat(opened.descriptor.get(), &status) != 0)
        return tell(folder, nullptr, errno);
    opened.device = status.st_dev;
    const bool isOtherFileSystem = m_way.back().device != status.st_dev;
    if (isOtherFileSystem && isKernelFileSystem(opened.descriptor.get()))
        return;
    if (m_way.size() >= longestWay)
        return list(opened);
    m_way.push_back(std::move(opened));
    list(m_way.back());
}

/// Opens a folder from the nearest one on the way, name by name, so that no path is too long and no link is on it.
FileDescriptor FolderWalk::open(FolderNumber folder)
{
    std::vector<FolderNumber> names{folder};
    for (auto parent = m_tree.parentOf(folder); parent; parent = m_tree.parentOf(*parent)) {
        const auto isIt = [&](const OpenFolder& open) { return open.number == *parent; };
        const auto found = std::find_if(m_way.rbegin(), m_way.rend(), isIt);
        if (found != m_way.rend()) {
            m_way.erase(found.base(), m_way.end());
            break;
        }
        names.push_back(*parent);
    }
    FileDescriptor reached;
    std::ranges::reverse(names);
    for (const auto& name : names) {
        const int from = reached ? reached.get() : m_way.back().descriptor.get();
        reached = FileDescriptor(::openat(from, m_tree.nameOf(name), folderFlags));
        if (!reached)
            break;
    }
    return reached;
}

void FolderWalk::list(const OpenFolder& folder)
{
    Listing listing;
    if (!m_choices.hidden)
        listing.hidden = hiddenNamesIn(folder.descriptor.get());
    constexpr std::size_t bufferSize = std::size_t{64} << 10U;
    alignas(dirent64) std::array<char, bufferSize> buffer;
    while (!m_stop.stop_requested()) {
        const ssize_t filled = ::getdents64(folder.descriptor.get(), buffer.data(), buffer.size());
        if (filled < 0)
            tell(folder.number, nullptr, errno);
        if (filled <= 0)
            break;
        for (std::size_t at = 0; at < static_cast<std::size_t>(filled);) {
            const auto* entry = static_cast<const dirent64*>(static_cast<const void*>(buffer.data() + at));
            at += entry->d_reclen;
            const char* const name = &entry->d_name[0];
            const bool mayBeOfUse = entry->d_type == DT_REG || entry->d_type == DT_DIR || entry->d_type == DT_UNKNOWN;
            if (!mayBeOfUse || isSelfOrParent(name) || isLeftOut(listing, name))
                continue;
            listing.entries.push_back({entry->d_ino, listing.names.size(), entry->d_type});
            listing.names.append(name, std::strlen(name) + 1);
        }
        if (listing.entries.size() >= mostEntriesAtOnce)
            take(folder, listing);
    }
    take(folder, listing);
}

/// In the order in which the disk has what is asked about them.
void FolderWalk::take(const OpenFolder& folder, Listing& listing)
{
    std::ranges::sort(listing.entries, {}, &Entry::inode);
    for (const Entry& entry : listing.entries) {
        if (m_stop.stop_requested())
            break;
        look(folder, listing.names.c_str() + entry.name);
    }
    listing.entries.clear();
    listing.names.clear();
}

void FolderWalk::look(const OpenFolder& folder, const char* name)
{
    struct stat status = {};
    if (::fstatat(folder.descriptor.get(), name, &status, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT) != 0)
        return tell(folder.number, name, errno);
    if (S_ISDIR(status.st_mode)) {
        if (Transfers::isStagingName(name) ||
            (!m_choices.system && mayBeSystemFolder(name) && isOfSystem(folder.number, name)))
            return;
        if (const auto added = m_tree.addFolder(folder.number, name, status))
            m_waiting.push_back(*added);
    } else if (S_ISREG(status.st_mode) && (status.st_size > 0 || m_choices.empty)) {
        m_tree.addFile(folder.number, name, status);
    }
}

bool FolderWalk::isLeftOut(const Listing& listing, const char* name) const
{
    if (!m_choices.system && isSystemFile(name))
        return true;
    return !m_choices.hidden && (name[0] == '.' || listing.hidden.contains(name));
}

bool FolderWalk::isOfSystem(FolderNumber parent, std::string_view name) const
{
    std::string path = m_tree.pathOf(parent);
    if (!path.ends_with('/'))
        path += '/';
    return isSystemFolder(path.append(name));
}

void FolderWalk::tell(FolderNumber folder, const char* name, int error) const
{
    std::string path = m_tree.pathOf(folder);
    if (name)
        path.append(path.ends_with('/') ? "" : "/").append(name);
    // What has gone since it was listed is nobody's loss, and neither is a folder that was replaced by something
    // else.
    if (error != ENOENT)
        m_trouble(path, Words::cannotBeRead(error));
}

} // namespace MenuExtension
