#include "extension/menu/Scope.h"

namespace MenuExtension {

namespace {

std::string_view withoutSlashesAtEnd(std::string_view path)
{
    return path.substr(0, path.find_last_not_of('/') + 1);
}

/// The folder that a path without slashes at its end lies in, in the same form.
std::string_view folderAbove(std::string_view path)
{
    return withoutSlashesAtEnd(path.substr(0, path.rfind('/')));
}

} // namespace

Scope::Scope(const std::vector<Folder>& folders)
{
    m_folders.reserve(folders.size());
    for (const Folder& folder : folders) {
        if (folder.path.starts_with('/'))
            m_folders.emplace(withoutSlashesAtEnd(folder.path), folder.active);
    }
}

bool Scope::containsItem(std::string_view path) const
{
    return folderOfItem(path) != nullptr;
}

bool Scope::containsBackground(std::string_view folder) const
{
    return folderOfBackground(folder) != nullptr;
}

const std::string* Scope::folderOfItem(std::string_view path) const
{
    const std::string_view item = withoutSlashesAtEnd(path);
    // The root lies in nothing.
    return item.starts_with('/') ? innermostFrom(folderAbove(item)) : nullptr;
}

const std::string* Scope::folderOfBackground(std::string_view folder) const
{
    return folder.starts_with('/') ? innermostFrom(withoutSlashesAtEnd(folder)) : nullptr;
}

const std::string* Scope::innermostFrom(std::string_view folder) const
{
    for (;; folder = folderAbove(folder)) {
        if (const auto found = m_folders.find(folder); found != m_folders.end())
            return found->second ? &found->first : nullptr;
        if (folder.empty())
            return nullptr;
    }
}

} // namespace MenuExtension
