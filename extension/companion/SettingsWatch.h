#pragma once

#include "platform/linux/system/Inotify.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace MenuExtension {

/// Tells when the file that a path leads to may have changed, whether it, its folder or the symbolic links on the way
/// are there or not. The system tells it, so that nothing runs while nothing happens. Folders in which other programs
/// are busy are looked into no further than the path needs.
class SettingsWatch {
public:
    /// `path` is absolute.
    explicit SettingsWatch(std::string path);

    /// False while the system has too few watches to give, so that changes may go unnoticed. Standard error is told
    /// of its beginning and its end.
    [[nodiscard]] bool isWhole() const { return m_lack == 0; }
    /// Asks for the watches anew. Those who then read the file have missed nothing.
    void tryAgain() { follow(); }

    /// Readable when something has happened; negative where there is no watch.
    [[nodiscard]] int descriptor() const { return m_inotify.descriptor(); }
    /// Takes what has happened. True when the file may be another one, or have other contents, than before; a read
    /// that follows misses no change.
    [[nodiscard]] bool takeEvents();

private:
    [[nodiscard]] bool concerns(int watch, std::uint32_t what, std::string_view name) const;
    void follow();
    void watchTheWay();
    bool watch(const std::string& path, std::uint32_t events, const std::string& name = {});

    const std::string m_path;
    LinuxDesktop::Inotify m_inotify;
    /// The error number of what the system had no more of.
    int m_lack = 0;
    /// For each watch the names in its folder that count; what happens to the folder itself always does.
    std::map<int, std::set<std::string, std::less<>>> m_watches;
};

} // namespace MenuExtension
