#pragma once

#include "extension/actions/find-duplicate-files/Choices.h"
#include "extension/actions/find-duplicate-files/FileTree.h"
#include "platform/linux/system/FileDescriptor.h"

#include <cstddef>
#include <functional>
#include <stop_token>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace MenuExtension {

/// Collects the ordinary files in folders at any depth. No link is followed, each folder is entered once, by whatever
/// paths it can be reached; other file systems are entered too, but for those that hold no files of anybody.
class FolderWalk {
public:
    /// Says why an item is left out; the end of a sentence that begins with its name.
    using Trouble = std::function<void(const std::string& path, const std::string& why)>;

    FolderWalk(FileTree& tree, Choices choices, Trouble trouble, std::stop_token stop)
        : m_tree(tree), m_choices(choices), m_trouble(std::move(trouble)), m_stop(std::move(stop))
    {}

    /// Adds what is in an open folder.
    void addFolder(const std::string& path, LinuxDesktop::FileDescriptor folder);
    /// Adds one file, by its status.
    void addFile(const std::string& path, const struct stat& status);

private:
    struct OpenFolder {
        FileTree::FolderNumber number;
        dev_t device;
        LinuxDesktop::FileDescriptor descriptor;
    };
    struct Entry {
        ino_t inode;
        std::size_t name;
        unsigned char type;
    };
    /// The names in a folder, or some of them where there are very many.
    struct Listing {
        std::string names;
        std::vector<Entry> entries;
        std::unordered_set<std::string> hidden;
    };

    void enter(FileTree::FolderNumber folder);
    void list(const OpenFolder& folder);
    void take(const OpenFolder& folder, Listing& listing);
    void look(const OpenFolder& folder, const char* name);
    [[nodiscard]] bool isLeftOut(const Listing& listing, const char* name) const;
    [[nodiscard]] bool isOfSystem(FileTree::FolderNumber parent, std::string_view name) const;
    [[nodiscard]] LinuxDesktop::FileDescriptor open(FileTree::FolderNumber folder);
    void tell(FileTree::FolderNumber folder, const char* name, int error) const;

    FileTree& m_tree;
    const Choices m_choices;
    const Trouble m_trouble;
    const std::stop_token m_stop;
    /// Those that the folder at hand lies in, as far as they are open, the outermost first.
    std::vector<OpenFolder> m_way;
    /// Folders that are still to be entered, the next one last.
    std::vector<FileTree::FolderNumber> m_waiting;
};

} // namespace MenuExtension
