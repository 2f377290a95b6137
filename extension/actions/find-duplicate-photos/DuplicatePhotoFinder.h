#pragma once

#include "Collection.h"
#include "PhotoReader.h"
#include "extension/actions/duplicates/Finder.h"
#include "extension/actions/find-duplicate-files/FileTree.h"
#include "platform/linux/system/FileDescriptor.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <stop_token>
#include <string>
#include <thread>
#include <unordered_map>
#include <utility>
#include <vector>

namespace MenuExtension::SimilarPhotos {

/// A picture's size in an item's detail.
struct Size {
    std::uint32_t width = 0;
    std::uint32_t height = 0;

    [[nodiscard]] std::uint64_t pixels() const { return std::uint64_t{width} * height; }
    [[nodiscard]] std::uint64_t detail() const { return std::uint64_t{width} << 32U | height; }
    [[nodiscard]] static Size of(const Duplicates::Item& item)
    {
        return {static_cast<std::uint32_t>(item.detail >> 32U), static_cast<std::uint32_t>(item.detail)};
    }
};

/// Finds photos that show the same, whatever size, format or turn they have. What it has read it keeps: a search with
/// another limit tells at once what is known, and goes on where the last one ended. One file under several names or
/// paths is one.
class DuplicatePhotoFinder : public Duplicates::Finder {
public:
    struct Means {
        /// Opens one of the paths that were asked for, or gives nothing, with errno. Any thread.
        std::function<LinuxDesktop::FileDescriptor(const std::string& path, int flags)> openItem;
        /// Opens an ordinary file for reading; nothing, with errno, for all else. Any thread.
        std::function<LinuxDesktop::FileDescriptor(const std::string& path)> openFile;
        /// The path of the worker's program.
        std::string worker;
        Photos::Limits limits = {};
    };

    /// Looks at files, and in folders at any depth.
    DuplicatePhotoFinder(std::vector<std::string> paths, Means means);
    ~DuplicatePhotoFinder() override;

    /// For the next search: how much pictures may differ, up to widestLimit. Any thread.
    void setLimit(float limit) { m_limit = limit; }
    /// Called at the end of a search that told groups before it knew all of them: the next tells them right.
    /// From the thread that finds.
    void whenOutdated(std::function<void()> call) { m_whenOutdated = std::move(call); }

    void find(Duplicates::Findings& findings, std::stop_token stop) override;

private:
    struct Photo {
        FileTree::File file;
        Duplicates::FileState state;
        Size size;
        bool isGone = false;
    };
    struct Search;

    void walk(const std::stop_token& stop);
    void walkFrom(const std::string& path, const std::stop_token& stop);
    void addTrouble(const std::string& path, const std::string& why);

    void tellKnown(Search& search);
    void readAll(Search& search, PhotoReader& reader);
    /// The next file to read; nothing at the end, or when a stop was requested.
    std::optional<std::uint32_t> nextFile(Search& search);
    /// False where a stop came first.
    bool readFile(std::uint32_t file, Search& search, PhotoReader& reader);
    void add(const Photo& photo, const Thumb& thumb, Search& search);
    void tellPair(const Resemblances::Pair& pair, Search& search);
    /// Of the photos that are there.
    [[nodiscard]] std::vector<std::vector<std::uint32_t>> groups(float limit);
    [[nodiscard]] bool isThere(const Photo& photo) const;
    /// Whether the groups are as they were told.
    [[nodiscard]] bool isToldRight(const Search& search);
    [[nodiscard]] Duplicates::Item itemOf(std::uint32_t photo) const;

    const std::vector<std::string> m_paths;
    const Means m_means;
    std::atomic<float> m_limit = usualLimit;
    std::function<void()> m_whenOutdated;
    std::vector<std::unique_ptr<PhotoReader>> m_readers;

    mutable std::mutex m_mutex;
    FileTree m_tree;
    bool m_hasWalked = false;
    std::condition_variable m_walkedOn;
    std::uint32_t m_next = 0;
    /// Files that a stop came upon.
    std::vector<std::uint32_t> m_again;
    /// Those that several names lead to.
    std::set<std::pair<dev_t, ino_t>> m_linked;
    std::vector<Photo> m_photos;
    Collection m_collection;
    std::vector<std::pair<std::string, std::string>> m_troubles;
    /// The search that is running.
    Search* m_search = nullptr;

    /// The last member, since it uses the others.
    std::jthread m_walker;
};

} // namespace MenuExtension::SimilarPhotos
