#include "platform/linux/store/Domain.h"

#include "platform/FatalError.h"
#include "platform/linux/store/PropertyList.h"
#include "platform/linux/store/SettingsFolder.h"

#include <utility>
#include <variant>

namespace LinuxDesktop {

namespace {

/// Long enough for what one action writes to go to the disk together; short, because another program may be about
/// to write the same key.
constexpr std::chrono::milliseconds writeDelay{20};
constexpr std::chrono::milliseconds retryDelay{1000};
/// So that writes without a break are tidied up after once in a while only.
constexpr std::chrono::milliseconds tidyDelay{20};

} // namespace

Domain::Domain(std::shared_ptr<FileOperations> files, std::shared_ptr<DelayedQueue> queue, std::string folder,
               std::string_view name)
    : m_files(std::move(files)), m_queue(std::move(queue)), m_file(*m_files, std::move(folder), name),
      m_lock(*m_files, m_file.lockPath())
{}

NS::Value::Dictionary Domain::Changes::over(const NS::Value::Dictionary& values) const
{
    NS::Value::Dictionary result;
    if (cleared == 0)
        result = values;
    for (const auto& [key, change] : keys) {
        if (change.value)
            result.insert_or_assign(key, *change.value);
        else
            result.erase(key);
    }
    return result;
}

std::optional<NS::Value> Domain::objectForKey(std::string_view key)
{
    std::unique_lock state(m_state);
    refresh(state);
    if (const auto change = m_changes.keys.find(key); change != m_changes.keys.end())
        return change->second.value;
    if (m_changes.cleared != 0)
        return std::nullopt;
    const auto& values = m_snapshot.values();
    const auto found = values.find(key);
    return found == values.end() ? std::nullopt : std::optional(found->second);
}

void Domain::setObject_forKey(NS::Value value, std::string_view key)
{
    if (const auto reason = PropertyList::unstorableReason(value))
        NS::fatalError("a value that cannot be stored: " + *reason);
    change(key, PropertyList::inWholeSeconds(std::move(value)));
}

void Domain::removeObjectForKey(std::string_view key)
{
    change(key, std::nullopt);
}

void Domain::change(std::string_view key, std::optional<NS::Value> value)
{
    if (const auto reason = PropertyList::unstorableKeyReason(key))
        NS::fatalError("a key that cannot be stored: " + *reason);
    std::unique_lock state(m_state);
    m_changes.keys.insert_or_assign(std::string(key), Change{std::move(value), ++m_serial});
    writeSoon(std::move(state));
}

void Domain::replaceContents(const NS::Value::Dictionary& values)
{
    Changes changes;
    std::unique_lock state(m_state);
    changes.cleared = ++m_serial;
    for (const auto& [key, value] : values)
        changes.keys.emplace(key, Change{PropertyList::inWholeSeconds(value), m_serial});
    m_changes = std::move(changes);
    writeSoon(std::move(state));
}

std::optional<NS::Value::Dictionary> Domain::contents()
{
    std::unique_lock state(m_state);
    refresh(state);
    if (m_snapshot.state() == Snapshot::State::Absent && m_changes.empty())
        return std::nullopt;
    return m_changes.over(m_snapshot.values());
}

bool Domain::isAccessible()
{
    std::unique_lock state(m_state);
    refresh(state);
    return m_snapshot.state() != Snapshot::State::Inaccessible;
}

void Domain::writeSoon(std::unique_lock<std::mutex> state)
{
    if (std::exchange(m_writeIsDue, true))
        return;
    state.unlock();
    if (!post(&Domain::writeNow, writeDelay))
        writeNow();
}

void Domain::writeNow()
{
    {
        const std::lock_guard state(m_state);
        m_writeIsDue = false;
    }
    if (saveOrRetry())
        tidy();
}

/// The caller of synchronize() waits for the settings only.
void Domain::tidySoon()
{
    {
        const std::lock_guard state(m_state);
        if (!m_uncopied || std::exchange(m_tidyingIsDue, true))
            return;
    }
    if (!post(&Domain::tidy, tidyDelay))
        tidy();
}

/// False once the store is gone: then nothing is done later.
bool Domain::post(void (Domain::*job)(), std::chrono::milliseconds delay)
{
    return m_queue->post(
        [weak = weak_from_this(), job] {
            if (const auto self = weak.lock())
                (self.get()->*job)();
        },
        delay);
}

bool Domain::synchronize()
{
    const bool saved = saveOrRetry();
    if (saved)
        tidySoon();
    return saved;
}

bool Domain::saveOrRetry()
{
    const Outcome outcome = save(Clock::now() + DomainLock::longestWait);
    if (outcome == Outcome::LockBusy) {
        const std::lock_guard state(m_state);
        if (!m_writeIsDue)
            m_writeIsDue = post(&Domain::writeNow, retryDelay);
    }
    return outcome == Outcome::Saved;
}

/// Brings m_snapshot up to the file. Unlocks `state` for a while where a damaged file has to be repaired.
void Domain::refresh(std::unique_lock<std::mutex>& state)
{
    if (m_snapshot.isCurrent(m_file.path()))
        return;
    Snapshot found = m_file.read(m_snapshot.content());
    if (found.state() == Snapshot::State::Damaged) {
        // A damaged file that is still there could not be set aside; the next write tries that again.
        if (m_snapshot.state() == Snapshot::State::Damaged && m_snapshot.version() == found.version()) {
            m_snapshot.settleLike(found);
            return;
        }
        state.unlock();
        found = repair(Clock::now() + DomainLock::longestWait);
        state.lock();
    }
    if (found.state() == Snapshot::State::Inaccessible)
        found.standIn(m_snapshot.content());
    m_snapshot = std::move(found);
}

std::optional<DomainLock::Hold> Domain::lockFiles(Clock::time_point deadline, Trouble& trouble)
{
    DomainLock::Attempt attempt = m_lock.acquire(deadline);
    if (auto* hold = std::get_if<DomainLock::Hold>(&attempt))
        return std::move(*hold);
    if (const auto* failure = std::get_if<Failure>(&attempt))
        trouble = {Outcome::Failed, failure->what};
    else
        trouble = {Outcome::LockBusy, "the settings lock " + m_lock.path() + " is held by another program"};
    return std::nullopt;
}

Snapshot Domain::withStandIn(Snapshot damaged, const std::string& trouble)
{
    const auto newest = uncopied();
    damaged.standIn(newest ? newest : m_file.readBackup().content());
    m_complaints.complain(m_file.path() + " is not a readable property list (" + damaged.why() +
                          ") and could not be set aside: " + trouble +
                          "; it is left as it is, and the last good copy is used where there is one");
    return damaged;
}

Snapshot Domain::repair(Clock::time_point deadline)
{
    const std::lock_guard writing(m_writing);
    Snapshot found = m_file.readPatiently();
    if (found.state() != Snapshot::State::Damaged)
        return found;
    Trouble trouble{};
    const auto hold = lockFiles(deadline, trouble);
    return hold ? repairLocked(m_file.read()) : withStandIn(std::move(found), trouble.what);
}

/// For the holder of the lock: what the file holds, once a damaged one is set aside.
Snapshot Domain::repairLocked(Snapshot found)
{
    if (found.state() != Snapshot::State::Damaged)
        return found;
    if (const auto newest = uncopied())
        copy(*newest);
    const auto outcome = m_file.setAside(found);
    if (!outcome)
        return withStandIn(std::move(found), outcome.error());
    report(*outcome);
    return m_file.read();
}

Domain::Outcome Domain::save(Clock::time_point deadline)
{
    const std::lock_guard writing(m_writing);
    Changes changes;
    Snapshot::SharedContent known;
    std::uint64_t serial = 0;
    {
        const std::lock_guard state(m_state);
        if (m_changes.empty())
            return Outcome::Saved;
        changes = m_changes;
        known = m_snapshot.content();
        serial = m_serial;
    }

    Trouble trouble{};
    auto written = write(changes, known, deadline, trouble);
    if (!written) {
        m_complaints.complain(trouble.what +
                              "; what was written stays in memory while the program runs, and is tried again");
        return trouble.outcome;
    }
    m_complaints.allIsWell();
    const std::lock_guard state(m_state);
    m_snapshot = std::move(*written);
    std::erase_if(m_changes.keys, [&](const auto& entry) { return entry.second.serial <= serial; });
    if (m_changes.cleared <= serial)
        m_changes.cleared = 0;
    return Outcome::Saved;
}

std::optional<Snapshot> Domain::write(const Changes& changes, const Snapshot::SharedContent& known,
                                      Clock::time_point deadline, Trouble& trouble)
{
    trouble.outcome = Outcome::Failed;
    if (const auto failure = makeFolders(*m_files, m_file.folder())) {
        trouble.what = failure->what;
        return std::nullopt;
    }
    const auto hold = lockFiles(deadline, trouble);
    if (!hold)
        return std::nullopt;

    Snapshot found = repairLocked(m_file.readPatiently(known));
    if (found.state() == Snapshot::State::Damaged || found.state() == Snapshot::State::Inaccessible) {
        trouble.what = "could not read " + m_file.path() + ": " + found.why();
        return std::nullopt;
    }
    NS::Value::Dictionary values = changes.over(found.values());
    // Replaced contents are worth a file even when they are empty.
    const bool fileIsMissing = found.state() == Snapshot::State::Absent && changes.cleared != 0;
    if (!fileIsMissing && PropertyList::identical(values, found.values())) {
        if (const auto failure = m_file.flush(found)) {
            trouble.what = failure->what;
            return std::nullopt;
        }
        return found;
    }
    found.release();
    {
        const std::lock_guard state(m_state);
        m_snapshot.release();
    }
    auto written = m_file.replace(found, std::move(values));
    if (!written) {
        trouble.what = written.error();
        return std::nullopt;
    }
    const std::lock_guard state(m_state);
    m_uncopied = written->content();
    return std::move(*written);
}

void Domain::tidy()
{
    const std::lock_guard writing(m_writing);
    {
        const std::lock_guard state(m_state);
        m_tidyingIsDue = false;
    }
    const auto written = uncopied();
    if (!written)
        return;
    // Whoever has the lock now writes, and tidies up after that; else the next write here does.
    Trouble busy{};
    const auto hold = lockFiles(Clock::now(), busy);
    if (!hold)
        return;
    // Another program's newer settings are as good; damage is for the next reader.
    const Snapshot found = m_file.read(written);
    copy(found.content() ? *found.content() : *written);
}

Snapshot::SharedContent Domain::uncopied()
{
    const std::lock_guard state(m_state);
    return m_uncopied;
}

/// For the holder of the lock.
void Domain::copy(const Snapshot::Content& newest)
{
    m_file.tidy(newest);
    const std::lock_guard state(m_state);
    m_uncopied = nullptr;
}

} // namespace LinuxDesktop
