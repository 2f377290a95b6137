#include "DuplicatePhotoFinder.h"

#include "extension/actions/find-duplicate-files/FolderWalk.h"
#include "extension/actions/support/Picture.h"
#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace MenuExtension::SimilarPhotos {

using Duplicates::FileState;
using Duplicates::Item;
using LinuxDesktop::FileDescriptor;

/// What one search tells, and to whom. Under the mutex but for what is said otherwise.
struct DuplicatePhotoFinder::Search {
    Duplicates::Findings& findings;
    const std::stop_token stop;
    const float limit;
    /// Under which key each photo was told.
    std::unordered_map<std::uint32_t, std::uint64_t> told = {};
    std::uint64_t lastKey = 0;
    std::chrono::steady_clock::time_point toldProgress = {};
};

namespace {

/// Whether it is called a picture, whatever it holds.
bool isNamedAsPicture(std::string_view path)
{
    using namespace std::string_view_literals;
    constexpr std::array endings{".jpg"sv,  ".jpeg"sv, ".png"sv, ".webp"sv, ".tif"sv, ".tiff"sv, ".heic"sv,
                                 ".heif"sv, ".avif"sv, ".gif"sv, ".jp2"sv,  ".jxl"sv, ".ppm"sv};
    return std::ranges::any_of(endings, [&](std::string_view ending) {
        return path.size() > ending.size() &&
               std::ranges::equal(path.substr(path.size() - ending.size()), ending, [](char one, char other) {
                   return (one >= 'A' && one <= 'Z' ? static_cast<char>(one - 'A' + 'a') : one) == other;
               });
    });
}

enum class Kind { Picture, Other, Unreadable };

Kind kindOf(int file)
{
    constexpr std::size_t lookedAt = 4096;
    std::array<char, lookedAt> beginning{};
    const ssize_t count = ::pread(file, beginning.data(), beginning.size(), 0);
    if (count < 0)
        return Kind::Unreadable;
    return beginsAsPicture({beginning.data(), static_cast<std::size_t>(count)}) ? Kind::Picture : Kind::Other;
}

} // namespace

DuplicatePhotoFinder::DuplicatePhotoFinder(std::vector<std::string> paths, Means means)
    : m_paths(std::move(paths)), m_means(std::move(means))
{
    const unsigned readers = std::max(1U, std::thread::hardware_concurrency());
    for (unsigned reader = 0; reader < readers; ++reader)
        m_readers.push_back(std::make_unique<PhotoReader>(m_means.worker, m_means.limits));
}

DuplicatePhotoFinder::~DuplicatePhotoFinder() = default;

void DuplicatePhotoFinder::find(Duplicates::Findings& findings, std::stop_token stop)
{
    if (!m_walker.joinable())
        m_walker = std::jthread([this](const std::stop_token& end) { walk(end); });
    Search search{.findings = findings, .stop = std::move(stop), .limit = m_limit};
    {
        const std::scoped_lock lock(m_mutex);
        m_search = &search;
        tellKnown(search);
    }
    const std::stop_callback wake(search.stop, [this] { m_walkedOn.notify_all(); });
    {
        std::vector<std::jthread> threads;
        for (const auto& reader : m_readers)
            threads.emplace_back([&] { readAll(search, *reader); });
    }
    bool isOutdated = false;
    {
        const std::scoped_lock lock(m_mutex);
        m_search = nullptr;
        isOutdated = !isToldRight(search);
    }
    if (isOutdated && !search.stop.stop_requested() && m_whenOutdated)
        m_whenOutdated();
}

