#pragma once

#include "platform/linux/store/DelayedQueue.h"
#include "platform/linux/store/Domain.h"
#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/SettingsFolder.h"

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace LinuxDesktop {

/// The process's settings files; one for each process. Its end writes what is not written yet. Handles that
/// outlive it go on working and write at once. Any thread.
class Store {
public:
    /// With nothing for a folder every domain is one that cannot be read.
    explicit Store(std::optional<std::string> folder = settingsFolder(),
                   std::shared_ptr<FileOperations> files = std::make_shared<FileOperations>());
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    /// The domain's handle, which is also an NS::UserDefaults. A domain without a file is empty. Nothing where
    /// there is something that cannot be read at all, and for what is no domain's name.
    [[nodiscard]] std::shared_ptr<Domain> open(std::string_view domain);

    /// Brings to the files what is not written yet, for whoever is about to keep the user busy.
    void writeNow();

    [[nodiscard]] const std::optional<std::string>& folder() const { return m_folder; }

private:
    const std::optional<std::string> m_folder;
    const std::shared_ptr<FileOperations> m_files;
    const std::shared_ptr<DelayedQueue> m_queue = std::make_shared<DelayedQueue>();
    std::mutex m_mutex;
    std::map<std::string, std::shared_ptr<Domain>, std::less<>> m_domains;
};

} // namespace LinuxDesktop
