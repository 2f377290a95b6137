#include "platform/linux/store/SettingsFile.h"

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
bool isFresh(const FileStamp& version)
{
    const auto modified = std::chrono::system_clock::time_point(std::chrono::seconds(version.modified.seconds)) +
                          std::chrono::nanoseconds(version.modified.nanoseconds);
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

Result<Snapshot> SettingsFile::replace(const Snapshot& found, NS::Value root, const PropertyList::Texts& known) const
{
    // Settings grow little at a time, so that the longer text has room as a rule.
    constexpr std::size_t growth = 1024;
    auto bytes =
        PropertyList::serialise(root, known, found.content() ? found.content()->bytes.size() + growth : growth);
    if (!bytes)
        return Failure{"could not store the settings in " + m_path + ": " + bytes.error()};
    const auto path = linkTarget(m_path);
    if (!path)
        return Failure{path.error()};
    auto file = replaceFile(m_files, {*bytes, *path, temporaryPrefix()});
    if (!file) {
        // They may be what fills the disk.
        removeStaleTemporaries();
        return Failure{file.error()};
    }
    return Snapshot::written(
        std::make_shared<const Snapshot::Content>(Snapshot::Content{std::move(*bytes), std::move(root)}),
        std::move(*file));
}

void SettingsFile::removeStaleTemporaries() const
{
    LinuxDesktop::removeStaleTemporaries(m_files, m_path, temporaryPrefix());
    if (const auto path = linkTarget(m_path); path && *path != m_path)
        LinuxDesktop::removeStaleTemporaries(m_files, *path, temporaryPrefix());
}

std::optional<Failure> SettingsFile::flush(const Snapshot& current) const
{
    if (current.state() != Snapshot::State::Readable)
        return std::nullopt;
    if (m_files.syncFile(current.descriptor()) != 0)
        return systemFailure("could not flush", m_path);
    const auto path = linkTarget(m_path);
    if (!path)
        return Failure{path.error()};
    if (!syncFolder(m_files, parentFolder(*path)))
        return systemFailure("could not flush", parentFolder(*path));
    return std::nullopt;
}

Result<std::string> SettingsFile::keep(const Snapshot& current) const
{
    if (const auto failure = flush(current))
        return *failure;
    const auto path = linkTarget(m_path);
    if (!path)
        return Failure{path.error()};
    return keepFile(m_files, m_path, *path, current);
}

Result<std::string> SettingsFile::setAside(const Snapshot& damaged) const
{
    const auto path = linkTarget(m_path);
    if (!path)
        return Failure{path.error()};
    const Snapshot backup = readBackup();
    if (backup.state() == Snapshot::State::Inaccessible)
        return Failure{"could not read " + backupPath() + ": " + backup.why()};
    const auto kept = keepFile(m_files, m_path, *path, damaged);
    if (!kept)
        return Failure{kept.error()};
    if (!damaged.isNamed(m_path))
        return Failure{m_path + " was changed by another program just now"};

    std::string outcome =
        m_path + " is not a readable property list (" + damaged.why() + "); it was kept as " + *kept;
    if (backup.state() == Snapshot::State::Readable) {
        const auto file = replaceFile(m_files, {backup.content()->bytes, *path, temporaryPrefix()});
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