void DuplicatePhotoFinder::walk(const std::stop_token& stop)
{
    const FolderWalk::Trouble trouble = [this](const std::string& path, const std::string& why) {
        addTrouble(path, why);
    };
    FolderWalk walk(m_tree, {}, trouble, stop);
    const auto walkFrom = [&](const std::string& path) {
        const FileDescriptor item = m_means.openItem(path, O_PATH | O_NOFOLLOW);
        struct stat status = {};
        if (!item || ::fstat(item.get(), &status) != 0)
            return addTrouble(path, Words::cannotBeRead(errno));
        if (S_ISREG(status.st_mode))
            return walk.addFile(path, status);
        if (!S_ISDIR(status.st_mode))
            return addTrouble(path, S_ISLNK(status.st_mode)
                                        ? NS::LocalizedString("Duplicates", "is a link, and those are not followed")
                                        : NS::LocalizedString("Duplicates", "is neither a file nor a folder"));
        FileDescriptor folder = m_means.openItem(path, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK);
        if (!folder)
            return addTrouble(path, Words::cannotBeRead(errno));
        walk.addFolder(path, std::move(folder));
    };
    for (const std::string& path : m_paths) {
        if (!stop.stop_requested())
            walkFrom(path);
    }
    const std::scoped_lock lock(m_mutex);
    m_hasWalked = true;
    m_walkedOn.notify_all();
}

void DuplicatePhotoFinder::addTrouble(const std::string& path, const std::string& why)
{
    const std::scoped_lock lock(m_mutex);
    m_troubles.emplace_back(path, why);
    if (m_search)
        m_search->findings.trouble(path, why);
}

void DuplicatePhotoFinder::tellKnown(Search& search)
{
    for (const auto& [path, why] : m_troubles)
        search.findings.trouble(path, why);
    // What was moved to the trash meanwhile is not told again.
    for (const auto& group : m_collection.resemblances().groups(search.limit)) {
        for (const std::uint32_t photo : group)
            m_photos[photo].isGone = !isThere(m_photos[photo]);
    }
    for (const auto& group : groups(search.limit)) {
        std::vector<Item> items;
        ++search.lastKey;
        for (const std::uint32_t photo : group) {
            items.push_back(itemOf(photo));
            search.told.emplace(photo, search.lastKey);
        }
        search.findings.found(search.lastKey, std::move(items));
    }
}

void DuplicatePhotoFinder::readAll(Search& search, PhotoReader& reader)
{
    while (const auto file = nextFile(search)) {
        if (!readFile(*file, search, reader)) {
            const std::scoped_lock lock(m_mutex);
            m_again.push_back(*file);
            return;
        }
    }
}

std::optional<std::uint32_t> DuplicatePhotoFinder::nextFile(Search& search)
{
    using namespace std::chrono_literals;
    constexpr auto betweenLooks = 10ms;
    constexpr auto betweenProgress = 100ms;
    std::unique_lock lock(m_mutex);
    for (;;) {
        if (search.stop.stop_requested())
            return std::nullopt;
        const std::uint64_t files = m_tree.filesSoFar();
        const auto now = std::chrono::steady_clock::now();
        if (now - search.toldProgress >= betweenProgress || (m_hasWalked && m_next == files)) {
            search.toldProgress = now;
            search.findings.progress(
                {.files = files, .done = m_next - m_again.size(), .total = m_hasWalked ? files : 0});
        }
        if (!m_again.empty()) {
            const std::uint32_t file = m_again.back();
            m_again.pop_back();
            return file;
        }
        if (m_next < files)
            return m_next++;
        if (m_hasWalked)
            return std::nullopt;
        // Nobody says that there is one more.
        m_walkedOn.wait_for(lock, betweenLooks);
    }
}

