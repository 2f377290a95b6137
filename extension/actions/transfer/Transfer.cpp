#include "extension/actions/transfer/Transfer.h"

#include "extension/actions/transfer/FolderEntries.h"
#include "extension/actions/transfer/RemoveTree.h"
#include "platform/linux/system/ParentFolder.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <unordered_set>
#include <utility>

namespace MenuExtension::Transfers {

namespace fs = std::filesystem;

using LinuxDesktop::FileDescriptor;
using LinuxDesktop::parentFolder;

namespace {

using Clock = std::chrono::steady_clock;

/// What has waited so long for its place is flushed and put there.
constexpr std::chrono::seconds longestWait{5};
constexpr std::size_t mostStaged = 10'000;
/// Each is open.
constexpr std::size_t mostFoldersStaged = 200;
constexpr std::size_t mostFoldersChanged = 64;
/// So few files are flushed by themselves: the disk may have more to write than what is theirs.
constexpr std::uint64_t fewFiles = 16;

std::string nameOf(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

/// Whether the next item would meet it too.
bool isFatal(int error)
{
    return error == ENOSPC || error == EDQUOT || error == EROFS || error == ECANCELED;
}

/// Whether a way leads over an item, or ends at it.
bool isOver(const struct stat& item, const fs::path& way)
{
    fs::path above;
    return std::ranges::any_of(way, [&](const fs::path& component) {
        struct stat status = {};
        above /= component;
        return ::lstat(above.c_str(), &status) == 0 && identityOf(status) == identityOf(item);
    });
}

/// Whether a link leads over the existing item, in whose place it would lead to itself.
bool isLinkOver(const struct stat& existing, fs::path link)
{
    constexpr int mostLinks = 40;
    std::error_code error;
    const fs::path end = fs::weakly_canonical(link, error);
    if (isOver(existing, end))
        return true;
    for (int count = 0; count < mostLinks && fs::is_symlink(link, error); ++count) {
        link = link.parent_path() / fs::read_symlink(link, error);
        if (isOver(existing, link))
            return true;
    }
    return false;
}

SharedPath shared(SharedPath& last, const std::string& path)
{
    if (!last || *last != path)
        last = std::make_shared<const std::string>(path);
    return last;
}

/// Whether it lies in a folder that is one of the items. What a link leads to stays.
bool goesWithAnother(const std::string& path, const std::unordered_set<std::string_view>& items)
{
    for (std::size_t end = path.find('/', 1); end != std::string::npos; end = path.find('/', end + 1)) {
        const std::string above = path.substr(0, end);
        struct stat status = {};
        if (items.contains(above) && ::lstat(above.c_str(), &status) == 0 && S_ISDIR(status.st_mode))
            return true;
    }
    return false;
}

} // namespace

std::vector<std::string> outermost(const std::vector<std::string>& paths)
{
    const std::unordered_set<std::string_view> items(paths.begin(), paths.end());
    std::unordered_set<std::string_view> met;
    std::vector<std::string> outer;
    for (const std::string& path : paths) {
        if (met.insert(path).second && !goesWithAnother(path, items))
            outer.push_back(path);
    }
    return outer;
}

Transfer::Transfer(SystemCalls& calls, StagingRecord& record, OpenFolderOf openFolderOf, Progress& progress,
                   Asked& asked)
    : m_calls(calls), m_record(record), m_openFolderOf(std::move(openFolderOf)), m_progress(progress), m_asked(asked),
      m_copier(calls, progress, m_result.problems), m_attributes(calls)
{}

std::string Transfer::firstPlaced() const
{
    for (const auto& step : m_journal) {
        if (const auto* placed = std::get_if<Placed>(&step))
            return (*placed->targetFolder == "/" ? "" : *placed->targetFolder) + '/' + placed->targetName;
    }
    return {};
}

Result Transfer::run(const Order& order)
{
    m_isMove = order.isMove;
    if (prepare(order)) {
        m_progress.phase = Progress::Phase::Working;
        m_lastCommit = Clock::now();
        for (std::size_t number = 0; number < order.items.size() && !m_isStopped && !m_progress.cancelled; ++number) {
            const Order::Item& item = order.items[number];
            if (m_isImpossible[number])
                continue;
            Task task{.source = folderOf(item.path), .name = nameOf(item.path), .target = m_target->folder()};
            task.newName = item.newName.empty() ? task.name : item.newName;
            task.isOuter = true;
            m_isPartLeft = false;
            if (!task.source || m_calls.status(task.source->get(), task.name.c_str(), task.status) != 0)
                m_result.problems.add({Problem::Kind::SourceUnusable, item.path, errno});
            else
                transfer(std::move(task));
            if (Clock::now() - m_lastCommit > longestWait)
                commit();
        }
        commit();
        // Where it cannot be said what is on the disk, that is said of the file system.
        if (!flushChanged())
            m_result.problems.add({Problem::Kind::NotTransferred, order.target, errno});
        removeEmptied();
    }
    m_copier.forgetNames();
    m_lastFolder.reset();
    // Else what was replaced is in there until it cannot be wanted back any more. A disk that has open folders cannot
    // be taken away.
    if (!hasReplaced()) {
        m_stagings.clear();
        m_target.reset();
    }
    m_result.isCancelled = m_progress.cancelled;
    m_result.isInPart = m_result.done == 0 && !m_journal.empty();
    return m_result;
}

bool Transfer::prepare(const Order& order)
{
    m_target = Target::open(m_calls, order.target);
    m_isImpossible.assign(order.items.size(), false);
    if (!m_target) {
        m_result.problems.add({Problem::Kind::TargetUnusable, order.target, errno});
        m_result.isRefused = true;
        return false;
    }
    Survey survey(m_calls, m_progress, *m_target, m_isMove, m_result.problems);
    std::size_t possible = 0;
    for (std::size_t number = 0; number < order.items.size() && !m_progress.cancelled; ++number) {
        m_isImpossible[number] = !lookAtItem(order.items[number], survey);
        possible += m_isImpossible[number] ? 0 : 1;
    }
    if (m_progress.cancelled)
        return false;
    m_flushesTogether = survey.files() > fewFiles && m_target->canBeFlushedAsAWhole();
    const bool fits = survey.room() == 0 || m_target->hasRoomFor(survey.room(), survey.files());
    if (!fits)
        m_result.problems.add({Problem::Kind::Full, order.target});
    m_result.isRefused = possible == 0 || !fits;
    if (m_result.isRefused || m_result.problems.empty())
        return !m_result.isRefused;
    if (!m_asked.goesOnWithout(m_result.problems)) {
        m_progress.cancelled = true;
        return false;
    }
    // They are known.
    m_result.problems = {};
    return true;
}

bool Transfer::lookAtItem(const Order::Item& item, Survey& survey)
{
    const auto refuse = [&](Problem::Kind kind, int error = 0) {
        m_result.problems.add({kind, item.path, error});
        return false;
    };
    const SharedFolder folder = folderOf(item.path);
    const std::string name = nameOf(item.path);
    const std::string& newName = item.newName.empty() ? name : item.newName;
    struct stat status = {};
    if (!folder || m_calls.status(folder->get(), name.c_str(), status) != 0)
        return refuse(Problem::Kind::SourceUnusable, errno);
    if (m_isMove && folder->identity == m_target->folder()->identity && name == newName)
        return refuse(Problem::Kind::AlreadyThere);
    if (S_ISDIR(status.st_mode) && m_target->liesIn(identityOf(status)))
        return refuse(Problem::Kind::IntoItself);
    if (newName.size() > m_target->longestName())
        return refuse(Problem::Kind::NameTooLong);
    if (m_isMove && ::faccessat(folder->get(), ".", W_OK | X_OK, AT_EACCESS) != 0)
        return refuse(Problem::Kind::CannotLeave, errno);
    struct stat folderStatus = {};
    if (m_isMove && m_calls.status(folder->get(), "", folderStatus) == 0 && isAnothers(status, folderStatus))
        return refuse(Problem::Kind::CannotLeave, EPERM);
    if (m_isMove && canRenameBetween(*folder, *m_target->folder())) {
        ++m_progress.totalFiles;
        return true;
    }
    // One whose name is taken may be left, or take the other's room.
    const bool takesRoom = m_calls.status(m_target->folder()->get(), newName.c_str(), status) != 0;
    return survey.look(*folder, name, takesRoom);
}

SharedFolder Transfer::folderOf(const std::string& item)
{
    std::string path = parentFolder(item);
    if (!m_lastFolder || m_lastFolder->path != path)
        m_lastFolder = shareFolder(m_calls, m_openFolderOf(item), std::move(path));
    return m_lastFolder;
}

void Transfer::transfer(Task task)
{
    const bool isInPlace = task.source->identity == task.target->identity && task.name == task.newName;
    struct stat existing = {};
    if (isInPlace) {
        task.resolution = Resolution::KeepBoth;
    } else if (m_calls.status(task.target->get(), task.newName.c_str(), existing) == 0) {
        if (!decide(task, existing, true))
            return;
    } else if (errno != ENOENT) {
        fail(task, errno);
        return;
    }
    if (task.resolution == Resolution::Merge)
        merge(task);
    else if (!m_isMove || task.status.st_dev != task.target->identity.device || !rename(task))
        stage(std::move(task));
}

bool Transfer::decide(Task& task, const struct stat& existing, bool canMerge)
{
    Conflict conflict{.source = {task.source->pathOf(task.name), task.status},
                      .target = {task.target->pathOf(task.newName), existing},
                      .canReplace =
                          !S_ISLNK(task.status.st_mode) || !isLinkOver(existing, task.source->pathOf(task.name))};
    const bool wasFolder = S_ISDIR(existing.st_mode);
    const bool isFolder = S_ISDIR(task.status.st_mode);
    if (wasFolder) {
        if (isFolder && identityOf(existing) == identityOf(task.status)) {
            m_result.problems.add({Problem::Kind::AlreadyThere, conflict.source.path});
            return false;
        }
        const auto above = foldersAbove(m_calls, task.source->get());
        conflict.canReplace &= std::ranges::find(above, identityOf(existing)) == above.end();
        conflict.canMerge = canMerge && isFolder && conflict.canReplace;
    }
    auto& forAll = m_forAll.at(isFolder != wasFolder ? 2 : isFolder ? 1 : 0);
    Resolution resolution = forAll.value_or(Resolution::Cancel);
    const bool isKnown = forAll && (resolution != Resolution::Replace || conflict.canReplace) &&
                         (resolution != Resolution::Merge || conflict.canMerge);
    if (!isKnown) {
        const Decision decision = m_asked.decide(conflict);
        resolution = decision.resolution;
        if (decision.forAll)
            forAll = resolution;
    }
    if (resolution == Resolution::Cancel)
        m_progress.cancelled = true;
    if (resolution == Resolution::Skip && task.isOuter)
        ++m_result.skipped;
    m_isPartLeft |= resolution == Resolution::Skip;
    task.resolution = resolution;
    task.existing = LinuxDesktop::FileStamp::of(existing);
    return resolution != Resolution::Cancel && resolution != Resolution::Skip;
}

void Transfer::merge(const Task& task)
{
    constexpr int flags = O_RDONLY | O_DIRECTORY;
    const SharedFolder source = shareFolder(m_calls, m_calls.open(task.source->get(), task.name.c_str(), flags),
                                            task.source->pathOf(task.name));
    const SharedFolder target =
        source ? shareFolder(m_calls, m_calls.open(task.target->get(), task.newName.c_str(), flags),
                             task.target->pathOf(task.newName))
               : nullptr;
    if (!target) {
        fail(task, errno);
        return;
    }
    Emptied emptied{.path = source->path, .status = std::make_shared<const struct stat>(task.status), .extended = {}};
    if (m_isMove)
        static_cast<void>(m_attributes.read(source->get(), emptied.extended));
    FolderEntries entries(m_calls, source->descriptor);
    while (const char* name = m_isStopped || m_progress.cancelled ? nullptr : entries.next()) {
        Task inner{.source = source, .name = name, .target = target, .newName = name};
        if (m_calls.status(source->get(), name, inner.status) != 0)
            fail(inner, errno);
        else if (!S_ISDIR(inner.status.st_mode) || !isStagingName(name))
            transfer(std::move(inner));
    }
    if (entries.error() != 0)
        fail(task, entries.error());
    if (m_isMove)
        m_toBeEmptied.push_back(std::move(emptied));
    if (task.isOuter && !m_isPartLeft && !m_isStopped && !m_progress.cancelled)
        ++m_result.done;
}

bool Transfer::rename(Task& task)
{
    std::optional<std::size_t> staging;
    std::string free;
    if (task.resolution == Resolution::Replace) {
        staging = stagingFor(task.target);
        if (!staging) {
            fail(task, errno);
            return true;
        }
        free = m_stagings[*staging].newName();
    }
    if (!place(task, {task.source->get(), task.name}, staging, free)) {
        if (errno == EXDEV)
            return false;
        if (errno != 0)
            fail(task, errno);
        return true;
    }
    notePlaced(task, true);
    noteChanged(task.source);
    ++m_progress.files;
    return true;
}

void Transfer::stage(Task task)
{
    const auto staging = stagingFor(task.target);
    if (!staging) {
        fail(task, errno);
        return;
    }
    Staging& folder = m_stagings[*staging];
    const bool flushesLater = m_flushesTogether && folder.device() == m_target->folder()->identity.device;
    m_copier.setFlush(flushesLater ? TreeCopier::Flush::Later : TreeCopier::Flush::Each);
    const std::string name = folder.newName();
    const bool isMade = m_copier.copy(*task.source, task.name, folder.get(), name);
    if (const int error = m_copier.fatalError(); error != 0) {
        static_cast<void>(removeTree(m_calls, folder.get(), name.c_str()));
        stop(error, task.source->pathOf(task.name));
        return;
    }
    if (!isMade)
        return;
    if (m_staged.empty() || m_staged.back().task.source != task.source || m_staged.back().task.target != task.target)
        ++m_foldersStaged;
    m_staged.push_back({std::move(task), name, *staging, m_copier.finalMode(), m_copier.place()});
    if (m_staged.size() >= mostStaged || m_foldersStaged >= mostFoldersStaged)
        commit();
}

void Transfer::commit()
{
    m_lastCommit = Clock::now();
    if (m_staged.empty())
        return;
    m_progress.phase = Progress::Phase::Flushing;
    std::size_t number = 0;
    if (!m_progress.cancelled && !flushStaged()) {
        const int error = errno;
        for (const Staged& staged : m_staged) {
            if (!m_isStopped)
                fail(staged.task, error);
        }
        m_isStopped = true;
    } else {
        for (; number < m_staged.size() && !m_progress.cancelled; ++number)
            placeStaged(number);
        if (!flushChanged()) {
            m_result.problems.add({Problem::Kind::NotTransferred, m_target->folder()->path, errno});
            m_isStopped = true;
        } else if (m_isMove) {
            removeOriginals();
        }
    }
    for (; number < m_staged.size(); ++number)
        drop(m_staged[number]);
    m_staged.clear();
    m_placed.clear();
    m_foldersStaged = 0;
    m_copier.forgetCopied();
    m_progress.phase = Progress::Phase::Working;
}

bool Transfer::flushStaged()
{
    if (!m_flushesTogether)
        return true;
    const dev_t device = m_target->folder()->identity.device;
    const auto staging = std::ranges::find(m_stagings, device, &Staging::device);
    return staging == m_stagings.end() || m_calls.flushFileSystem(staging->get()) == 0;
}

void Transfer::placeStaged(std::size_t number)
{
    Staged& staged = m_staged[number];
    Task& task = staged.task;
    const Place item{m_stagings[staged.staging].get(), staged.name};
    if (!place(task, item, staged.staging, staged.name)) {
        if (errno != 0)
            fail(task, errno);
        drop(staged);
        return;
    }
    if (staged.finalMode) {
        const FileDescriptor folder = m_calls.open(task.target->get(), task.newName.c_str(), O_RDONLY | O_DIRECTORY);
        if (!folder || m_calls.setMode(folder.get(), "", *staged.finalMode) != 0)
            m_result.problems.add({Problem::Kind::NotTransferred, task.source->pathOf(task.name), errno});
    }
    *staged.place = {AT_FDCWD, task.target->pathOf(task.newName)};
    m_placed.emplace_back(number, m_journal.size());
    notePlaced(task, false);
}

void Transfer::removeOriginals()
{
    for (const auto& [number, step] : m_placed) {
        const Task& task = m_staged[number].task;
        if (removeCopied(m_calls, *task.source, task.name, m_copier.copied()))
            std::get<Placed>(m_journal[step]).isMoved = true;
        else
            m_result.problems.add({Problem::Kind::NotRemoved, task.source->pathOf(task.name), errno});
    }
}

void Transfer::drop(const Staged& staged)
{
    static_cast<void>(removeTree(m_calls, m_stagings[staged.staging].get(), staged.name.c_str()));
}

bool Transfer::place(Task& task, const Place& item, const std::optional<std::size_t>& staging,
                     const std::string& free)
{
    const bool isFolder = S_ISDIR(task.status.st_mode);
    const Place target{task.target->get(), task.newName};
    if (task.resolution == Resolution::KeepBoth) {
        std::string name = placeBeside(m_calls, item, target, isFolder, m_target->longestName());
        if (name.empty())
            return false;
        task.newName = std::move(name);
        return true;
    }
    struct stat existing = {};
    if (task.resolution == Resolution::Replace && staging) {
        const bool isThere = m_calls.status(target.folder, target.name.c_str(), existing) == 0;
        if (isThere && LinuxDesktop::FileStamp::of(existing) != task.existing)
            return placeAnew(task, existing, item, staging, free);
        const bool wasFolder = isThere && S_ISDIR(existing.st_mode);
        const Place old{m_stagings[*staging].get(), free};
        const Replacing replacing = placeInstead(m_calls, item, target, isFolder, old);
        if (replacing == Replacing::Replaced)
            m_journal.emplace_back(Replaced{shared(m_lastTarget, task.target->path), task.newName, *staging, free,
                                            identityOf(existing), wasFolder});
        return replacing != Replacing::Failed;
    }
    if (placeNew(m_calls, item, target, isFolder))
        return true;
    // Somebody was quicker.
    if (errno != EEXIST || m_calls.status(target.folder, target.name.c_str(), existing) != 0)
        return false;
    return placeAnew(task, existing, item, staging, free);
}

bool Transfer::placeAnew(Task& task, const struct stat& existing, const Place& item,
                         const std::optional<std::size_t>& staging, const std::string& free)
{
    if (!decide(task, existing, false)) {
        errno = 0;
        return false;
    }
    if (task.resolution != Resolution::Replace || staging)
        return place(task, item, staging, free);
    const auto made = stagingFor(task.target);
    return made && place(task, item, made, m_stagings[*made].newName());
}

void Transfer::notePlaced(const Task& task, bool isMoved)
{
    // Some file systems give an item another number on its way.
    struct stat placed = {};
    if (m_calls.status(task.target->get(), task.newName.c_str(), placed) != 0)
        placed = {};
    m_journal.emplace_back(Placed{.sourceFolder = shared(m_lastSource, task.source->path),
                                  .sourceName = task.name,
                                  .targetFolder = shared(m_lastTarget, task.target->path),
                                  .targetName = task.newName,
                                  .identity = identityOf(placed),
                                  .isFolder = S_ISDIR(task.status.st_mode),
                                  .isMoved = isMoved});
    noteChanged(task.target);
    if (task.isOuter)
        ++m_result.done;
}

void Transfer::noteChanged(const SharedFolder& folder)
{
    const auto last = m_changed.size() < 2 ? m_changed.begin() : m_changed.end() - 2;
    if (std::find(last, m_changed.end(), folder) != m_changed.end())
        return;
    m_changed.push_back(folder);
    if (m_changed.size() > mostFoldersChanged && !flushChanged())
        m_result.problems.add({Problem::Kind::NotTransferred, folder->path, errno});
}

bool Transfer::flushChanged()
{
    bool isFlushed = true;
    int error = 0;
    for (const SharedFolder& folder : m_changed) {
        // The folder of an item was opened for nothing but to reach the item.
        const FileDescriptor opened = m_calls.open(folder->get(), "", O_RDONLY | O_DIRECTORY);
        if (m_calls.flush(opened ? opened.get() : folder->get()) != 0 && opened) {
            isFlushed = false;
            error = errno;
        }
    }
    m_changed.clear();
    errno = error;
    return isFlushed;
}

void Transfer::removeEmptied()
{
    for (Emptied& folder : m_toBeEmptied) {
        const FileDescriptor parent = m_openFolderOf(folder.path);
        // What was left in it keeps it.
        if (parent && m_calls.remove(parent.get(), nameOf(folder.path).c_str(), AT_REMOVEDIR) == 0)
            m_journal.emplace_back(std::move(folder));
    }
    m_toBeEmptied.clear();
}

std::optional<std::size_t> Transfer::stagingFor(const SharedFolder& target)
{
    const auto found =
        std::ranges::find_if(m_stagings, [&](const Staging& staging) { return staging.reaches(*target); });
    if (found != m_stagings.end())
        return static_cast<std::size_t>(found - m_stagings.begin());
    const SharedFolder& outer = m_target->folder();
    auto made = Staging::make(m_calls, canRenameBetween(*target, *outer) ? outer : target, m_record);
    if (!made)
        return std::nullopt;
    m_stagings.push_back(*std::move(made));
    return m_stagings.size() - 1;
}

void Transfer::fail(const Task& task, int error)
{
    if (isFatal(error))
        stop(error, task.source->pathOf(task.name));
    else
        m_result.problems.add({Problem::Kind::NotTransferred, task.source->pathOf(task.name), error});
}

void Transfer::stop(int error, const std::string& path)
{
    if (error == ENOSPC || error == EDQUOT)
        m_result.problems.add({Problem::Kind::Full, m_target->folder()->path, error});
    else if (error != ECANCELED)
        m_result.problems.add({Problem::Kind::NotTransferred, path, error});
    m_isStopped = true;
}

} // namespace MenuExtension::Transfers
