#include "extension/actions/duplicates/Removal.h"

#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"
#include "platform/linux/system/FileDescriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/magic.h>
#include <memory>
#include <sys/file.h>
#include <sys/vfs.h>
#include <unistd.h>
#include <utility>

namespace MenuExtension::Duplicates {

using LinuxDesktop::FileDescriptor;
using NS::LocalizedString;

namespace {

constexpr std::size_t blockSize = std::size_t{256} << 10U;

/// As many bytes as there are, up to a whole block; negative, with errno, where they cannot be read.
ssize_t readBlock(int descriptor, char* block, off_t offset)
{
    std::size_t filled = 0;
    while (filled < blockSize) {
        const ssize_t count =
            ::pread(descriptor, block + filled, blockSize - filled, offset + static_cast<off_t>(filled));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return -1;
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
    }
    return static_cast<ssize_t>(filled);
}

struct Opened {
    FileDescriptor file;
    /// Where there is none.
    std::string why = {};
    bool isMissing = false;
};

/// The file that was found, open for reading and unchanged; else why not.
Opened openUnchanged(const Item& item)
{
    // What is a pipe by now would keep whoever opens it.
    FileDescriptor file(::open(item.path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!file && errno == ENOENT)
        return {.file = {}, .why = LocalizedString("Duplicates", "is not there any more"), .isMissing = true};
    if (!file || ::fstat(file.get(), &status) != 0)
        return {.file = {}, .why = Words::cannotBeRead(errno)};
    if (!S_ISREG(status.st_mode) || FileState::of(status) != item.state)
        return {.file = {}, .why = LocalizedString("Duplicates", "has changed since it was found")};
    return {.file = std::move(file)};
}

/// Whether the path leads to the file still, whatever the file holds by now.
bool isAt(const std::string& path, const FileState& state)
{
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 && FileState::of(status) == state;
}

/// Whether the file system keeps the time of a file's content as that of its last change, which a copy may share.
bool hasNoTimeOfChange(const FileDescriptor& file)
{
    struct statfs system = {};
    return ::fstatfs(file.get(), &system) == 0 &&
           (system.f_type == MSDOS_SUPER_MAGIC || system.f_type == EXFAT_SUPER_MAGIC);
}

/// Whether two file systems may show one file, as one that is laid over the other does: then neither has the number
/// of the other, but both changed in the same moment, which a copy did not.
bool mayBeOneFile(const FileDescriptor& one, const FileDescriptor& other)
{
    if (hasNoTimeOfChange(one) && hasNoTimeOfChange(other))
        return false;
    struct stat first = {};
    struct stat second = {};
    return ::fstat(one.get(), &first) != 0 || ::fstat(other.get(), &second) != 0 ||
           (first.st_dev != second.st_dev && first.st_ctim.tv_sec == second.st_ctim.tv_sec &&
            first.st_ctim.tv_nsec == second.st_ctim.tv_nsec);
}

/// Locks a file as long as it is open; false where another program's lock does not allow it. Where the file system
/// has no locks nobody has one.
bool lock(const FileDescriptor& file, int operation)
{
    return ::flock(file.get(), operation | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

/// The items of a group of which some are chosen.
class GroupRemoval {
public:
    GroupRemoval(const Groups& groups, GroupNumber group, const RemovalMeans& means, const RemovalReport& report,
                 const std::stop_token& stop)
        : m_groups(groups), m_means(means), m_report(report), m_stop(stop)
    {
        for (const ItemNumber number : groups.itemsOf(group)) {
            if (!groups.isChosen(number))
                m_staying.push_back(number);
        }
    }

    /// Why an item stays; nothing where it has gone.
    std::optional<std::string> remove(ItemNumber number)
    {
        const Item going = m_groups.item(number);
        const Opened opened = open(number, going);
        if (!opened.file)
            return opened.why;
        // Two such windows may each be about to remove what the other one keeps.
        if (!lock(opened.file, LOCK_EX))
            return LocalizedString("Duplicates", "is in use by another program");
        std::string why = LocalizedString("Duplicates", "is the last copy that is left");
        for (const ItemNumber otherNumber : m_staying) {
            const Item staying = m_groups.item(otherNumber);
            // One file under two names is one copy.
            if (staying.state.isSameFile(going.state))
                continue;
            const Opened other = open(otherNumber, staying);
            if (!other.file)
                continue;
            if (!lock(other.file, LOCK_SH)) {
                why = LocalizedString("Duplicates", "has a copy that another program is using");
                continue;
            }
            if (mayBeOneFile(opened.file, other.file)) {
                why = LocalizedString("Duplicates", "may be the same file as its copy, in two places");
                continue;
            }
            const auto objection = m_means.check({going, opened.file.get()}, {staying, other.file.get()}, m_stop);
            if (m_stop.stop_requested())
                return LocalizedString("Duplicates", "was not reached");
            if (objection)
                why = *objection;
            // Comparing may have taken long.
            else if (isAt(staying.path, staying.state) && isAt(going.path, going.state))
                return m_means.trash(going.path);
        }
        return why;
    }

private:
    [[nodiscard]] Opened open(ItemNumber number, const Item& item) const
    {
        Opened opened = openUnchanged(item);
        if (opened.isMissing)
            m_report.missing(number);
        return opened;
    }

    const Groups& m_groups;
    const RemovalMeans& m_means;
    const RemovalReport& m_report;
    const std::stop_token& m_stop;
    std::vector<ItemNumber> m_staying;
};

} // namespace

std::optional<std::string> haveEqualBytes(const OpenedItem& going, const OpenedItem& staying,
                                          const std::stop_token& stop)
{
    const auto block = std::make_unique<std::array<char, blockSize>>();
    const auto otherBlock = std::make_unique<std::array<char, blockSize>>();
    for (off_t offset = 0; !stop.stop_requested(); offset += static_cast<off_t>(blockSize)) {
        const ssize_t count = readBlock(going.descriptor, block->data(), offset);
        if (count < 0)
            return Words::cannotBeRead(errno);
        const ssize_t otherCount = readBlock(staying.descriptor, otherBlock->data(), offset);
        if (otherCount < 0)
            return NS::stringWithFormat(LocalizedString("Duplicates", "cannot be compared with its copy: %1"),
                                        {Words::reason(errno)});
        if (count != otherCount ||
            std::memcmp(block->data(), otherBlock->data(), static_cast<std::size_t>(count)) != 0)
            return LocalizedString("Duplicates", "is not the same as its copy");
        if (count == 0)
            return std::nullopt;
    }
    return LocalizedString("Duplicates", "was not compared to its end");
}

void removeChosen(const Groups& groups, const RemovalMeans& means, const RemovalReport& report,
                  const std::stop_token& stop)
{
    for (const GroupNumber group : groups.bySaving()) {
        std::optional<GroupRemoval> removal;
        for (const ItemNumber number : groups.itemsOf(group)) {
            if (stop.stop_requested())
                return;
            if (!groups.isChosen(number))
                continue;
            if (!removal)
                removal.emplace(groups, group, means, report, stop);
            const auto why = removal->remove(number);
            if (!why)
                report.removed(number);
            else if (!stop.stop_requested())
                report.kept(number, *why);
        }
    }
}

} // namespace MenuExtension::Duplicates
