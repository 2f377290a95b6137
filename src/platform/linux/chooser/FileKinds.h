#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace LinuxDesktop {

enum class FileKind { Missing, Folder, Other };

/// What is at `path`, a symbolic link followed. Waits for as long as the file system does not answer, which may be
/// for ever. Any thread.
[[nodiscard]] FileKind lookUpFileKind(const std::string& path);
/// The same where the kernel knows it without asking the file system; never waits. Any thread.
[[nodiscard]] std::optional<FileKind> recallFileKind(const std::string& path);

/// Says what is at a path, but never waits long for it: the server of a network folder may be gone, and a list that
/// names the folder has to show all the same. One thread at a time.
class FileKinds {
public:
    using Recall = std::function<std::optional<FileKind>(const std::string& path)>;
    using LookUp = std::function<FileKind(const std::string& path)>;

    /// Those of the file system.
    FileKinds();
    /// What `recall` does not know is asked of `lookUp`, which is called by a thread of its own and may still run
    /// after the end of this object.
    FileKinds(Recall recall, LookUp lookUp, std::chrono::milliseconds patience);
    ~FileKinds();
    FileKinds(const FileKinds&) = delete;
    FileKinds& operator=(const FileKinds&) = delete;

    /// Nothing where no answer came in time, and, without a wait, as long as an earlier answer is outstanding.
    [[nodiscard]] std::optional<FileKind> knownKindOf(const std::string& path);
    /// The same, with a folder for nothing.
    [[nodiscard]] FileKind kindOf(const std::string& path) { return knownKindOf(path).value_or(FileKind::Folder); }

private:
    struct Shared;

    const Recall m_recall;
    const std::chrono::milliseconds m_patience;
    const std::shared_ptr<Shared> m_shared;
    bool m_started = false;
};

} // namespace LinuxDesktop
