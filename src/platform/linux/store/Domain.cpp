#include "platform/linux/store/Domain.h"

#include "platform/FatalError.h"
#include "platform/linux/store/PropertyList.h"
#include "platform/linux/store/SettingsFolder.h"
#include "platform/linux/system/Complaint.h"

#include <cmath>
#include <utility>
#include <variant>

namespace LinuxDesktop {

namespace {

/// Long enough for what one action writes to go to the disk together; short, because another program may be about
/// to write the same key.
constexpr std::chrono::milliseconds writeDelay{20};
constexpr std::chrono::milliseconds retryDelay{100};
/// So that writes without a break are copied once in a while only, as copying keeps the disk busy.
constexpr std::chrono::milliseconds copyDelay{20};
/// A copy is brought to the disk before it is known whether it can be used.
constexpr std::chrono::milliseconds copyRetryDelay{1000};
constexpr int mostLateCopies = 25;

void requireStorable(std::string_view key)
{
    if (const auto reason = PropertyList::unstorableKeyReason(key))
        NS::fatalError("a key that cannot be stored: " + *reason);
}

} // namespace

Domain::Domain(std::shared_ptr<FileOperations> files, std::shared_ptr<DelayedQueue> queue, std::string folder,
               std::string_view name)
    : m_files(std::move(files)), m_queue(std::move(queue)), m_file(*m_files, std::move(folder), name),
      m_lock(*m_files, m_file.lockPath())
{}

/// What the key holds, as of the last refresh(), which whoever asked knows from now on.
std::optional<NS::Value> Domain::see(std::string_view key)
{
    auto value = m_changes.over(m_snapshot.values(), key);
    if (const auto seen = m_seen.find(key); seen != m_seen.end())
        seen->second = value;
    else
        m_seen.emplace(key, value);
    return value;
}

std::optional<NS::Value> Domain::objectForKey(std::string_view key)
{
    std::unique_lock state(m_state);
    refresh(state);
    return see(key);
}

void Domain::setObject_forKey(NS::Value value, std::string_view key)
{
    setObjects({{std::string(key), std::move(value)}});
}

void Domain::setObjects(const NS::Value::Dictionary& values)
{
    struct Checked {
        NS::Value value;
        std::string text;
    };
    std::vector<Checked> checked;
    checked.reserve(values.size());
    for (const auto& [key, given] : values) {
        requireStorable(key);
        const auto date = given.date();
        NS::Value value = date ? NS::Value(NS::Date{std::floor(date->timeIntervalSince1970)}) : given;
        auto text = PropertyList::textInRoot(value);
        if (!text)
            NS::fatalError("a value that cannot be stored: " + text.error());
        checked.push_back({std::move(value), std::move(*text)});
    }
    std::unique_lock state(m_state);
    auto next = checked.begin();
    for (const auto& [key, given] : values) {
        m_seen.insert_or_assign(key, next->value);
        m_changes.set(key, std::move(next->value), std::move(next->text));
        ++next;
    }
    writeSoon(std::move(state));
}

void Domain::removeObjectForKey(std::string_view key)
{
    requireStorable(key);
    std::unique_lock state(m_state);
    if (!m_seen.contains(key) && m_changes.isRemoved(key))
        return;
    // What was set and is not written yet hides another value, which it would have replaced.
    if (!m_seen.contains(key) || m_changes.isSet(key))
        refresh(state);
    if (!m_seen.contains(key))
        static_cast<void>(see(key));
    const auto seen = std::move(m_seen.extract(m_seen.find(key)).mapped());
    // Seen to be gone because another removal waits.
    if (!seen && m_changes.isRemoved(key))
        return;
    std::vector<NS::Value> meant;
    if (seen)
        meant.push_back(*seen);
    if (const auto held = m_snapshot.values().find(key); m_changes.isSet(key) && held != m_snapshot.values().end())
        meant.push_back(held->second);
    m_changes.remove(key, std::move(meant));
    writeSoon(std::move(state));
}

void Domain::replaceContents(const NS::Value::Dictionary& values)
{
    std::unique_lock state(m_state);
    m_changes.replaceAll(values);
    m_seen.clear();
    writeSoon(std::move(state));
}

std::optional<NS::Value::Dictionary> Domain::contents()
{
    std::unique_lock state(m_state);
    refresh(state);
    if (m_snapshot.state() == Snapshot::State::Absent && m_changes.empty())
        return std::nullopt;
    auto contents = m_changes.over(m_snapshot.values());
    for (const auto& [key, value] : contents)
        m_seen.insert_or_assign(key, value);
    return contents;
}

Result<std::string> Domain::editKeepingFile(const Edit& edit)
{
    const std::lock_guard writing(m_writing);
    Trouble trouble{};
    const auto hold = lockFiles(Clock::now() + DomainLock::longestWait, trouble);
    if (!hold)
        return Failure{trouble.what};
    Snapshot found = repairLocked(m_file.readPatiently());
    if (found.state() != Snapshot::State::Readable)
        return Failure{"could not read " + m_file.path()};
    Changes waiting;
    {
        const std::lock_guard state(m_state);
        waiting = m_changes;
    }
    const NS::Value::Dictionary before = waiting.over(found.values());
    NS::Value::Dictionary values = before;
    edit(values);
    if (PropertyList::identical(values, before))
        return std::string();

    auto kept = m_file.keep(found);
    if (!kept)
        return kept;
    Changes changes;
    changes.replaceAll(values);
    auto written = writeLocked(std::move(found), changes, trouble);
    if (!written)
        return Failure{trouble.what};
    const std::lock_guard state(m_state);
    m_snapshot = std::move(*written);
    m_changes.forget(waiting);
    return kept;
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
        if (!std::exchange(m_writeIsDue, false))
            return;
    }
    static_cast<void>(synchronize());
}

