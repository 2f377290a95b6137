#include "extension/actions/transfer/RemoveTree.h"

#include "extension/actions/transfer/FolderEntries.h"
#include "extension/actions/transfer/Staging.h"

#include <cerrno>
#include <fcntl.h>

namespace MenuExtension::Transfers {

namespace {

class TreeRemover {
public:
    /// Removes all where `copied` is null.
    TreeRemover(SystemCalls& calls, Stamps* copied) : m_calls(calls), m_copied(copied) {}

    /// `inFolder` is the folder's number on its file system.
    void remove(int folder, ino_t inFolder, const char* name)
    {
        struct stat status = {};
        if (m_calls.status(folder, name, status) != 0) {
            if (errno != ENOENT)
                note(errno);
        } else if (m_copied &&
                   (S_ISDIR(status.st_mode) ? isStagingName(name) : !m_copied->contains(status, inFolder, name))) {
            note(EBUSY);
        } else if (S_ISDIR(status.st_mode)) {
            removeFolder(folder, name, status);
        } else if (m_calls.remove(folder, name, 0) != 0) {
            note(errno);
        }
    }

    [[nodiscard]] int error() const { return m_error; }

private:
    void removeFolder(int folder, const char* name, const struct stat& status)
    {
        // Nothing that is empty, or was just emptied, is looked into.
        if (m_calls.remove(folder, name, AT_REMOVEDIR) == 0)
            return;
        if (errno != ENOTEMPTY && errno != EEXIST) {
            note(errno);
            return;
        }
        LinuxDesktop::FileDescriptor opened = m_calls.open(folder, name, O_RDONLY | O_DIRECTORY);
        if (!m_copied && (status.st_mode & S_IRWXU) != S_IRWXU)
            opened = withAllRights(folder, name, std::move(opened));
        if (!opened) {
            note(errno);
            return;
        }
        FolderEntries entries(m_calls, opened);
        while (const char* entry = entries.next())
            remove(opened.get(), status.st_ino, entry);
        if (entries.error() != 0)
            note(entries.error());
        if (m_calls.remove(folder, name, AT_REMOVEDIR) != 0)
            note(errno == ENOTEMPTY || errno == EEXIST ? EBUSY : errno);
    }

    LinuxDesktop::FileDescriptor withAllRights(int folder, const char* name, LinuxDesktop::FileDescriptor opened)
    {
        if (opened) {
            static_cast<void>(m_calls.setMode(opened.get(), "", S_IRWXU));
            return opened;
        }
        // Its owner may not even open it.
        if (m_calls.setMode(folder, name, S_IRWXU) != 0)
            return {};
        return m_calls.open(folder, name, O_RDONLY | O_DIRECTORY);
    }

    void note(int error)
    {
        if (m_error == 0)
            m_error = error;
    }

    SystemCalls& m_calls;
    Stamps* m_copied;
    int m_error = 0;
};

bool result(const TreeRemover& remover)
{
    errno = remover.error();
    return remover.error() == 0;
}

} // namespace

bool removeTree(SystemCalls& calls, int folder, const char* name)
{
    TreeRemover remover(calls, nullptr);
    remover.remove(folder, 0, name);
    return result(remover);
}

bool removeCopied(SystemCalls& calls, const Folder& folder, const std::string& name, Stamps& copied)
{
    // It may have another name by now.
    struct stat status = {};
    if (calls.status(folder.get(), name.c_str(), status) != 0)
        return false;
    TreeRemover remover(calls, &copied);
    remover.remove(folder.get(), folder.identity.file, name.c_str());
    return result(remover);
}

} // namespace MenuExtension::Transfers
