#pragma once

#include "platform/UserDefaults.h"
#include "platform/linux/store/Changes.h"
#include "platform/linux/store/Complaints.h"
#include "platform/linux/store/DelayedQueue.h"
#include "platform/linux/store/DomainLock.h"
#include "platform/linux/store/FileOperations.h"
#include "platform/linux/store/Result.h"
#include "platform/linux/store/SettingsFile.h"
#include "platform/linux/store/Snapshot.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace LinuxDesktop {

/// A domain of settings: what its file held when it was last looked at, and over that what was written here and
/// is not in the file yet. Every read looks whether the file has changed. Writes reach the file within a few
/// hundredths of a second, or with synchronize(). While another program keeps the lock, it is waited for once; from
/// then on whatever is called tries once, and the rest is done later. Any thread; no read waits for another thread's
/// write to the disk.
class Domain final : public NS::UserDefaults, public std::enable_shared_from_this<Domain> {
public:
    Domain(std::shared_ptr<FileOperations> files, std::shared_ptr<DelayedQueue> queue, std::string folder,
           std::string_view name);

    [[nodiscard]] std::optional<NS::Value> objectForKey(std::string_view key) override;
    /// Fatal for what PropertyList::unstorableReason() names. A date is stored in whole seconds; those within an
    /// array or a dictionary stay as they are.
    void setObject_forKey(NS::Value value, std::string_view key) override;
    /// The same for several keys, which reach the file in one write.
    void setObjects(const NS::Value::Dictionary& values);
    /// Removes the value that was last read or set here, or where that never happened the one that is there now. What
    /// another program writes in its place stays, and then all removals that wait are dropped.
    void removeObjectForKey(std::string_view key) override;
    bool synchronize() override;

    /// Everything in the domain; nothing when there is neither a file nor anything written.
    [[nodiscard]] std::optional<NS::Value::Dictionary> contents();
    /// Replaces everything in the domain, storable values all.
    void replaceContents(const NS::Value::Dictionary& values);

    /// For who leaves nothing to be done later: synchronize() that waits for the lock anew, and for the last good
    /// copy.
    bool finish();

    /// Changes what is in the domain.
    using Edit = std::function<void(NS::Value::Dictionary& values)>;
    /// Has `edit` change what is in the domain on the user's behalf, at once and in one step: nobody writes between
    /// what it sees and what it leaves. Where that is something else the file is kept first, durably, under a name
    /// like a damaged one's, which is given; nothing else is kept. After a failure nothing of the edit stays.
    [[nodiscard]] Result<std::string> editKeepingFile(const Edit& edit);

    /// Whether the file, if there is one, can be read at all.
    [[nodiscard]] bool isAccessible();
    [[nodiscard]] const std::string& path() const { return m_file.path(); }

private:
    using Clock = DomainLock::Clock;

    enum class Outcome { Saved, LockBusy, Failed };
    struct Trouble {
        Outcome outcome;
        std::string what;
    };
    /// What was written here last.
    struct Uncopied {
        Snapshot::SharedContent content;
        /// The last good copy at that time. Another one is newer than what was written here.
        std::optional<FileStamp> backup;
        Clock::time_point since;
    };
    /// When a copy is brought to the disk: before the lock is taken, so that nobody is kept from writing, or under
    /// it, so that nobody writes meanwhile.
    enum class Copying { BeforeLock, UnderLock };
    enum class Copied { Done, LockBusy, Late };

    [[nodiscard]] std::optional<NS::Value> see(std::string_view key);
    void writeSoon(std::unique_lock<std::mutex> state);
    void writeNow();
    void copySoon(std::chrono::milliseconds delay);
    void copyNow();
    [[nodiscard]] bool post(void (Domain::*job)(), std::chrono::milliseconds delay);
    void refresh(std::unique_lock<std::mutex>& state);

    // These wait for other threads' writes, for the lock and for the disk; m_state must not be locked. Past the
    // deadline the lock is tried once and not waited for.
    [[nodiscard]] bool saveOrRetry();
    Outcome save(Clock::time_point deadline, std::string_view onFailure);
    Copied copy(Clock::time_point deadline, Copying copying);
    [[nodiscard]] Snapshot repair(Clock::time_point deadline);

    // For the holder of m_writing; on failure they fill `trouble`.
    [[nodiscard]] std::optional<Snapshot> write(const Changes& changes, const Snapshot::SharedContent& known,
                                                Clock::time_point deadline, Trouble& trouble);
    [[nodiscard]] std::optional<Snapshot> writeLocked(Snapshot found, const Changes& changes, Trouble& trouble);
    [[nodiscard]] std::optional<DomainLock::Hold> lockFiles(Clock::time_point deadline, Trouble& trouble);
    [[nodiscard]] Snapshot repairLocked(Snapshot found);
    [[nodiscard]] Snapshot withStandIn(Snapshot damaged, const std::string& trouble);
    [[nodiscard]] std::optional<Uncopied> uncopied();
    [[nodiscard]] bool isNewest(const std::optional<Uncopied>& uncopied) const;
    void setUncopied(Snapshot::SharedContent content);

    const std::shared_ptr<FileOperations> m_files;
    const std::shared_ptr<DelayedQueue> m_queue;
    const SettingsFile m_file;
    Complaints m_complaints;

    /// Taken first, by whoever makes a copy, so that none is half made when finish() returns.
    std::mutex m_copying;
    /// Taken before m_state, by whoever changes the files.
    std::mutex m_writing;
    DomainLock m_lock;
    /// It was waited for in vain, and not had since.
    bool m_lockIsKept = false;

    std::mutex m_state;
    Snapshot m_snapshot;
    Changes m_changes;
    /// What each key held when it was last read or set; not of those that were removed since.
    std::map<std::string, std::optional<NS::Value>, std::less<>> m_seen;
    /// Until the last good copy is made of it. Changed by the holder of m_writing.
    std::optional<Uncopied> m_uncopied;
    bool m_writeIsDue = false;
    bool m_copyIsDue = false;
    /// How many in a row the settings had outrun.
    int m_lateCopies = 0;
};

} // namespace LinuxDesktop
