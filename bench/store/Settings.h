#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace StoreBench {

/// What every contestant stores: a text that makes its file this large, and a number that changes.
inline constexpr std::size_t fileSize = 2048;

/// A way to keep settings in a file.
class Settings {
public:
    virtual ~Settings() = default;

    /// Returns when the contestant calls the number stored.
    virtual void store(int number) = 0;
};

/// What nobody can do without: a temporary file written, flushed and renamed, and the folder flushed. As many
/// bytes as the store writes.
[[nodiscard]] std::unique_ptr<Settings> withSystemCalls(const std::string& folder);
[[nodiscard]] std::unique_ptr<Settings> withStore(const std::string& folder);
/// QSettings with a file in the INI format. It flushes its file and its lock file, but not the folder.
[[nodiscard]] std::unique_ptr<Settings> withQt(const std::string& folder);
/// GSettings with a key file. It flushes its file, but not the folder, and takes no lock.
[[nodiscard]] std::unique_ptr<Settings> withGio(const std::string& folder);
/// The same, and then the folder is flushed: as durable as the store.
[[nodiscard]] std::unique_ptr<Settings> withGioAndFolder(const std::string& folder);

/// Brings the names in a folder to disk.
void flushFolder(const std::string& folder);

} // namespace StoreBench