bool DuplicatePhotoFinder::readFile(std::uint32_t number, Search& search, PhotoReader& reader)
{
    const FileTree::File& file = m_tree.files()[number];
    const std::string path = m_tree.pathOf(file);
    const FileDescriptor opened = m_means.openFile(path);
    struct stat before = {};
    const Kind kind = opened && ::fstat(opened.get(), &before) == 0 ? kindOf(opened.get()) : Kind::Unreadable;
    if (kind == Kind::Unreadable) {
        // What is no picture by its name either is nobody's concern.
        if (isNamedAsPicture(path))
            addTrouble(path, Words::cannotBeRead(errno));
        return true;
    }
    if (kind == Kind::Other) {
        if (isNamedAsPicture(path))
            addTrouble(path, before.st_size == 0
                                 ? NS::LocalizedString("Duplicates", "is empty")
                                 : NS::LocalizedString("Duplicates", "is no picture, though it is named like one"));
        return true;
    }
    if (before.st_nlink > 1) {
        const std::scoped_lock lock(m_mutex);
        if (!m_linked.emplace(before.st_dev, before.st_ino).second)
            return true;
    }
    const auto result = reader.read(opened.get(), 0, search.stop);
    if (!result) {
        const std::scoped_lock lock(m_mutex);
        m_linked.erase({before.st_dev, before.st_ino});
        return false;
    }
    struct stat after = {};
    const auto* const described = std::get_if<Described>(&*result);
    if (::fstat(opened.get(), &after) != 0 || FileState::of(before) != FileState::of(after))
        addTrouble(path, NS::LocalizedString("Duplicates", "has changed while it was read"));
    else if (const auto* refused = std::get_if<Refused>(&*result))
        addTrouble(path, refused->why);
    else if (described)
        add({file, FileState::of(before), {described->width, described->height}}, described->thumb, search);
    return true;
}

void DuplicatePhotoFinder::add(const Photo& photo, const Thumb& thumb, Search& search)
{
    const std::scoped_lock lock(m_mutex);
    const auto number = static_cast<std::uint32_t>(m_photos.size());
    m_photos.push_back(photo);
    for (const auto& pair : m_collection.add(number, thumb)) {
        if (pair.difference <= search.limit)
            tellPair(pair, search);
    }
}

void DuplicatePhotoFinder::tellPair(const Resemblances::Pair& pair, Search& search)
{
    const auto one = search.told.find(pair.one);
    const auto other = search.told.find(pair.other);
    const bool isOneTold = one != search.told.end();
    const bool isOtherTold = other != search.told.end();
    // What belongs together in truth is known at the end.
    if ((isOneTold && isOtherTold) || m_photos[pair.one].isGone || m_photos[pair.other].isGone)
        return;
    std::vector<Item> items;
    const std::uint64_t key = isOneTold ? one->second : isOtherTold ? other->second : ++search.lastKey;
    for (const std::uint32_t photo : {pair.one, pair.other}) {
        if (search.told.emplace(photo, key).second)
            items.push_back(itemOf(photo));
    }
    search.findings.found(key, std::move(items));
}

std::vector<std::vector<std::uint32_t>> DuplicatePhotoFinder::groups(float limit)
{
    auto groups = m_collection.resemblances().groups(limit);
    for (auto& group : groups)
        std::erase_if(group, [this](std::uint32_t photo) { return m_photos[photo].isGone; });
    std::erase_if(groups, [](const auto& group) { return group.size() < 2; });
    return groups;
}

bool DuplicatePhotoFinder::isThere(const Photo& photo) const
{
    struct stat status = {};
    return ::lstat(m_tree.pathOf(photo.file).c_str(), &status) == 0 && FileState::of(status) == photo.state;
}

bool DuplicatePhotoFinder::isToldRight(const Search& search)
{
    std::size_t count = 0;
    std::set<std::uint64_t> keys;
    for (const auto& group : groups(search.limit)) {
        const auto keyOf = [&](std::uint32_t photo) {
            const auto told = search.told.find(photo);
            return told == search.told.end() ? 0 : told->second;
        };
        const std::uint64_t key = keyOf(group.front());
        count += group.size();
        if (!keys.insert(key).second ||
            !std::ranges::all_of(group, [&](std::uint32_t photo) { return keyOf(photo) == key; }))
            return false;
    }
    return count == search.told.size();
}

Item DuplicatePhotoFinder::itemOf(std::uint32_t number) const
{
    const Photo& photo = m_photos[number];
    return {.path = m_tree.pathOf(photo.file), .state = photo.state, .detail = photo.size.detail()};
}

} // namespace MenuExtension::SimilarPhotos
