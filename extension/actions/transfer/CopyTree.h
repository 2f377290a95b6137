#pragma once

#include "extension/actions/transfer/CopyAttributes.h"
#include "extension/actions/transfer/CopyData.h"
#include "extension/actions/transfer/Folder.h"
#include "extension/actions/transfer/Placing.h"
#include "extension/actions/transfer/Problem.h"
#include "extension/actions/transfer/Stamps.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <utility>

namespace MenuExtension::Transfers {

/// Copies items of every kind with all that is in them into a folder where nobody sees them yet. One thread.
class TreeCopier {
public:
    enum class Flush {
        /// Each file and folder, when it is whole.
        Each,
        /// Somebody does it for all of them.
        Later,
    };

    TreeCopier(SystemCalls& calls, Progress& progress, Problems& problems)
        : m_calls(calls), m_progress(progress), m_problems(problems), m_data(calls, progress), m_attributes(calls)
    {}

    void setFlush(Flush flush) { m_flush = flush; }

    /// Copies an item under a new name. What cannot be copied of a folder is noted in the problems and left out.
    /// False where nothing was made. A folder's copy can be moved by its owner, whatever the folder's permissions:
    /// finish() gives it those.
    [[nodiscard]] bool copy(const Folder& from, const std::string& name, int to, const std::string& newName);

    /// The permissions that the last copy gets where it is to stay; nothing where it has them.
    [[nodiscard]] std::optional<mode_t> finalMode() const { return m_finalMode; }

    /// Why nothing else can be copied either: a full disk, or that it was told to leave it; 0 where it can go on.
    [[nodiscard]] int fatalError() const { return m_fatalError; }

    /// Where the last copy lies: a folder that is open to the end, or AT_FDCWD, and a path from it. Who moves it
    /// notes that there, so that it is found when another name of a file in it comes.
    [[nodiscard]] const std::shared_ptr<Place>& place() const { return m_place; }

    /// Which files were copied since forgetCopied(), as they were then.
    [[nodiscard]] Stamps& copied() { return m_copied; }
    void forgetCopied() { m_copied.clear(); }
    /// Names that come later are files of their own.
    void forgetNames() { m_several.clear(); }

private:
    [[nodiscard]] bool copyItem(int from, const char* name, int to, const char* newName);
    [[nodiscard]] bool copyFile(int from, const char* name, int to, const char* newName, struct stat& source);
    [[nodiscard]] bool fillFile(const LinuxDesktop::FileDescriptor& from, struct stat& source,
                                const LinuxDesktop::FileDescriptor& to);
    [[nodiscard]] bool copyFolder(int from, const char* name, int to, const char* newName);
    [[nodiscard]] bool copySymbolicLink(int from, const char* name, int to, const char* newName,
                                        const struct stat& source);
    [[nodiscard]] bool copyNode(int to, const char* newName, const struct stat& source);
    [[nodiscard]] bool linkToCopy(const struct stat& source, int to, const char* newName);
    void rememberCopy(const struct stat& source, const char* name, const struct stat& copy);
    [[nodiscard]] bool flushed(int file);
    void note(const char* name, int error);
    void noteWithoutAttributes(const char* name);

    /// A size, and when it was changed last.
    using Version = std::tuple<off_t, time_t, long>;
    /// Of a file of several names.
    struct Copy {
        /// Of the item that it belongs to; the rest of its path.
        std::shared_ptr<const Place> place;
        std::string below;
        Version original;
        Version made;
        Identity identity;
        bool lacksAttributes;
        /// That were not copied yet.
        nlink_t namesLeft;
    };

    SystemCalls& m_calls;
    Progress& m_progress;
    Problems& m_problems;
    DataCopier m_data;
    AttributeCopier m_attributes;
    Stamps m_copied;
    /// Files of several names of which some are to come, by the folder that they were copied to: their first copies.
    std::map<std::tuple<int, dev_t, ino_t>, Copy> m_several;
    int m_root = -1;
    std::shared_ptr<Place> m_place;
    /// The number of the folder whose entries are copied.
    ino_t m_folder = 0;
    /// Of the original that is worked on, and how much of it is the whole item's.
    std::string m_path;
    std::size_t m_itemLength = 0;
    std::size_t m_depth = 0;
    /// What was copied last, if no folder, since the target has no room for them.
    bool m_lacksAttributes = false;
    std::optional<mode_t> m_finalMode;
    int m_fatalError = 0;
    Flush m_flush = Flush::Each;
};

} // namespace MenuExtension::Transfers
