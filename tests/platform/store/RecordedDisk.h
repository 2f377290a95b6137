#pragma once

#include "platform/linux/store/FileOperations.h"

#include <cstddef>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace DefaultsTests {

/// Every folder and file below a root, by its path from there.
using Tree = std::map<std::string, std::optional<std::string>>;

/// What a power cut can leave: what was flushed for sure, and of the rest anything.
struct DiskAfterCut {
    /// The bytes of each file; nothing for a folder.
    Tree tree;
    /// The last number that was noted before.
    int noted = -1;
    /// The same for numbers noted after damage(); as `noted` where there was none.
    int notedSinceDamage = -1;
    bool isDamaged = false;
    /// What a path names for sure, and all that was written to that file, flushed or not.
    std::function<std::optional<std::string>(std::string_view path)> sure;
};

/// Does what it is told below `root`, which is an empty folder, and keeps a record of it. Any thread.
class RecordedDisk : public LinuxDesktop::FileOperations {
public:
    explicit RecordedDisk(std::string root) : m_root(std::move(root)) {}

    /// Remembers that this much was promised by now.
    void note(int number);
    /// Somebody else writes over a file in place, and that is flushed.
    void damage(const std::string& path, std::string_view bytes);

    /// Makes one flush fail, counted from now on: the first, the second, and so on.
    void failFlush(int which);

    /// Gives each different disk that a cut after any of the operations can leave. The names that no flush of their
    /// folder covers may each be there or not. Of the bytes that were not flushed there are all, none, half or zeros.
    void forEachCut(const std::function<void(const DiskAfterCut&)>& visit) const;

    [[nodiscard]] LinuxDesktop::FileDescriptor open(const std::string& path, int flags, mode_t mode) override;
    [[nodiscard]] ssize_t write(int descriptor, const void* bytes, std::size_t count) override;
    [[nodiscard]] int syncFile(int descriptor) override;
    [[nodiscard]] int syncFolder(int descriptor) override;
    [[nodiscard]] int rename(const std::string& from, const std::string& to) override;
    [[nodiscard]] int link(const std::string& existing, const std::string& name) override;
    int unlink(const std::string& path) override;
    [[nodiscard]] int makeFolder(const std::string& path, mode_t mode) override;

private:
    static constexpr std::size_t noFile = static_cast<std::size_t>(-1);
    static constexpr std::size_t folder = static_cast<std::size_t>(-2);
    /// What names come to name, in one step: a file by its number, a folder, or nothing more.
    using Names = std::vector<std::pair<std::string, std::size_t>>;

    struct Event {
        enum class Kind { Names, Bytes, FlushFile, FlushFolder, Note, Damage } kind;
        Names names;
        std::size_t file = noFile;
        std::string text;
        int number = -1;
    };
    struct File {
        std::string bytes;
        std::size_t flushed = 0;
    };
    struct Disk;

    [[nodiscard]] std::string inside(const std::string& path) const;
    [[nodiscard]] std::size_t named(const std::string& path) const;
    void rename(const Names& names);
    [[nodiscard]] bool flushFails();

    const std::string m_root;
    std::mutex m_mutex;
    std::vector<Event> m_events;
    std::map<std::string, std::size_t> m_names;
    std::map<int, std::size_t> m_openFiles;
    std::map<int, std::string> m_openFolders;
    std::size_t m_files = 0;
    int m_flushesToFailure = 0;
};

} // namespace DefaultsTests
