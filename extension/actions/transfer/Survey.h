#pragma once

#include "extension/actions/transfer/Folder.h"
#include "extension/actions/transfer/Problem.h"
#include "extension/actions/transfer/Progress.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <sys/vfs.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace MenuExtension::Transfers {

/// What can be said of a target before anything is written to it.
class Target {
public:
    /// Nothing, with errno, where it is no folder or nothing can be made in it.
    [[nodiscard]] static std::optional<Target> open(SystemCalls& calls, const std::string& path);

    [[nodiscard]] const SharedFolder& folder() const { return m_folder; }
    /// Of a name, in bytes.
    [[nodiscard]] std::size_t longestName() const;
    /// Of a file, in bytes.
    [[nodiscard]] std::uint64_t largestFile() const;
    /// Whether a file can have several names.
    [[nodiscard]] bool hasLinks() const;
    /// What a file of so many bytes takes.
    [[nodiscard]] std::uint64_t roomFor(std::uint64_t size) const;
    [[nodiscard]] bool hasRoomFor(std::uint64_t bytes, std::uint64_t files) const;
    /// Whether copies of what is in the folder, which has that device, may take no room of their own.
    [[nodiscard]] bool sharesBytes(SystemCalls& calls, int folder, dev_t device) const;
    /// Whether flushing all of it says what went wrong and means the disk: not so with one of another machine's.
    [[nodiscard]] bool canBeFlushedAsAWhole() const;
    /// Whether the target is the folder, or lies in it.
    [[nodiscard]] bool liesIn(const Identity& folder) const;

private:
    SharedFolder m_folder;
    struct statfs m_fileSystem = {};
    std::vector<Identity> m_above;
};

/// The folder and those above it, innermost first.
[[nodiscard]] std::vector<Identity> foldersAbove(SystemCalls& calls, int folder);

/// Whether only another user may take the item away from the folder, since everybody may write to that.
[[nodiscard]] bool isAnothers(const struct stat& item, const struct stat& folder);

/// Counts what an item holds, which it tells as it goes, and looks whether the target can take it. What it finds
/// wrong it adds to `problems`.
class Survey {
public:
    Survey(SystemCalls& calls, Progress& progress, const Target& target, bool isMove, Problems& problems)
        : m_calls(calls), m_progress(progress), m_target(target), m_isMove(isMove), m_problems(problems)
    {}

    /// False where nothing of it is to be transferred. Whether it may leave the folder itself is not looked at. Where
    /// it `takesRoom`, that is added to the room.
    [[nodiscard]] bool look(const Folder& folder, const std::string& name, bool takesRoom);

    /// Folders are some too, and a file of several names is one.
    [[nodiscard]] std::uint64_t files() const { return m_files; }
    /// What they take at the target for sure.
    [[nodiscard]] std::uint64_t room() const { return m_room; }

private:
    void lookAt(int folder, const struct stat& folderStatus, const char* name);
    void lookAtFile(int folder, const char* name, const struct stat& status);
    void lookAtFolder(int folder, const char* name, const struct stat& status);
    [[nodiscard]] bool isKnown(const struct stat& file);
    [[nodiscard]] bool sharesBytes(int folder, dev_t device);
    void refuse(Problem::Kind kind, const char* name, int error = 0);

    SystemCalls& m_calls;
    Progress& m_progress;
    const Target& m_target;
    const bool m_isMove;
    const uid_t m_user = ::geteuid();
    Problems& m_problems;
    std::string m_path;
    std::size_t m_depth = 0;
    bool m_isPossible = true;
    bool m_takesRoom = true;
    /// Of the device that was asked about last.
    dev_t m_device = 0;
    bool m_sharesBytes = false;
    /// Files of several names whose room is counted.
    std::set<std::pair<dev_t, ino_t>> m_several;
    std::uint64_t m_files = 0;
    std::uint64_t m_room = 0;
};

} // namespace MenuExtension::Transfers
