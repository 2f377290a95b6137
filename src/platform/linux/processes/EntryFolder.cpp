#include "platform/linux/processes/EntryFolder.h"

#include "platform/linux/system/FolderStream.h"

#include <algorithm>
#include <string_view>
#include <sys/stat.h>
#include <utility>

namespace LinuxDesktop {

namespace {

constexpr int mostFolders = 1'000;
constexpr int mostNames = 100'000;
constexpr std::string_view suffix = ".desktop";

struct Name {
    std::string text;
    unsigned char type;
};

bool isFolder(const std::string& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

class Listing {
public:
    Listing(EntryFolder& result, ChangedFolders& changes) : m_result(result), m_changes(changes) {}

    void enter(const std::string& folder, const std::string& prefix)
    {
        if (m_foldersLeft == 0)
            return;
        --m_foldersLeft;
        const FolderStream stream = openFolder(folder);
        struct stat status = {};
        if (!stream || ::fstat(::dirfd(stream.get()), &status) != 0)
            return;
        const std::pair identity(status.st_dev, status.st_ino);
        if (std::ranges::find(m_entered, identity) != m_entered.end())
            return;
        m_entered.push_back(identity);
        m_changes.watch(folder);
        for (const Name& name : namesIn(*stream))
            take(name, folder + '/' + name.text, prefix);
        m_entered.pop_back();
    }

private:
    std::vector<Name> namesIn(DIR& stream)
    {
        std::vector<Name> names;
        while (m_namesLeft > 0) {
            const dirent* entry = ::readdir(&stream);
            if (!entry)
                break;
            --m_namesLeft;
            const std::string_view text = entry->d_name;
            if (text != "." && text != "..")
                names.push_back({std::string(text), entry->d_type});
        }
        std::ranges::sort(names, {}, &Name::text);
        return names;
    }

    void take(const Name& name, const std::string& path, const std::string& prefix)
    {
        const bool maybeLink = name.type == DT_LNK || name.type == DT_UNKNOWN;
        if (name.text.ends_with(suffix) && name.type != DT_DIR) {
            const std::size_t length = name.text.size() - suffix.size();
            m_result.entries.push_back({prefix + name.text.substr(0, length), path, maybeLink});
            return;
        }
        if (maybeLink)
            m_result.folderLinks.push_back(path);
        if (name.type == DT_DIR || (maybeLink && isFolder(path)))
            enter(path, prefix + name.text + '-');
    }

    EntryFolder& m_result;
    ChangedFolders& m_changes;
    /// The folder that is read, and those above it.
    std::vector<std::pair<dev_t, ino_t>> m_entered;
    int m_foldersLeft = mostFolders;
    int m_namesLeft = mostNames;
};

} // namespace

EntryFolder EntryFolder::list(const std::string& folder, ChangedFolders& changes)
{
    EntryFolder result;
    Listing(result, changes).enter(folder, "");
    return result;
}

} // namespace LinuxDesktop
