#pragma once

#include "platform/UserDefaults.h"
#include "platform/linux/store/Complaints.h"
#include "platform/linux/store/DelayedQueue.h"
#include "platform/linux/store/DomainLock.h"
#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/SettingsFile.h"
#include "platform/linux/store/Snapshot.h"

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace LinuxDesktop {

/// A domain of settings: what its file held when it was last looked at, and over that what was written here and
/// is not in the file yet. Every read looks whether the file has changed. Writes reach the file within a few
/// hundredths of a second, or with synchronize(). Any thread; no read waits for another thread's write to
/// the disk.
class Domain final : public NS::UserDefaults, public std::enable_shared_from_this<Domain> {
public:
    Domain(std::shared_ptr<FileOperations> files, std::shared_ptr<DelayedQueue> queue, std::string folder,
           std::string_view name);

    [[nodiscard]] std::optional<NS::Value> objectForKey(std::string_view key) override;
    /// Fatal for what PropertyList::unstorableReason() names. Dates are stored in whole seconds.
    void setObject_forKey(NS::Value value, std::string_view key) override;
    void removeObjectForKey(std::string_view key) override;
    bool synchronize() override;

    /// Everything in the domain; nothing when there is neither a file nor anything written.
    [[nodiscard]] std::optional<NS::Value::Dictionary> contents();
    /// Replaces everything in the domain, storable values all.
    void replaceContents(const NS::Value::Dictionary& values);

    /// For the store's end, and for whoever is not waited for: writes what is unwritten, and has nothing left to do
    /// later.
    void writeNow();

    /// Whether the file, if there is one, can be read at all.
    [[nodiscard]] bool isAccessible();
    [[nodiscard]] const std::string& path() const { return m_file.path(); }

private:
    using Clock = DomainLock::Clock;

    struct Change {
        /// Nothing: the key was removed.
        std::optional<NS::Value> value;
        std::uint64_t serial;
    };
    /// What was written here, to be laid over what the file holds.
    struct Changes {
        std::map<std::string, Change, std::less<>> keys;
        /// The serial of the last replaceContents(), which hides all that the file holds; 0 when there was none.
        std::uint64_t cleared = 0;
        [[nodiscard]] bool empty() const { return keys.empty() && cleared == 0; }
        [[nodiscard]] NS::Value::Dictionary over(const NS::Value::Dictionary& values) const;
    };
    enum class Outcome { Saved, LockBusy, Failed };
    struct Trouble {
        Outcome outcome;
        std::string what;
    };

    void change(std::string_view key, std::optional<NS::Value> value);
    void writeSoon(std::unique_lock<std::mutex> state);
    void tidySoon();
    [[nodiscard]] bool post(void (Domain::*job)(), std::chrono::milliseconds delay);
    void refresh(std::unique_lock<std::mutex>& state);

    // These wait for other threads' writes, for the lock and for the disk; m_state must not be locked. Past the
    // deadline the lock is tried once and not waited for.
    [[nodiscard]] bool saveOrRetry();
    Outcome save(Clock::time_point deadline);
    void tidy();
    [[nodiscard]] Snapshot repair(Clock::time_point deadline);

    // For the holder of m_writing; on failure they fill `trouble`.
    [[nodiscard]] std::optional<Snapshot> write(const Changes& changes, const Snapshot::SharedContent& known,
                                                Clock::time_point deadline, Trouble& trouble);
    [[nodiscard]] std::optional<DomainLock::Hold> lockFiles(Clock::time_point deadline, Trouble& trouble);
    [[nodiscard]] Snapshot repairLocked(Snapshot found);
    [[nodiscard]] Snapshot withStandIn(Snapshot damaged, const std::string& trouble);
    [[nodiscard]] Snapshot::SharedContent uncopied();
    void copy(const Snapshot::Content& newest);

    const std::shared_ptr<FileOperations> m_files;
    const std::shared_ptr<DelayedQueue> m_queue;
    const SettingsFile m_file;
    Complaints m_complaints;

    /// Taken before m_state, by whoever changes the files.
    std::mutex m_writing;
    DomainLock m_lock;

    std::mutex m_state;
    Snapshot m_snapshot;
    Changes m_changes;
    /// What was written here last, until the last good copy is made of it. Changed by the holder of m_writing.
    Snapshot::SharedContent m_uncopied;
    std::uint64_t m_serial = 0;
    bool m_writeIsDue = false;
    bool m_tidyingIsDue = false;
};

} // namespace LinuxDesktop
