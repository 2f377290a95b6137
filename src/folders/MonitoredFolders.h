#pragma once

#include "platform/URL.h"
#include "platform/UserDefaults.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// The bookmarks made since the program started, in the order of adding. The process has one list.
using RunBookmarks = std::vector<NS::Data>;

/// The folders in which the extension is active. The lists in memory are the truth, and every write copies them out
/// whole. Main thread.
class MonitoredFolders {
public:
    enum class Added { Yes, AlreadyPresent };

    explicit MonitoredFolders(std::shared_ptr<RunBookmarks> runBookmarks);

    /// Reads both lists from `stored`, which may be null. A stored list of another kind is fatal.
    void load(NS::UserDefaults* stored);

    /// Appends an active folder, stores both lists, makes its bookmark and publishes; does nothing when its path is
    /// listed. A bookmark that cannot be made is told on standard output alone.
    Added add(const NS::URL& url);
    /// Removes a folder, stores both lists and publishes; its bookmark stays. A row outside either list is fatal.
    void removeAt(std::ptrdiff_t row);
    /// Flips a flag in memory: 1 becomes 0, anything else 1. A row outside the flags is fatal.
    void toggleAt(std::ptrdiff_t row);
    void storeFlags() const;
    /// Hands every folder to the companion, active or not.
    void publish() const;

    [[nodiscard]] std::ptrdiff_t count() const { return std::ssize(arrurl); }
    // A row outside either list is fatal.
    [[nodiscard]] const std::string& pathAt(std::ptrdiff_t row) const;
    [[nodiscard]] bool isActiveAt(std::ptrdiff_t row) const;

    std::vector<std::string> arrurl;
    /// Beside arrurl: 1 for an active folder.
    std::vector<std::int64_t> arrstate;
    std::string userdefaultskey;
    std::string userdefaultsstate;

private:
    void storeFolders(NS::UserDefaults* suite) const;
    void keepBookmark(const NS::URL& url, NS::UserDefaults* suite);
    static void requireRow(std::ptrdiff_t row, std::size_t rows, std::string_view key);

    std::shared_ptr<RunBookmarks> m_runBookmarks;
};
