#pragma once

#include "extension/actions/duplicates/GrowingArray.h"

#include <atomic>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <vector>

namespace MenuExtension {

/// Folders and the files in them, kept so small that there may be millions. One thread adds; others may read what
/// was there when they asked for filesSoFar().
class FileTree {
public:
    using FolderNumber = std::uint32_t;

    struct File {
        std::int64_t size;
        ino_t inode;
        std::uint64_t name;
        FolderNumber folder;
        std::uint32_t device;

        [[nodiscard]] bool isSameFile(const File& other) const
        {
            return inode == other.inode && device == other.device;
        }
    };

    FileTree() = default;
    ~FileTree() = default;
    FileTree(const FileTree&) = delete;
    FileTree& operator=(const FileTree&) = delete;

    /// A folder where a search begins. Nothing for one that is there already.
    std::optional<FolderNumber> addRoot(std::string_view path, const struct stat& status);
    /// The same for a folder in another.
    std::optional<FolderNumber> addFolder(FolderNumber parent, std::string_view name, const struct stat& status);
    /// A folder of which only the path is known, and which is therefore never there already.
    FolderNumber addPlace(std::string_view path);
    void addFile(FolderNumber folder, std::string_view name, const struct stat& status);

    [[nodiscard]] std::size_t filesSoFar() const { return m_published.load(std::memory_order_acquire); }
    /// The first of the files, which may be put in another order once nobody adds any more.
    [[nodiscard]] File* files() const { return m_files.data(); }
    /// Lets go of memory that is not needed for now.
    void rest() const;

    [[nodiscard]] std::optional<FolderNumber> parentOf(FolderNumber folder) const;
    /// The last component of its path; the whole path of a root.
    [[nodiscard]] const char* nameOf(FolderNumber folder) const { return m_names.data() + m_folders[folder].name; }
    [[nodiscard]] const char* nameOf(const File& file) const { return m_names.data() + file.name; }
    [[nodiscard]] std::string pathOf(FolderNumber folder) const;
    [[nodiscard]] std::string pathOf(const File& file) const;
    [[nodiscard]] dev_t deviceOf(const File& file) const { return m_devices[file.device]; }

private:
    static constexpr FolderNumber none = UINT32_MAX;

    struct Folder {
        std::uint64_t name;
        ino_t inode;
        std::uint32_t device;
        FolderNumber parent;
    };

    std::optional<FolderNumber> add(FolderNumber parent, std::string_view name, const struct stat& status);
    FolderNumber store(const Folder& folder);
    std::uint64_t storeName(std::string_view name);
    std::uint32_t deviceIndex(dev_t device);
    [[nodiscard]] std::size_t placeOf(const Folder& folder) const;
    void enlargeTable();

    Duplicates::GrowingArray<char> m_names;
    Duplicates::GrowingArray<Folder> m_folders;
    Duplicates::GrowingArray<File> m_files;
    std::atomic<std::size_t> m_published = 0;
    /// Numbers of folders by the hash of what they are; never more than half full.
    std::vector<FolderNumber> m_table;
    std::size_t m_inTable = 0;
    /// Fixed in its place, since others read it.
    Duplicates::GrowingArray<dev_t> m_devices;
};

} // namespace MenuExtension
