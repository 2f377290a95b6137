#pragma once

#include "extension/actions/transfer/Conflict.h"
#include "extension/actions/transfer/CopyTree.h"
#include "extension/actions/transfer/Journal.h"
#include "extension/actions/transfer/Placing.h"
#include "extension/actions/transfer/Progress.h"
#include "extension/actions/transfer/Staging.h"
#include "extension/actions/transfer/Survey.h"
#include "platform/linux/system/FileStamp.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace MenuExtension::Transfers {

/// Opens, for nothing but to reach what is in it, the folder that an item lies in; nothing, with errno.
using OpenFolderOf = std::function<LinuxDesktop::FileDescriptor(const std::string& item)>;

/// Puts an item into the trash; gives what went wrong, in words.
using MoveToTrash = std::function<std::optional<std::string>(const std::string& path)>;

/// What is to be done.
struct Order {
    struct Item {
        std::string path;
        /// At the target; its own where it is empty.
        std::string newName = {};
    };
    bool isMove = false;
    std::vector<Item> items;
    /// The folder, by its path.
    std::string target;
};

/// The paths without those that come twice, and those of items that go with the folder of another.
[[nodiscard]] std::vector<std::string> outermost(const std::vector<std::string>& paths);

struct Result {
    /// Items of the order that are at the target now, whole or as far as the problems say.
    std::size_t done = 0;
    /// Those that the person wanted to be left.
    std::size_t skipped = 0;
    Problems problems;
    /// No item is there as a whole, but a part of one.
    bool isInPart = false;
    /// Nothing was written: the problems say why.
    bool isRefused = false;
    bool isCancelled = false;
};

/// Moves or copies items into a folder. At any moment each file is whole where it was, or whole at the target under
/// its name there; what is not whole yet is in a hidden folder of the target's. Nothing is taken away from where it
/// was before it is on the disk at the target. What is replaced is kept until this object's end. One thread, but for
/// the progress.
class Transfer {
public:
    /// All must outlive it.
    Transfer(SystemCalls& calls, StagingRecord& record, OpenFolderOf openFolderOf, Progress& progress, Asked& asked);

    [[nodiscard]] Result run(const Order& order);

    /// Puts everything back: what was moved is moved back, what was copied goes to the trash, what was replaced comes
    /// back. Once. Where it is cancelled the problems say of what is not back.
    [[nodiscard]] Result undo(const MoveToTrash& moveToTrash);
    [[nodiscard]] bool canBeUndone() const { return !m_journal.empty(); }
    /// Whether an Undo would bring back something that was replaced.
    [[nodiscard]] bool hasReplaced() const
    {
        return std::ranges::any_of(m_journal,
                                   [](const auto& step) { return std::holds_alternative<Replaced>(step); });
    }
    /// The first item that came to the target, by its path there; empty where none did.
    [[nodiscard]] std::string firstPlaced() const;

private:
    /// An item where it is, and where it goes.
    struct Task {
        SharedFolder source = nullptr;
        std::string name = {};
        struct stat status = {};
        SharedFolder target = nullptr;
        std::string newName = {};
        /// Of the order, not of a folder that is merged.
        bool isOuter = false;
        /// What was decided about the name; Cancel as long as it is free.
        Resolution resolution = Resolution::Cancel;
        /// What had the name when that was decided.
        LinuxDesktop::FileStamp existing = {};
    };
    /// A copy that is whole and waits to be flushed.
    struct Staged {
        Task task;
        std::string name;
        std::size_t staging;
        std::optional<mode_t> finalMode;
        std::shared_ptr<Place> place;
    };

    /// What was replaced, on its way back.
    struct Returning {
        const Replaced* replaced;
        /// Its name beside its place; empty where it could not come out.
        std::string spare;
    };
    /// Items that go back, by the folder that they go back to.
    using MovesByFolder = std::map<std::string_view, Order>;

    [[nodiscard]] bool prepare(const Order& order);
    [[nodiscard]] bool lookAtItem(const Order::Item& item, Survey& survey);
    [[nodiscard]] SharedFolder folderOf(const std::string& item);

    void transfer(Task task);
    /// Whether the item is to be transferred; the task says how.
    [[nodiscard]] bool decide(Task& task, const struct stat& existing, bool canMerge);
    void merge(const Task& task);
    /// Whether there is nothing more to do; else it has to be copied.
    [[nodiscard]] bool rename(Task& task);
    void stage(Task task);

    void commit();
    [[nodiscard]] bool flushStaged();
    void placeStaged(std::size_t number);
    void removeOriginals();
    void drop(const Staged& staged);

    /// False, with errno, which is 0 where it was decided that the item stays.
    [[nodiscard]] bool place(Task& task, const Place& item, const std::optional<std::size_t>& staging,
                             const std::string& free);
    /// The same where something has the name that nothing was decided about.
    [[nodiscard]] bool placeAnew(Task& task, const struct stat& existing, const Place& item,
                                 const std::optional<std::size_t>& staging, const std::string& free);
    void notePlaced(const Task& task, bool isMoved);
    void noteChanged(const SharedFolder& folder);
    [[nodiscard]] bool flushChanged();
    void removeEmptied();

    [[nodiscard]] std::vector<Returning> bringOutReplaced(Problems& problems);
    [[nodiscard]] std::string placeOf(const Placed& placed, std::vector<Returning>& returning) const;
    void moveBack(MovesByFolder& moves, Result& result);
    [[nodiscard]] bool restore(const Emptied& emptied);
    void putInPlace(const Returning& item, Problems& problems) const;

    [[nodiscard]] std::optional<std::size_t> stagingFor(const SharedFolder& target);
    void fail(const Task& task, int error);
    void stop(int error, const std::string& path);

    SystemCalls& m_calls;
    StagingRecord& m_record;
    OpenFolderOf m_openFolderOf;
    Progress& m_progress;
    Asked& m_asked;
    Result m_result;
    TreeCopier m_copier;
    AttributeCopier m_attributes;
    std::optional<Target> m_target;
    bool m_isMove = false;
    bool m_flushesTogether = false;

    bool m_isStopped = false;
    /// Something in the present item of the order was left, as the person wished.
    bool m_isPartLeft = false;
    std::vector<bool> m_isImpossible;

    SharedFolder m_lastFolder;
    std::vector<Staging> m_stagings;
    std::vector<Staged> m_staged;
    std::size_t m_foldersStaged = 0;
    std::chrono::steady_clock::time_point m_lastCommit;
    /// Copies that are in their places, whose originals go once that is on the disk: their numbers in m_staged and in
    /// the journal.
    std::vector<std::pair<std::size_t, std::size_t>> m_placed;
    std::vector<SharedFolder> m_changed;
    std::vector<Emptied> m_toBeEmptied;
    /// For files, for folders, and for one of each.
    std::array<std::optional<Resolution>, 3> m_forAll;
    Journal m_journal;
    SharedPath m_lastSource;
    SharedPath m_lastTarget;
};

} // namespace MenuExtension::Transfers
