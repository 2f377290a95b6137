#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace MenuExtension {

/// A folder of the panel's list, by its absolute path.
struct Folder {
    std::string path;
    bool active = true;
    friend bool operator==(const Folder&, const Folder&) = default;
};

/// Where the actions are offered. Looking a path up takes a step for each of its components, however many folders
/// there are. Paths are bytes, compared by whole components; a slash at the end counts for nothing, and no link is
/// resolved. Any thread, once made.
class Scope {
public:
    Scope() = default;
    /// Of a folder that is listed twice the first counts. What is no absolute path contains nothing.
    explicit Scope(const std::vector<Folder>& folders);

    /// Whether the innermost listed folder that the item lies in is active. A listed folder does not lie in itself.
    [[nodiscard]] bool containsItem(std::string_view path) const;
    /// The same for a folder whose background was clicked, which counts as lying in itself.
    [[nodiscard]] bool containsBackground(std::string_view folder) const;

    /// The listed folder that decides about an item or a background; nothing where there is none or it is not active.
    [[nodiscard]] const std::string* folderOfItem(std::string_view path) const;
    [[nodiscard]] const std::string* folderOfBackground(std::string_view folder) const;

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view path) const { return std::hash<std::string_view>()(path); }
    };

    [[nodiscard]] const std::string* innermostFrom(std::string_view folder) const;

    /// Without slashes at the end, so that the root is empty.
    std::unordered_map<std::string, bool, Hash, std::equal_to<>> m_folders;
};

} // namespace MenuExtension
