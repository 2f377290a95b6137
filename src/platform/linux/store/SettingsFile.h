#pragma once

#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/Result.h"
#include "platform/linux/store/Snapshot.h"

#include <optional>
#include <string>
#include <string_view>

namespace LinuxDesktop {

/// A domain's file with its last good copy. It keeps no state: what it reads it hands out. Any thread; whatever
/// changes the files is for the holder of the domain's lock.
class SettingsFile {
public:
    SettingsFile(FileOperations& files, std::string folder, std::string_view domain);

    [[nodiscard]] const std::string& path() const { return m_path; }
    [[nodiscard]] const std::string& folder() const { return m_folder; }
    [[nodiscard]] std::string lockPath() const { return m_path + ".lock"; }

    /// `known` is what it held before; see Snapshot::read().
    [[nodiscard]] Snapshot read(const Snapshot::SharedContent& known = nullptr) const
    {
        return Snapshot::read(m_files, m_path, known);
    }
    /// The same, but gives whoever is writing a damaged file in place at this moment a tenth of a second to finish.
    [[nodiscard]] Snapshot readPatiently(const Snapshot::SharedContent& known = nullptr) const;
    [[nodiscard]] Snapshot readBackup() const { return Snapshot::read(m_files, backupPath()); }

    /// Puts `root` in the place of `found`, and leaves the rest to tidy(). A failure leaves what was there, unless
    /// all that failed is making the new file's name durable.
    [[nodiscard]] Result<Snapshot> replace(const Snapshot& found, NS::Value root) const;
    /// Makes `content` the last good copy, where that can be done, and removes what killed writers left.
    void tidy(const Snapshot::Content& content) const;
    /// Brings to disk what another program may have left in memory.
    [[nodiscard]] std::optional<Failure> flush(const Snapshot& current) const;
    /// Keeps the damaged file under another name and brings the last good copy back, or leaves no file where there
    /// is none. At every moment the damaged file and the copy exist. Gives a sentence for the user.
    [[nodiscard]] Result<std::string> setAside(const Snapshot& damaged) const;

private:
    [[nodiscard]] std::string backupPath() const { return m_path + ".bak"; }
    [[nodiscard]] std::string temporaryPrefix() const;
    void removeStaleTemporaries() const;
    [[nodiscard]] Result<std::string> target() const;

    FileOperations& m_files;
    std::string m_folder;
    std::string m_path;
};

} // namespace LinuxDesktop