/// The caller of synchronize() waits for the settings only.
void Domain::copySoon(std::chrono::milliseconds delay)
{
    {
        const std::lock_guard state(m_state);
        if (!m_uncopied || std::exchange(m_copyIsDue, true))
            return;
    }
    if (post(&Domain::copyNow, delay))
        return;
    copy(Clock::now() + DomainLock::longestWait, Copying::UnderLock);
    const std::lock_guard state(m_state);
    m_copyIsDue = false;
}

void Domain::copyNow()
{
    auto copying = Copying::BeforeLock;
    bool isQuiet = true;
    {
        const std::lock_guard state(m_state);
        if (!std::exchange(m_copyIsDue, false))
            return;
        isQuiet = !m_uncopied || Clock::now() - m_uncopied->since >= copyDelay;
        // Who writes without a break is kept waiting in the end.
        if (m_lateCopies >= mostLateCopies)
            copying = Copying::UnderLock;
    }
    const Copied copied = isQuiet || copying == Copying::UnderLock ? copy(Clock::now(), copying) : Copied::Late;
    {
        const std::lock_guard state(m_state);
        m_lateCopies = copied == Copied::Late ? m_lateCopies + 1 : 0;
    }
    if (copied != Copied::Done)
        copySoon(copied == Copied::Late ? copyDelay : copyRetryDelay);
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
        copySoon(copyDelay);
    return saved;
}

bool Domain::finish()
{
    {
        const std::scoped_lock both(m_writing, m_state);
        m_lockIsKept = false;
        // What waits to be done later is done now.
        m_writeIsDue = false;
        m_copyIsDue = false;
    }
    const auto deadline = [] { return Clock::now() + DomainLock::longestWait; };
    const bool saved = save(deadline(), "; what was written is not stored") == Outcome::Saved;
    if (copy(deadline(), Copying::BeforeLock) == Copied::Late)
        copy(deadline(), Copying::UnderLock);
    return saved;
}

bool Domain::saveOrRetry()
{
    const Outcome outcome = save(Clock::now() + DomainLock::longestWait,
                                 "; what was written stays in memory while the program runs, and is tried again");
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
    const auto now = Clock::now();
    DomainLock::Attempt attempt = m_lock.acquire(m_lockIsKept ? now : deadline);
    if (auto* hold = std::get_if<DomainLock::Hold>(&attempt)) {
        m_lockIsKept = false;
        return std::move(*hold);
    }
    if (const auto* failure = std::get_if<Failure>(&attempt)) {
        trouble = {Outcome::Failed, failure->what};
        return std::nullopt;
    }
    m_lockIsKept = m_lockIsKept || now < deadline;
    trouble = {Outcome::LockBusy, "the settings lock " + m_lock.path() + " is held by another program"};
    return std::nullopt;
}

