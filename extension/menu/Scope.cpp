#include "extension/menu/Scope.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <functional>
#include <iterator>
#include <utility>

namespace MenuExtension {

namespace {

constexpr char active = '+';
constexpr char inactive = '-';
constexpr char terminator = '\0';

/// Of the table, that a folder may be away from its home on average. One or two are usual; somebody who has chosen
/// paths that meet in one place would have the host go through all of them for each.
constexpr std::size_t mostSteps = 32;

std::string withSingleSlashes(std::string_view path)
{
    std::string text;
    std::ranges::unique_copy(path, std::back_inserter(text),
                             [](char one, char next) { return one == '/' && next == '/'; });
    return text;
}

std::string_view withoutSlashesAtEnd(std::string_view path)
{
    return path.substr(0, path.find_last_not_of('/') + 1);
}

/// The folder that a path without slashes at its end lies in, in the same form.
std::string_view folderAbove(std::string_view path)
{
    return withoutSlashesAtEnd(path.substr(0, path.rfind('/')));
}

std::size_t foldersIn(std::string_view bytes)
{
    return static_cast<std::size_t>(std::ranges::count(bytes, terminator));
}

bool areFolders(std::string_view bytes)
{
    while (!bytes.empty()) {
        if (bytes.front() != active && bytes.front() != inactive)
            return false;
        const std::size_t length = bytes.find(terminator);
        if (length == std::string_view::npos)
            return false;
        bytes.remove_prefix(length + 1);
    }
    return true;
}

} // namespace

std::string bytesOf(const std::vector<Folder>& folders)
{
    std::string bytes;
    for (const Folder& folder : folders) {
        if (folder.path.find(terminator) != std::string::npos || folder.path.size() >= PATH_MAX)
            continue;
        bytes += folder.active ? active : inactive;
        bytes.append(withSingleSlashes(folder.path)).push_back(terminator);
    }
    return bytes;
}

std::optional<Scope> Scope::fromBytes(std::string_view bytes)
{
    const std::size_t count = foldersIn(bytes);
    if (bytes.size() > mostBytes || count > mostFolders || !areFolders(bytes))
        return std::nullopt;
    Scope scope(std::string(bytes), count);
    return scope.m_table.empty() ? std::nullopt : std::optional(std::move(scope));
}

Scope::Scope(std::string bytes, std::size_t folderCount)
    : m_bytes(std::move(bytes)), m_table(std::bit_ceil(2 * folderCount + 1))
{
    if (!fillTable(folderCount))
        m_table.clear();
}

bool Scope::fillTable(std::size_t folderCount)
{
    std::size_t stepsLeft = mostSteps * folderCount;
    for (std::size_t begin = 1; begin < m_bytes.size();) {
        const std::size_t end = m_bytes.find(terminator, begin);
        if (m_bytes[begin] == '/' && end - begin < PATH_MAX) {
            const std::string_view folder = folderAt(begin);
            const std::size_t slot = slotOf(folder);
            const std::size_t steps = (slot - homeOf(folder)) & (m_table.size() - 1);
            if (steps > stepsLeft)
                return false;
            stepsLeft -= steps;
            if (m_table[slot] == 0)
                m_table[slot] = static_cast<std::uint32_t>(begin);
        }
        begin = end + 2;
    }
    return true;
}

std::optional<std::string_view> Scope::folderOfItem(std::string_view path) const
{
    const std::string_view item = withoutSlashesAtEnd(path);
    // The root lies in nothing.
    return item.starts_with('/') ? innermostFrom(folderAbove(item)) : std::nullopt;
}

std::optional<std::string_view> Scope::folderOfBackground(std::string_view folder) const
{
    return folder.starts_with('/') ? innermostFrom(withoutSlashesAtEnd(folder)) : std::nullopt;
}

std::optional<std::string_view> Scope::innermostFrom(std::string_view folder) const
{
    if (m_table.empty())
        return std::nullopt;
    if (folder.find("//") != std::string_view::npos)
        return innermostFrom(withSingleSlashes(folder));
    for (;; folder = folderAbove(folder)) {
        if (const std::size_t begin = m_table[slotOf(folder)]; begin != 0)
            return m_bytes[begin - 1] == active ? std::optional(folderAt(begin)) : std::nullopt;
        if (folder.empty())
            return std::nullopt;
    }
}

/// Where in the table a folder is looked for first.
std::size_t Scope::homeOf(std::string_view folder) const
{
    return std::hash<std::string_view>()(folder) & (m_table.size() - 1);
}

/// The folder's own, or the one that it would have. There is always one that is free.
std::size_t Scope::slotOf(std::string_view folder) const
{
    std::size_t slot = homeOf(folder);
    while (m_table[slot] != 0 && folderAt(m_table[slot]) != folder)
        slot = (slot + 1) & (m_table.size() - 1);
    return slot;
}

std::string_view Scope::folderAt(std::size_t begin) const
{
    return withoutSlashesAtEnd(m_bytes.c_str() + begin);
}

} // namespace MenuExtension
