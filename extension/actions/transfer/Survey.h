#pragma once

#include "extension/actions/transfer/Folder.h"
#include "extension/actions/transfer/Problem.h"
#include "extension/actions/transfer/Progress.h"

#include <cstdint>
#include <optional>
#include <string>
#include <sys/vfs.h>
#include <unistd.h>
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
    /// What a file of so many bytes takes.
    [[nodiscard]] std::uint64_t roomFor(std::uint64_t size) const;
    [[nodiscard]] bool hasRoomFor(std::uint64_t bytes, std::uint64_t files) const;
    /// Whether a copy within it may take no room of its own.
    [[nodiscard]] bool sharesBytes() const;
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

    /// False where nothing of it is to be transferred. Whether it may leave the folder itself is not looked at.
    [[nodiscard]] bool look(const Folder& folder, const std::string& name);

    /// Folders are some too.
    [[nodiscard]] std::uint64_t files() const { return m_files; }
    /// What they take at the target.
    [[nodiscard]] std::uint64_t room() const { return m_room; }

private:
    void lookAt(int folder, const struct stat& folderStatus, const char* name);
    void lookAtFile(int folder, const char* name, const struct stat& status);
    void lookAtFolder(int folder, const char* name, const struct stat& status);
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
    std::uint64_t m_files = 0;
    std::uint64_t m_room = 0;
};

} // namespace MenuExtension::Transfers
