#pragma once

#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/PropertyList.h"
#include "platform/linux/store/ReplaceFile.h"
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
    [[nodiscard]] Snapshot readBackup(const Snapshot::SharedContent& known = nullptr) const
    {
        return Snapshot::read(m_files, backupPath(), known);
    }
    /// Tells one last good copy from another; nothing where there is none.
    [[nodiscard]] std::optional<FileStamp> backupStamp() const { return FileStamp::of(backupPath()); }

    /// Puts `root`, of which some texts may be known, in the place of `found`, and leaves the copy to others. A
    /// failure leaves what was there, unless all that failed is making the new file's name durable.
    [[nodiscard]] Result<Snapshot> replace(const Snapshot& found, NS::Value root,
                                           const PropertyList::Texts& known) const;
    /// The file that is to be the last good copy. Needs no lock until it takes its place.
    [[nodiscard]] Result<NewFile> makeBackup(const Snapshot::Content& content) const
    {
        return NewFile::make(m_files, {content.bytes, backupPath(), temporaryPrefix()});
    }
    void removeStaleTemporaries() const;
    /// Brings to disk what another program may have left in memory.
    [[nodiscard]] std::optional<Failure> flush(const Snapshot& current) const;
    /// Keeps a readable file, as it is on disk, under another name too, which it gives.
    [[nodiscard]] Result<std::string> keep(const Snapshot& current) const;
    /// Keeps the damaged file under another name and brings the last good copy back, or leaves no file where there
    /// is none. Does nothing where there is one that cannot be read. At every moment the damaged file and the copy
    /// exist. Gives a sentence for the user.
    [[nodiscard]] Result<std::string> setAside(const Snapshot& damaged) const;

private:
    [[nodiscard]] std::string backupPath() const { return m_path + ".bak"; }
    [[nodiscard]] std::string temporaryPrefix() const;

    FileOperations& m_files;
    std::string m_folder;
    std::string m_path;
};

} // namespace LinuxDesktop
