#pragma once

#include "platform/Value.h"
#include "platform/linux/store/FileOperations.h"
#include "platform/linux/system/FileDescriptor.h"
#include "platform/linux/system/FileStamp.h"

#include <memory>
#include <string>
#include <utility>

namespace LinuxDesktop {

/// What a settings file held when it was read. One thread at a time.
class Snapshot {
public:
    /// A file's text and what it says. Never changed, so snapshots share it.
    struct Content {
        std::string bytes;
        NS::Value root;
    };
    using SharedContent = std::shared_ptr<const Content>;

    enum class State {
        /// No file: an empty domain.
        Absent,
        Readable,
        /// A file that is no property list with a dictionary as its root, or one out of bounds.
        Damaged,
        /// Something is there that cannot be read at all.
        Inaccessible,
    };

    /// As though no file had been found.
    Snapshot() = default;
    /// Reads what is at `path` now, a symbolic link followed. Where the file still has the text of `known`, which
    /// may be null, it is not parsed again.
    [[nodiscard]] static Snapshot read(FileOperations& files, const std::string& path,
                                       const SharedContent& known = nullptr);
    /// For who has just written `content` to `file`.
    [[nodiscard]] static Snapshot written(SharedContent content, FileDescriptor file);

    /// Whether reading `path` again would find the same. False when that cannot be told.
    [[nodiscard]] bool isCurrent(const std::string& path) const;
    /// Whether `path` names the very file that was read, and nothing was written to it since.
    [[nodiscard]] bool isNamed(const std::string& path) const;

    [[nodiscard]] State state() const { return m_state; }
    /// Empty unless Readable, or set by standIn().
    [[nodiscard]] const NS::Value::Dictionary& values() const;
    /// The same with its text; null where there is none.
    [[nodiscard]] const SharedContent& content() const { return m_content; }
    /// Why the file is Damaged or Inaccessible.
    [[nodiscard]] const std::string& why() const { return m_why; }
    /// Of a file that is Readable or Damaged.
    [[nodiscard]] const FileStamp& version() const { return m_version; }
    /// Open for reading; the same.
    [[nodiscard]] int descriptor() const { return m_file.get(); }

    /// Gives values to show for a file that has none to give.
    void standIn(SharedContent content) { m_content = std::move(content); }
    /// For a damaged file whose last good copy is there and cannot be read.
    void becomeInaccessible(std::string why)
    {
        m_state = State::Inaccessible;
        m_why = std::move(why);
        release();
    }
    /// Lets go of the file before it is replaced: removing one that is open costs the disk more. From now on
    /// isCurrent() is false.
    void release()
    {
        m_file.close();
        m_settled = false;
    }
    /// Takes over whether the status can be trusted by now, from a later reading of the same version.
    void settleLike(const Snapshot& later) { m_settled = later.m_settled; }

private:
    void readContent(const SharedContent& known);

    State m_state = State::Absent;
    SharedContent m_content;
    std::string m_why;
    FileStamp m_version;
    // While it is open, no other file can get its inode number, so an equal number means the same file.
    FileDescriptor m_file;
    bool m_settled = false;
};

} // namespace LinuxDesktop
