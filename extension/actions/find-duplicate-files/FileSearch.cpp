#include "extension/actions/find-duplicate-files/FileSearch.h"

#include "extension/actions/find-duplicate-files/FolderWalk.h"
#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"

#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <fcntl.h>
#include <mutex>
#include <sys/stat.h>
#include <thread>
#include <tuple>

namespace MenuExtension {

using Duplicates::Item;
using LinuxDesktop::FileDescriptor;
using std::chrono::milliseconds;

namespace {

/// How long folders are gone through before some of what is there already is compared.
constexpr milliseconds firstPause{60};
constexpr milliseconds timeAhead{60};
constexpr milliseconds betweenProgress{100};

constexpr std::size_t mostReadings = 16'384;
constexpr std::int64_t mostBytes = std::int64_t{256} << 20U;

/// What begins at one of the paths that were asked for.
void walkFrom(FolderWalk& walk, const FolderWalk::Trouble& trouble, const std::string& path,
              const FileSearch::OpenItem& openItem)
{
    const FileDescriptor item = openItem(path, O_PATH | O_NOFOLLOW);
    struct stat status = {};
    if (!item || ::fstat(item.get(), &status) != 0)
        return trouble(path, Words::cannotBeRead(errno));
    if (S_ISREG(status.st_mode))
        return walk.addFile(path, status);
    if (!S_ISDIR(status.st_mode))
        return trouble(path, S_ISLNK(status.st_mode)
                                 ? NS::LocalizedString("Duplicates", "is a link, and those are not followed")
                                 : NS::LocalizedString("Duplicates", "is neither a file nor a folder"));
    FileDescriptor folder = openItem(path, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK);
    if (!folder)
        return trouble(path, Words::cannotBeRead(errno));
    walk.addFolder(path, std::move(folder));
}

} // namespace

FileSearch::FileSearch(Duplicates::Findings& findings, Choices choices, std::stop_token stop)
    : m_findings(findings), m_choices(choices), m_stop(std::move(stop)),
      m_comparison(
          m_tree,
          [this](const std::string& path, const std::string& why) {
              if (!m_isLookingAhead)
                  m_findings.trouble(path, why);
          },
          [this](std::size_t bytes) { advance(bytes); }, m_stop)
{}

void FileSearch::run(const std::vector<std::string>& paths, const OpenItem& openItem)
{
    walk(paths, openItem);
    if (!m_hasLookedAhead)
        lookAhead();
    if (m_stop.stop_requested())
        return;
    sortFiles();
    compareAll();
}

void FileSearch::walk(const std::vector<std::string>& paths, const OpenItem& openItem)
{
    std::mutex mutex;
    std::condition_variable ended;
    bool hasEnded = false;
    const std::jthread walker([&] {
        const FolderWalk::Trouble trouble = [this](const std::string& path, const std::string& why) {
            m_findings.trouble(path, why);
        };
        FolderWalk walk(m_tree, m_choices, trouble, m_stop);
        for (const std::string& path : paths) {
            if (!m_stop.stop_requested())
                walkFrom(walk, trouble, path, openItem);
        }
        const std::scoped_lock lock(mutex);
        hasEnded = true;
        ended.notify_one();
    });
    std::unique_lock lock(mutex);
    for (milliseconds pause = firstPause; !ended.wait_for(lock, pause, [&] { return hasEnded; });
         pause = betweenProgress) {
        lock.unlock();
        if (!m_hasLookedAhead)
            lookAhead();
        m_findings.progress({.files = m_tree.filesSoFar(), .done = 0, .total = 0});
        lock.lock();
    }
    m_findings.progress({.files = m_tree.filesSoFar(), .done = 0, .total = 0});
}

/// Those of a size that several have, the largest first, and none that would take long.
FileSearch::Readings FileSearch::filesForLookAhead() const
{
    constexpr std::size_t mostLookedAt = 400'000;
    constexpr std::int64_t largest = std::int64_t{4} << 20U;
    std::vector<std::pair<std::int64_t, std::uint32_t>> sizes;
    const std::size_t count = std::min(m_tree.filesSoFar(), mostLookedAt);
    for (std::uint32_t file = 0; file < count; ++file) {
        if (m_tree.files()[file].size <= largest)
            sizes.emplace_back(-m_tree.files()[file].size, file);
    }
    std::ranges::sort(sizes);
    Readings readings;
    std::int64_t bytes = 0;
    for (std::size_t index = 0; index < sizes.size() && bytes < mostBytes / 4; ++index) {
        const auto isSameSize = [&](std::size_t other) {
            return other < sizes.size() && sizes[other].first == sizes[index].first;
        };
        if (!isSameSize(index + 1) && (index == 0 || !isSameSize(index - 1)))
            continue;
        readings.push_back({.file = sizes[index].second});
        bytes -= sizes[index].first;
    }
    return readings;
}

/// Finds some groups before all that there is to compare is known.
void FileSearch::lookAhead()
{
    m_hasLookedAhead = true;
    const auto deadline = Clock::now() + timeAhead;
    const Readings readings = filesForLookAhead();
    Readings part;
    std::size_t size = 16;
    for (std::size_t index = 0; index < readings.size() && Clock::now() < deadline; ++index) {
        part.push_back(readings[index]);
        const bool goesOn = index + 1 < readings.size() && m_tree.files()[readings[index + 1].file].size ==
                                                               m_tree.files()[readings[index].file].size;
        if ((part.size() < size || goesOn) && index + 1 < readings.size())
            continue;
        tellAhead(part);
        part.clear();
        size *= 2;
    }
}

void FileSearch::tellAhead(Readings& readings)
{
    // One file under several names is one.
    const auto identity = [this](const Reading& reading) { return identityOf(reading.file); };
    std::ranges::sort(readings, {}, identity);
    const auto isSame = [&](const Reading& one, const Reading& other) { return identity(one) == identity(other); };
    readings.erase(std::unique(readings.begin(), readings.end(), isSame), readings.end());
    m_isLookingAhead = true;
    m_comparison.read(readings, FileComparison::What::Whole);
    m_isLookingAhead = false;
    eachEqual(readings, [this](std::span<Reading> group) {
        std::vector<Item> items;
        for (const Reading& reading : group) {
            m_known.emplace(identityOf(reading.file), reading);
            items.push_back(itemOf(reading));
        }
        const std::uint64_t key = m_keys.size() + 1;
        m_keys.emplace(std::pair(group.front().state.size, group.front().digest), key);
        std::ranges::sort(items, {}, &Item::path);
        m_findings.found(key, std::move(items));
    });
}

void FileSearch::sortFiles()
{
    std::sort(m_tree.files(), m_tree.files() + m_tree.filesSoFar(),
              [](const FileTree::File& one, const FileTree::File& other) {
                  return std::tuple(other.size, one.device, one.inode, one.name) <
                         std::tuple(one.size, other.device, other.inode, other.name);
              });
    m_tree.rest();
}

void FileSearch::eachSameSize(const std::function<void(const SameSize&)>& take) const
{
    const FileTree::File* const files = m_tree.files();
    const std::size_t count = m_tree.filesSoFar();
    SameSize same;
    for (std::uint32_t file = 0; file < count && !m_stop.stop_requested(); ++file) {
        if (same.empty() || !files[file].isSameFile(files[same.back()]))
            same.push_back(file);
        if (file + 1 < count && files[file + 1].size == files[file].size)
            continue;
        if (same.size() > 1)
            take(same);
        same.clear();
    }
}

void FileSearch::compareAll()
{
    eachSameSize([this](const SameSize& same) {
        m_total += same.size() * static_cast<std::uint64_t>(m_tree.files()[same.front()].size);
    });
    m_done = 0;
    Readings readings;
    std::int64_t bytes = 0;
    eachSameSize([&](const SameSize& same) {
        for (const std::uint32_t file : same) {
            readings.push_back({.file = file});
            bytes += std::min(m_tree.files()[file].size, FileReader::smallSize);
        }
        if (readings.size() < mostReadings && bytes < mostBytes)
            return;
        compare(readings);
        readings.clear();
        bytes = 0;
    });
    compare(readings);
}

void FileSearch::compare(const Readings& readings)
{
    Readings large;
    Readings small;
    for (const Reading& reading : readings)
        (m_tree.files()[reading.file].size > FileReader::smallSize ? large : small).push_back(reading);
    compareEnds(large);
    compareWhole(small);
}

void FileSearch::compareEnds(Readings& readings)
{
    m_comparison.read(readings, FileComparison::What::Ends);
    std::uint64_t bytesLeft = 0;
    for (const Reading& reading : readings)
        bytesLeft += static_cast<std::uint64_t>(m_tree.files()[reading.file].size);
    Readings alike;
    std::int64_t bytes = 0;
    eachEqual(readings, [&](std::span<Reading> group) {
        for (const Reading& reading : group) {
            alike.push_back(reading);
            bytes += reading.state.size;
        }
        bytesLeft -= group.size() * static_cast<std::uint64_t>(group.front().state.size);
        if (bytes < mostBytes)
            return;
        compareWhole(alike);
        alike.clear();
        bytes = 0;
    });
    compareWhole(alike);
    advance(bytesLeft);
}

void FileSearch::compareWhole(Readings& readings)
{
    Readings known;
    Readings unknown;
    for (const Reading& reading : readings) {
        const auto found = m_known.find(identityOf(reading.file));
        if (found == m_known.end()) {
            unknown.push_back(reading);
            continue;
        }
        known.push_back(found->second);
        known.back().file = reading.file;
        advance(static_cast<std::uint64_t>(found->second.state.size));
    }
    m_comparison.read(unknown, FileComparison::What::Whole);
    known.insert(known.end(), unknown.begin(), unknown.end());
    tellGroups(known);
}

void FileSearch::tellGroups(Readings& readings)
{
    if (!m_stop.stop_requested())
        eachEqual(readings, [this](std::span<Reading> group) { tellGroup(group); });
}

void FileSearch::tellGroup(std::span<const Reading> group)
{
    const auto key = m_keys.find(std::pair(group.front().state.size, group.front().digest));
    std::vector<Item> items;
    for (const Reading& reading : group) {
        if (key == m_keys.end() || !m_known.contains(identityOf(reading.file)))
            items.push_back(itemOf(reading));
    }
    std::ranges::sort(items, {}, &Item::path);
    if (!items.empty())
        m_findings.found(key == m_keys.end() ? 0 : key->second, std::move(items));
}

Item FileSearch::itemOf(const Reading& reading) const
{
    return {.path = m_tree.pathOf(m_tree.files()[reading.file]), .state = reading.state};
}

bool FileSearch::areEqual(const Reading& one, const Reading& other)
{
    return one.state.size == other.state.size && one.digest == other.digest;
}

void FileSearch::eachEqual(Readings& readings, const std::function<void(std::span<Reading>)>& take)
{
    std::erase_if(readings, [](const Reading& reading) { return !reading.isRead; });
    std::ranges::sort(readings, [](const Reading& one, const Reading& other) {
        return std::tuple(other.state.size, one.digest) < std::tuple(one.state.size, other.digest);
    });
    for (auto begin = readings.begin(); begin != readings.end();) {
        const auto end =
            std::find_if_not(begin, readings.end(), [&](const Reading& other) { return areEqual(*begin, other); });
        if (end - begin > 1)
            take({begin, end});
        begin = end;
    }
}

void FileSearch::advance(std::uint64_t bytes)
{
    const std::uint64_t done = m_done.fetch_add(bytes) + bytes;
    const Clock::rep now = Clock::now().time_since_epoch().count();
    Clock::rep told = m_told.load();
    // Before all has been found that is to be compared, that is not known.
    if (m_total == 0 || now - told < Clock::duration(betweenProgress).count() ||
        !m_told.compare_exchange_strong(told, now))
        return;
    m_findings.progress({.files = m_tree.filesSoFar(), .done = std::min(done, m_total), .total = m_total});
}

FileSearch::Identity FileSearch::identityOf(std::uint32_t file) const
{
    const FileTree::File& one = m_tree.files()[file];
    return {m_tree.deviceOf(one), one.inode};
}

} // namespace MenuExtension
