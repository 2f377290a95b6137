#include "extension/actions/transfer/Transfer.h"
#include "platform/linux/system/ParentFolder.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <string_view>
#include <unistd.h>

namespace MenuExtension::Transfers {

using LinuxDesktop::FileDescriptor;

namespace {

FileDescriptor openFolder(const std::string& path)
{
    return FileDescriptor(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

std::string pathOf(const std::string& folder, const std::string& name)
{
    return (folder == "/" ? "" : folder) + '/' + name;
}

/// Whether two items that are no folders hold the same and were changed at the same time.
bool areTheSame(const Conflict& conflict)
{
    const struct stat& one = conflict.source.status;
    const struct stat& other = conflict.target.status;
    if ((one.st_mode & S_IFMT) != (other.st_mode & S_IFMT) || one.st_size != other.st_size ||
        one.st_mtim.tv_sec != other.st_mtim.tv_sec || one.st_mtim.tv_nsec != other.st_mtim.tv_nsec)
        return false;
    if (!S_ISREG(one.st_mode)) {
        std::error_code error;
        return !S_ISLNK(one.st_mode) || std::filesystem::read_symlink(conflict.source.path, error) ==
                                            std::filesystem::read_symlink(conflict.target.path, error);
    }
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const FileDescriptor first(::open(conflict.source.path.c_str(), flags));
    const FileDescriptor second(::open(conflict.target.path.c_str(), flags));
    std::vector<char> bytes(std::size_t{64} << 10U);
    std::vector<char> others(bytes.size());
    for (off_t at = 0; at < one.st_size;) {
        const ssize_t count = ::pread(first.get(), bytes.data(), bytes.size(), at);
        if (count <= 0 || ::pread(second.get(), others.data(), static_cast<std::size_t>(count), at) != count ||
            std::memcmp(bytes.data(), others.data(), static_cast<std::size_t>(count)) != 0)
            return false;
        at += count;
    }
    return true;
}

/// Nobody is asked: what somebody has made meanwhile is kept, and folders that were moved in part become one again.
class KeepingBoth : public Asked {
public:
    explicit KeepingBoth(SystemCalls& calls) : m_calls(calls) {}

    [[nodiscard]] Decision decide(const Conflict& conflict) override
    {
        if (conflict.canMerge)
            return {Resolution::Merge};
        if (S_ISDIR(conflict.source.status.st_mode) || !areTheSame(conflict))
            return {Resolution::KeepBoth};
        // The original, which never went: it may have attributes that its copy lacks.
        const std::string& copy = conflict.source.path;
        if (m_calls.remove(AT_FDCWD, copy.c_str(), 0) != 0)
            m_problems.add({Problem::Kind::NotUndone, copy, errno});
        return {Resolution::Skip};
    }
    [[nodiscard]] bool goesOnWithout(const Problems& problems) override
    {
        m_problems = problems;
        return true;
    }
    /// Which the result does not tell of.
    [[nodiscard]] const Problems& problems() const { return m_problems; }

private:
    SystemCalls& m_calls;
    Problems m_problems;
};

/// So many take little memory at once.
constexpr std::size_t mostMovedBackAtOnce = 10'000;

std::optional<Identity> identityAt(SystemCalls& calls, const std::string& folder, const std::string& name)
{
    const FileDescriptor opened = openFolder(folder);
    struct stat status = {};
    if (!opened || calls.status(opened.get(), name.c_str(), status) != 0)
        return std::nullopt;
    return identityOf(status);
}

/// A folder that its owner cannot write to cannot go to another folder. It keeps that right in the trash: it could
/// not come back from there either.
std::optional<std::string> trash(SystemCalls& calls, const std::string& path, const MoveToTrash& moveToTrash)
{
    struct stat status = {};
    const bool isChanged = calls.status(AT_FDCWD, path.c_str(), status) == 0 && S_ISDIR(status.st_mode) &&
                           (status.st_mode & S_IWUSR) == 0 &&
                           calls.setMode(AT_FDCWD, path.c_str(), (status.st_mode & 07777U) | S_IWUSR) == 0;
    auto trouble = moveToTrash(path);
    if (trouble && isChanged)
        static_cast<void>(calls.setMode(AT_FDCWD, path.c_str(), status.st_mode & 07777U));
    return trouble;
}

} // namespace

/// What was replaced comes out first, to a name beside its own: if this is as far as it comes it is there.
std::vector<Transfer::Returning> Transfer::bringOutReplaced(Problems& problems)
{
    std::vector<Returning> returning;
    for (const auto& step : m_journal) {
        const auto* replaced = std::get_if<Replaced>(&step);
        if (!replaced)
            continue;
        Returning item{.replaced = replaced, .spare = {}};
        const FileDescriptor folder = openFolder(*replaced->folder);
        const Place kept{m_stagings[replaced->staging].get(), replaced->keptName};
        if (folder)
            item.spare = placeBeside(m_calls, kept, {folder.get(), replaced->name}, replaced->isFolder,
                                     m_target->longestName());
        if (item.spare.empty()) {
            problems.add({Problem::Kind::NotUndone, pathOf(*replaced->folder, replaced->name), errno});
            // Its folder has gone, say. It is wanted all the same.
            static_cast<void>(placeBeside(m_calls, kept, {m_stagings[replaced->staging].parent(), replaced->name},
                                          replaced->isFolder, m_target->longestName()));
        }
        returning.push_back(std::move(item));
    }
    return returning;
}

/// Where the item is by now; empty where it cannot be found, or has to stay. One that was replaced by a later one is
/// beside it, and no longer `returning`.
std::string Transfer::placeOf(const Placed& placed, std::vector<Returning>& returning) const
{
    const auto isBeside = [&](const Returning& item) {
        return !item.spare.empty() && placed.identity != Identity() && item.replaced->identity == placed.identity &&
               *item.replaced->folder == *placed.targetFolder && item.replaced->name == placed.targetName;
    };
    if (const auto beside = std::ranges::find_if(returning, isBeside); beside != returning.end()) {
        std::string path = pathOf(*placed.targetFolder, beside->spare);
        returning.erase(beside);
        return path;
    }
    const auto isStuck = [&](const Returning& item) {
        return item.spare.empty() && *item.replaced->folder == *placed.targetFolder &&
               item.replaced->name == placed.targetName;
    };
    const auto identity = identityAt(m_calls, *placed.targetFolder, placed.targetName);
    const bool isThere = identity && (placed.identity == Identity() || *identity == placed.identity);
    if (!isThere || std::ranges::any_of(returning, isStuck))
        return {};
    return pathOf(*placed.targetFolder, placed.targetName);
}

/// Gives a folder that was made anew, and has all its items by now, what it had beside them.
bool Transfer::restore(const Emptied& emptied)
{
    const FileDescriptor folder = m_calls.open(AT_FDCWD, emptied.path.c_str(), O_RDONLY | O_DIRECTORY);
    struct stat made = {};
    if (!folder || m_calls.status(folder.get(), "", made) != 0 ||
        !m_attributes.give(*emptied.status, emptied.extended, folder.get(), made))
        return false;
    errno = ENOSPC;
    return !m_attributes.hadNoRoom();
}

/// Moves items back to where they were; of those that it was told to leave it is said that they are not there.
void Transfer::moveBack(MovesByFolder& moves, Result& result)
{
    for (const auto& [folder, order] : moves) {
        // They are counted anew, with what is in them.
        m_progress.totalFiles -= order.items.size();
        KeepingBoth asked(m_calls);
        Transfer back(
            m_calls, m_record, [](const std::string& item) { return openFolder(LinuxDesktop::parentFolder(item)); },
            m_progress, asked);
        const Result moved = back.run(order);
        result.done += moved.done;
        for (const Problem& problem : moved.problems.kept())
            result.problems.add(problem);
        // What is wrong within a folder may be met again.
        for (const Problem& problem : asked.problems().kept()) {
            if (std::ranges::find(moved.problems.kept(), problem.path, &Problem::path) == moved.problems.kept().end())
                result.problems.add(problem);
        }
        struct stat status = {};
        for (const Order::Item& item : order.items) {
            if (moved.isCancelled && m_calls.status(AT_FDCWD, item.path.c_str(), status) == 0)
                result.problems.add({Problem::Kind::NotUndone, item.path, ECANCELED});
        }
    }
    moves.clear();
}

Result Transfer::undo(const MoveToTrash& moveToTrash)
{
    Result result;
    MovesByFolder moves;
    std::size_t gathered = 0;
    std::vector<const Emptied*> made;
    m_progress.start(
        std::ranges::count_if(m_journal, [](const auto& step) { return std::holds_alternative<Placed>(step); }));
    std::vector<Returning> returning = bringOutReplaced(result.problems);
    for (std::size_t left = m_journal.size(); left > 0; --left) {
        const auto& step = m_journal[left - 1];
        if (const auto* emptied = std::get_if<Emptied>(&step)) {
            // Those above come first, since they were emptied last.
            if (::mkdir(emptied->path.c_str(), (emptied->status->st_mode & 0777U) | S_IRWXU) == 0)
                made.push_back(emptied);
            else if (errno != EEXIST)
                result.problems.add({Problem::Kind::NotUndone, emptied->path, errno});
            continue;
        }
        const auto* placed = std::get_if<Placed>(&step);
        if (!placed)
            continue;
        const std::string path = placeOf(*placed, returning);
        if (path.empty()) {
            --m_progress.totalFiles;
            result.problems.add({Problem::Kind::NotUndone, pathOf(*placed->targetFolder, placed->targetName)});
        } else if (placed->isMoved || (m_isMove && placed->isFolder)) {
            Order& order = moves[*placed->sourceFolder];
            order.isMove = true;
            order.target = *placed->sourceFolder;
            order.items.push_back({path, placed->sourceName});
            if (++gathered % mostMovedBackAtOnce == 0)
                moveBack(moves, result);
        } else if (m_progress.cancelled) {
            result.problems.add({Problem::Kind::NotUndone, path, ECANCELED});
        } else if (auto words = trash(m_calls, path, moveToTrash)) {
            result.problems.add({Problem::Kind::NotTrashed, path, 0, *std::move(words)});
        } else {
            ++m_progress.files;
            ++result.done;
        }
    }
    moveBack(moves, result);
    // Those within others come first, since others may be closed afterwards.
    std::ranges::reverse(made);
    for (const Emptied* emptied : made) {
        if (!restore(*emptied))
            result.problems.add({Problem::Kind::NotUndone, emptied->path, errno});
    }
    for (const Returning& item : returning)
        putInPlace(item, result.problems);
    m_journal.clear();
    result.isCancelled = m_progress.cancelled;
    return result;
}

/// What was replaced gets its name. Where that is taken by now it stays beside what has it.
void Transfer::putInPlace(const Returning& item, Problems& problems) const
{
    const Replaced& replaced = *item.replaced;
    const FileDescriptor folder = openFolder(*replaced.folder);
    if (item.spare.empty() ||
        (folder && placeNew(m_calls, {folder.get(), item.spare}, {folder.get(), replaced.name}, replaced.isFolder)))
        return;
    if (m_progress.cancelled)
        problems.add({Problem::Kind::NotUndone, pathOf(*replaced.folder, item.spare), ECANCELED});
    else if (!folder || errno != EEXIST)
        problems.add({Problem::Kind::NotUndone, pathOf(*replaced.folder, replaced.name), errno});
}

} // namespace MenuExtension::Transfers
