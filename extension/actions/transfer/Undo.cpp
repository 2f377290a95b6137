#include "extension/actions/transfer/Transfer.h"
#include "platform/linux/system/ParentFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <map>
#include <string_view>

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

/// Nobody is asked: what somebody has made meanwhile is kept, and folders that were moved in part become one again.
class KeepingBoth : public Asked {
public:
    [[nodiscard]] Decision decide(const Conflict& conflict) override
    {
        if (conflict.canMerge)
            return {Resolution::Merge};
        const struct stat& one = conflict.source.status;
        const struct stat& other = conflict.target.status;
        const bool isSame = !S_ISDIR(one.st_mode) && (one.st_mode & S_IFMT) == (other.st_mode & S_IFMT) && one.st_size == other.st_size &&
                            one.st_mtim.tv_sec == other.st_mtim.tv_sec && one.st_mtim.tv_nsec == other.st_mtim.tv_nsec;
        return {isSame ? Resolution::Replace : Resolution::KeepBoth};
    }
    [[nodiscard]] bool goesOnWithout(const Problems&) override { return true; }
};

/// Items that go back to one folder.
using MovesByFolder = std::map<std::string_view, Order>;

bool isThere(SystemCalls& calls, const Placed& placed)
{
    const FileDescriptor folder = openFolder(*placed.targetFolder);
    struct stat status = {};
    return folder && calls.status(folder.get(), placed.targetName.c_str(), status) == 0 &&
           (placed.identity == Identity() || identityOf(status) == placed.identity);
}

} // namespace

Result Transfer::undo(const MoveToTrash& moveToTrash)
{
    Result result;
    MovesByFolder moves;
    m_progress.cancelled = false;
    for (auto step = m_journal.rbegin(); step != m_journal.rend(); ++step) {
        if (const auto* emptied = std::get_if<Emptied>(&*step)) {
            // Those above come first, since they were emptied last.
            if (::mkdir(emptied->path.c_str(), emptied->mode) != 0 && errno != EEXIST)
                result.problems.add({Problem::Kind::NotUndone, emptied->path, errno});
            continue;
        }
        const auto* placed = std::get_if<Placed>(&*step);
        if (!placed)
            continue;
        const std::string path = pathOf(*placed->targetFolder, placed->targetName);
        if (!isThere(m_calls, *placed)) {
            result.problems.add({Problem::Kind::NotUndone, path});
        } else if (placed->isMoved || (m_isMove && placed->isFolder)) {
            Order& order = moves[*placed->sourceFolder];
            order.isMove = true;
            order.target = *placed->sourceFolder;
            order.items.push_back({path, placed->sourceName});
        } else if (auto words = moveToTrash(path)) {
            result.problems.add({Problem::Kind::NotTrashed, path, 0, *std::move(words)});
        } else {
            ++result.done;
        }
    }
    for (const auto& [folder, order] : moves) {
        KeepingBoth asked;
        Transfer back(
            m_calls, m_record, [](const std::string& item) { return openFolder(LinuxDesktop::parentFolder(item)); },
            m_progress, asked);
        const Result moved = back.run(order);
        result.done += moved.done;
        for (const Problem& problem : moved.problems.kept())
            result.problems.add(problem);
    }
    for (const auto& step : m_journal) {
        const auto* replaced = std::get_if<Replaced>(&step);
        if (!replaced)
            continue;
        const FileDescriptor folder = openFolder(*replaced->folder);
        const Place kept{m_stagings[replaced->staging].get(), replaced->keptName};
        const Place place{folder.get(), replaced->name};
        // Where its name is taken by now it comes back beside what has it.
        if (!folder || (!placeNew(m_calls, kept, place, replaced->isFolder) &&
                        (errno != EEXIST || placeBeside(m_calls, kept, place, replaced->isFolder,
                                                        m_target->longestName())
                                                .empty())))
            result.problems.add({Problem::Kind::NotUndone, pathOf(*replaced->folder, replaced->name), errno});
    }
    m_journal.clear();
    return result;
}

} // namespace MenuExtension::Transfers
