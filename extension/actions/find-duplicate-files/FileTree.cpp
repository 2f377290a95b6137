#include "extension/actions/find-duplicate-files/FileTree.h"

#include <algorithm>
#include <span>

namespace MenuExtension {

std::optional<FileTree::FolderNumber> FileTree::addRoot(std::string_view path, const struct stat& status)
{
    return add(none, path, status);
}

std::optional<FileTree::FolderNumber> FileTree::addFolder(FolderNumber parent, std::string_view name,
                                                          const struct stat& status)
{
    return add(parent, name, status);
}

FileTree::FolderNumber FileTree::addPlace(std::string_view path)
{
    return store({.name = storeName(path), .inode = 0, .device = 0, .parent = none});
}

std::optional<FileTree::FolderNumber> FileTree::add(FolderNumber parent, std::string_view name,
                                                    const struct stat& status)
{
    if (2 * (m_inTable + 1) > m_table.size())
        enlargeTable();
    Folder folder{.name = 0, .inode = status.st_ino, .device = deviceIndex(status.st_dev), .parent = parent};
    const std::size_t place = placeOf(folder);
    if (m_table[place] != none)
        return std::nullopt;
    folder.name = storeName(name);
    m_table[place] = store(folder);
    ++m_inTable;
    return m_table[place];
}

FileTree::FolderNumber FileTree::store(const Folder& folder)
{
    return static_cast<FolderNumber>(m_folders.add(std::span(&folder, 1)));
}

/// Where the folder is in the table, or where it belongs.
std::size_t FileTree::placeOf(const Folder& folder) const
{
    std::uint64_t hash = (folder.inode + folder.device) * 0x9e3779b97f4a7c15U;
    hash ^= hash >> 32U;
    const std::size_t mask = m_table.size() - 1;
    for (std::size_t place = hash & mask;; place = (place + 1) & mask) {
        const FolderNumber there = m_table[place];
        if (there == none || (m_folders[there].inode == folder.inode && m_folders[there].device == folder.device))
            return place;
    }
}

void FileTree::enlargeTable()
{
    constexpr std::size_t smallest = 1024;
    const std::vector<FolderNumber> old =
        std::exchange(m_table, std::vector(std::max(smallest, 2 * m_table.size()), none));
    for (const FolderNumber folder : old) {
        if (folder != none)
            m_table[placeOf(m_folders[folder])] = folder;
    }
}

void FileTree::addFile(FolderNumber folder, std::string_view name, const struct stat& status)
{
    m_files.add({.size = status.st_size,
                 .inode = status.st_ino,
                 .name = storeName(name),
                 .folder = folder,
                 .device = deviceIndex(status.st_dev)});
    m_published.store(m_files.size(), std::memory_order_release);
}

std::uint64_t FileTree::storeName(std::string_view name)
{
    const std::uint64_t begin = m_names.add(std::span(name.data(), name.size()));
    m_names.add('\0');
    return begin;
}

std::uint32_t FileTree::deviceIndex(dev_t device)
{
    const dev_t* const found = std::ranges::find(m_devices, device);
    const auto index = static_cast<std::uint32_t>(found - m_devices.begin());
    if (index == m_devices.size())
        m_devices.add(device);
    return index;
}

void FileTree::rest() const
{
    m_names.rest();
    m_folders.rest();
    m_files.rest();
}

std::optional<FileTree::FolderNumber> FileTree::parentOf(FolderNumber folder) const
{
    const FolderNumber parent = m_folders[folder].parent;
    return parent == none ? std::nullopt : std::optional(parent);
}

std::string FileTree::pathOf(FolderNumber folder) const
{
    std::vector<FolderNumber> way{folder};
    while (const auto parent = parentOf(way.back()))
        way.push_back(*parent);
    std::string path;
    std::ranges::reverse(way);
    for (const FolderNumber step : way) {
        if (!path.empty() && !path.ends_with('/'))
            path += '/';
        path += nameOf(step);
    }
    return path;
}

std::string FileTree::pathOf(const File& file) const
{
    std::string path = pathOf(file.folder);
    if (!path.ends_with('/'))
        path += '/';
    return path += nameOf(file);
}

} // namespace MenuExtension
