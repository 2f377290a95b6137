#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace MenuExtension {

/// A folder of the panel's list, by its absolute path.
struct Folder {
    std::string path;
    bool active = true;
    friend bool operator==(const Folder&, const Folder&) = default;
};

/// As the companion publishes them, in their order: of each '+' where it is active and '-' where it is not, its path
/// with slashes in a row as one, and a zero. What is longer than the system takes is left out.
[[nodiscard]] std::string bytesOf(const std::vector<Folder>& folders);

/// Where the actions are offered. Looking a path up takes a step for each of its components, however many folders
/// there are. Paths are bytes, compared by whole components; a slash at the end counts for nothing, slashes in a
/// row for one, and no link is resolved. Any thread, once made.
class Scope {
public:
    Scope() = default;
    /// Of a folder that is listed twice the first counts. What is no absolute path, or longer than the
    /// system takes, contains nothing.
    explicit Scope(const std::vector<Folder>& folders) : Scope(bytesOf(folders), folders.size()) {}

    /// Of folders as they are published; whoever owns the companion's name may have done that. Nothing where the
    /// bytes are not of that form, of more folders than a person can have, or made to take long.
    [[nodiscard]] static std::optional<Scope> fromBytes(std::string_view bytes);
    static constexpr std::size_t mostBytes = std::size_t(16) << 20U;
    static constexpr std::size_t mostFolders = 100'000;

    /// Whether the innermost listed folder that the item lies in is active. A listed folder does not lie in itself.
    [[nodiscard]] bool containsItem(std::string_view path) const { return folderOfItem(path).has_value(); }
    /// The same for a folder whose background was clicked, which counts as lying in itself.
    [[nodiscard]] bool containsBackground(std::string_view folder) const
    {
        return folderOfBackground(folder).has_value();
    }

    /// The listed folder that decides about an item or a background, without slashes at its end, so that the root is
    /// empty; nothing where there is none or it is not active. For as long as the scope is there.
    [[nodiscard]] std::optional<std::string_view> folderOfItem(std::string_view path) const;
    [[nodiscard]] std::optional<std::string_view> folderOfBackground(std::string_view folder) const;

private:
    /// Of bytes that have their form and are of that many folders, or fewer.
    Scope(std::string bytes, std::size_t folderCount);
    /// False where that would take long for so many.
    [[nodiscard]] bool fillTable(std::size_t folderCount);
    [[nodiscard]] std::optional<std::string_view> innermostFrom(std::string_view folder) const;
    [[nodiscard]] std::size_t homeOf(std::string_view folder) const;
    [[nodiscard]] std::size_t slotOf(std::string_view folder) const;
    [[nodiscard]] std::string_view folderAt(std::size_t begin) const;

    // In the host's process, so there is no more of it than there has to be: the folders as they are published, and a
    // hash table of where their paths begin (open addressing, at most half full). No path begins at 0, which marks
    // what is free. Without a table nothing is contained.
    std::string m_bytes;
    std::vector<std::uint32_t> m_table;
};

} // namespace MenuExtension
