#include "platform/linux/store/SettingsFile.h"

#include "platform/linux/store/PropertyList.h"
#include "platform/linux/store/ReplaceFile.h"
#include "platform/linux/store/Salvage.h"
#include "platform/linux/store/SettingsFolder.h"
#include "platform/linux/system/ParentFolder.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <memory>
#include <system_error>
#include <thread>

namespace LinuxDesktop {

namespace {

/// Whether the file was changed within the last second.
bool isFresh(const FileVersion& version)
{
    const auto modified = std::chrono::system_clock::time_point(std::chrono::seconds(version.modified.tv_sec)) +
                          std::chrono::nanoseconds(version.modified.tv_nsec);
    const auto age = std::chrono::system_clock::now() - modified;
    return age < std::chrono::seconds(1) && age > -std::chrono::seconds(1);
}

} // namespace

SettingsFile::SettingsFile(FileOperations& files, std::string folder, std::string_view domain)
    : m_files(files), m_folder(std::move(folder)), m_path(settingsPath(m_folder, domain))
{}

std::string SettingsFile::temporaryPrefix() const
{
    return m_path.substr(m_folder.size() + 1) + ".tmp-";
}

Snapshot SettingsFile::readPatiently(const Snapshot::SharedContent& known) const
{
    constexpr std::chrono::milliseconds pause{10};
    constexpr int pauses = 10;
    Snapshot snapshot = read(known);
    for (int i = 0; i < pauses && snapshot.state() == Snapshot::State::Damaged && isFresh(snapshot.version()); ++i) {
        std::this_thread::sleep_for(pause);
        snapshot = read(known);
    }
    return snapshot;
}

/// Where the symbolic links in the file's place lead, whether there is a file or not.
Result<std::string> SettingsFile::target() const
{
    constexpr int mostLinks = 40;
    std::filesystem::path path = m_path;
    for (int i = 0; i < mostLinks; ++i) {
        std::error_code error;
        const auto link = std::filesystem::read_symlink(path, error);
        // No link, or nothing at all.
        if (error == std::errc::invalid_argument || error == std::errc::no_such_file_or_directory)
            return path.native();
        if (error)
            return Failure{"could not follow " + path.native() + ": " + error.message()};
        path = path.parent_path() / link;
    }
    errno = ELOOP;
    return systemFailure("could not follow", m_path);
}

Result<Snapshot> SettingsFile::replace(const Snapshot& found, NS::Value root) const
{
    // Settings grow little at a time, so that the longer text has room as a rule.
    constexpr std::size_t growth = 1024;
    auto bytes = PropertyList::serialise(root, found.content() ? found.content()->bytes.size() + growth : growth);
    if (!bytes)
        return Failure{"could not store the settings in " + m_path + ": " + bytes.error()};
    const auto path = target();
    if (!path)
        return Failure{path.error()};
    auto file = replaceFile(m_files, {*bytes, *path, temporaryPrefix(), Durability::Synchronous});
    if (!file) {
        // They may be what fills the disk.
        removeStaleTemporaries();
        return Failure{file.error()};
    }
    return Snapshot::written(
        std::make_shared<const Snapshot::Content>(Snapshot::Content{std::move(*bytes), std::move(root)}),
        std::move(*file));
}

void SettingsFile::tidy(const Snapshot::Content& content) const
{
    removeStaleTemporaries();
    // The settings themselves are safe; without a new copy there is still the one before.
    static_cast<void>(replaceFile(m_files, {content.bytes, backupPath(), temporaryPrefix(), Durability::Eventual}));
}

void SettingsFile::removeStaleTemporaries() const
{
    LinuxDesktop::removeStaleTemporaries(m_files, m_path, temporaryPrefix());
    if (const auto path = target(); path && *path != m_path)
        LinuxDesktop::removeStaleTemporaries(m_files, *path, temporaryPrefix());
}

std::optional<Failure> SettingsFile::flush(const Snapshot& current) const
{
    if (current.state() != Snapshot::State::Readable)
        return std::nullopt;
    if (m_files.syncFile(current.descriptor()) != 0)
        return systemFailure("could not flush", m_path);
    const auto path = target();
    if (!path)
        return Failure{path.error()};
    if (!syncFolder(m_files, parentFolder(*path)))
        return systemFailure("could not flush", parentFolder(*path));
    return std::nullopt;
}

Result<std::string> SettingsFile::setAside(const Snapshot& damaged) const
{
    const auto path = target();
    if (!path)
        return Failure{path.error()};
    const auto kept = keepDamagedFile(m_files, m_path, *path, damaged);
    if (!kept)
        return Failure{kept.error()};
    if (!damaged.isNamed(m_path))
        return Failure{m_path + " was changed by another program just now"};

    std::string outcome =
        m_path + " is not a readable property list (" + damaged.why() + "); it was kept as " + *kept;
    const Snapshot backup = readBackup();
    if (backup.state() == Snapshot::State::Readable) {
        const auto file =
            replaceFile(m_files, {backup.content()->bytes, *path, temporaryPrefix(), Durability::Synchronous});
        if (!file)
            return Failure{file.error()};
        outcome += " and the last good copy took its place";
    } else {
        if (m_files.unlink(*path) != 0 || !syncFolder(m_files, parentFolder(*path)))
            return systemFailure("could not remove", *path);
        outcome += "; there is no last good copy, so the settings start empty";
    }
    return outcome;
}

} // namespace LinuxDesktop