Snapshot Domain::withStandIn(Snapshot damaged, const std::string& trouble)
{
    const std::string why = damaged.why();
    if (const auto newest = uncopied(); isNewest(newest)) {
        damaged.standIn(newest->content);
    } else if (const Snapshot backup = m_file.readBackup(); backup.state() != Snapshot::State::Inaccessible) {
        damaged.standIn(backup.content());
    } else {
        damaged.becomeInaccessible(why + ", and its last good copy cannot be read: " + backup.why());
    }
    m_complaints.complain(m_file.path() + " is not a readable property list (" + why +
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
    if (const auto newest = uncopied(); isNewest(newest)) {
        auto copy = m_file.makeBackup(*newest->content);
        const auto placed = copy ? std::move(*copy).takePlace() : Failure{copy.error()};
        if (!placed)
            return withStandIn(std::move(found), placed.error());
    }
    setUncopied(nullptr);
    const auto outcome = m_file.setAside(found);
    if (!outcome)
        return withStandIn(std::move(found), outcome.error());
    complain(*outcome);
    return m_file.read();
}

/// A complaint ends with what a failure means for what was written.
Domain::Outcome Domain::save(Clock::time_point deadline, std::string_view onFailure)
{
    const std::lock_guard writing(m_writing);
    Changes changes;
    Snapshot::SharedContent known;
    {
        const std::lock_guard state(m_state);
        changes = m_changes;
        known = m_snapshot.content();
        if (changes.changeNothing()) {
            m_changes.forget(changes);
            return Outcome::Saved;
        }
    }

    Trouble trouble{};
    auto written = write(changes, known, deadline, trouble);
    if (!written) {
        m_complaints.complain(trouble.what, onFailure);
        return trouble.outcome;
    }
    m_complaints.allIsWell();
    const std::lock_guard state(m_state);
    m_snapshot = std::move(*written);
    m_changes.forget(changes);
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
    return hold ? writeLocked(repairLocked(m_file.readPatiently(known)), changes, trouble) : std::nullopt;
}

/// For the holder of the lock, who has found that in the file.
std::optional<Snapshot> Domain::writeLocked(Snapshot found, const Changes& changes, Trouble& trouble)
{
    if (found.state() == Snapshot::State::Damaged || found.state() == Snapshot::State::Inaccessible) {
        trouble.what = "could not read " + m_file.path() + ": " + found.why();
        return std::nullopt;
    }
    NS::Value::Dictionary values = changes.over(found.values());
    // Replaced contents are worth a file even when they are empty.
    const bool fileIsMissing = found.state() == Snapshot::State::Absent && changes.hidesFile();
    if (!fileIsMissing && PropertyList::identical(values, found.values())) {
        if (const auto failure = m_file.flush(found)) {
            trouble.what = failure->what;
            return std::nullopt;
        }
        // Whoever wrote it may have ended before the copy was made.
        if (found.content() && !uncopied() && m_file.readBackup(found.content()).content() != found.content())
            setUncopied(found.content());
        return found;
    }
    found.release();
    {
        const std::lock_guard state(m_state);
        m_snapshot.release();
    }
    auto written = m_file.replace(found, std::move(values), changes.texts());
    if (!written) {
        trouble.what = written.error();
        return std::nullopt;
    }
    setUncopied(written->content());
    return std::move(*written);
}

Domain::Copied Domain::copy(Clock::time_point deadline, Copying copying)
{
    const std::lock_guard inTurn(m_copying);
    const auto copied = uncopied();
    if (!copied)
        return Copied::Done;
    std::optional<Result<NewFile>> made;
    if (copying == Copying::BeforeLock)
        made.emplace(m_file.makeBackup(*copied->content));

    const std::lock_guard writing(m_writing);
    const auto newest = uncopied();
    if (!newest)
        return Copied::Done;
    if (made && newest->content != copied->content)
        return Copied::Late;
    Trouble trouble{};
    const auto hold = lockFiles(deadline, trouble);
    if (!hold)
        return trouble.outcome == Outcome::LockBusy ? Copied::LockBusy : Copied::Done;
    m_file.removeStaleTemporaries();
    const Snapshot found = m_file.read(newest->content);
    if (found.content() && found.content() != newest->content) {
        // Another program's newer settings are as good.
        setUncopied(found.content());
        if (made)
            return Copied::Late;
    } else if (!isNewest(newest)) {
        setUncopied(nullptr);
        return Copied::Done;
    }
    if (!made)
        made.emplace(m_file.makeBackup(found.content() ? *found.content() : *newest->content));
    // The settings themselves are safe; without a new copy there is still the one before.
    if (*made && std::move(**made).takePlace())
        setUncopied(nullptr);
    return Copied::Done;
}

std::optional<Domain::Uncopied> Domain::uncopied()
{
    const std::lock_guard state(m_state);
    return m_uncopied;
}

bool Domain::isNewest(const std::optional<Uncopied>& uncopied) const
{
    return uncopied && uncopied->backup == m_file.backupStamp();
}

/// For the holder of the lock. With null, a copy is there.
void Domain::setUncopied(Snapshot::SharedContent content)
{
    std::optional<Uncopied> uncopied;
    if (content)
        uncopied = Uncopied{std::move(content), m_file.backupStamp(), Clock::now()};
    const std::lock_guard state(m_state);
    m_uncopied = std::move(uncopied);
}

} // namespace LinuxDesktop
