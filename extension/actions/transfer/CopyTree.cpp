#include "extension/actions/transfer/CopyTree.h"

#include "extension/actions/transfer/FolderEntries.h"
#include "extension/actions/transfer/Staging.h"

#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <utility>

namespace MenuExtension::Transfers {

using LinuxDesktop::FileDescriptor;

namespace {

/// A file that changes more often while it is copied is said to do so.
constexpr int tries = 3;

/// Whether the next item would meet it too.
bool isFatal(int error)
{
    return error == ENOSPC || error == EDQUOT || error == EROFS || error == ECANCELED;
}

std::tuple<off_t, time_t, long> versionOf(const struct stat& file)
{
    return {file.st_size, file.st_mtim.tv_sec, file.st_mtim.tv_nsec};
}

/// Goes into a folder with a path, and leaves it at its end.
class PathBelow {
public:
    PathBelow(std::string& path, const char* name) : m_path(path), m_length(path.size())
    {
        path.append("/").append(name);
    }
    ~PathBelow() { m_path.resize(m_length); }
    PathBelow(const PathBelow&) = delete;
    PathBelow& operator=(const PathBelow&) = delete;

private:
    std::string& m_path;
    std::size_t m_length;
};

} // namespace

bool TreeCopier::copy(const Folder& from, const std::string& name, int to, const std::string& newName)
{
    m_finalMode.reset();
    m_fatalError = 0;
    m_root = to;
    m_folder = from.identity.file;
    m_path = from.path == "/" ? std::string() : from.path;
    m_itemLength = m_path.size() + 1 + name.size();
    m_place = std::make_shared<Place>(Place{to, newName});
    m_depth = 0;
    return copyItem(from.get(), name.c_str(), to, newName.c_str());
}

bool TreeCopier::copyItem(int from, const char* name, int to, const char* newName)
{
    if (m_progress.cancelled)
        m_fatalError = ECANCELED;
    if (m_fatalError != 0)
        return false;
    struct stat source = {};
    bool isMade = false;
    m_lacksAttributes = false;
    if (m_calls.status(from, name, source) == 0) {
        if (S_ISDIR(source.st_mode) && m_depth > 0 && isStagingName(name))
            return false;
        if (S_ISDIR(source.st_mode))
            return copyFolder(from, name, to, newName);
        if (linkToCopy(source, to, newName))
            isMade = true;
        else if (S_ISREG(source.st_mode))
            isMade = copyFile(from, name, to, newName, source);
        else if (S_ISLNK(source.st_mode))
            isMade = copySymbolicLink(from, name, to, newName, source);
        else
            isMade = copyNode(to, newName, source);
    }
    if (!isMade) {
        const int error = errno;
        // A link that lacks its times, say. What is in its place where the names differ in case alone is another's.
        if (error != EEXIST && source.st_mode != 0)
            static_cast<void>(m_calls.remove(to, newName, 0));
        note(name, error);
        return false;
    }
    if (m_lacksAttributes)
        noteWithoutAttributes(name);
    else
        m_copied.add(source, m_folder, name);
    ++m_progress.files;
    return true;
}

/// `source` becomes what the file was when it was copied.
bool TreeCopier::copyFile(int from, const char* name, int to, const char* newName, struct stat& source)
{
    const FileDescriptor original = m_calls.open(from, name, O_RDONLY);
    if (!original || m_calls.status(original.get(), "", source) != 0)
        return false;
    if (!S_ISREG(source.st_mode)) {
        errno = EBUSY;
        return false;
    }
    // Nobody else comes into the folder where it is made. What its owner cannot write to takes no attributes.
    FileDescriptor made = m_calls.open(to, newName, O_RDWR | O_CREAT | O_EXCL, (source.st_mode & 0777U) | S_IWUSR);
    if (!made)
        return false;
    struct stat copy = {};
    if (!fillFile(original, source, made))
        return false;
    const bool hasOthers = source.st_nlink > 1 && m_calls.status(made.get(), "", copy) == 0;
    if (!made.close())
        return false;
    if (hasOthers)
        rememberCopy(source, name, copy);
    return true;
}

bool TreeCopier::fillFile(const FileDescriptor& from, struct stat& source, const FileDescriptor& to)
{
    for (int attempt = 1; !m_data.copy(from.get(), source, to.get()); ++attempt) {
        if (errno != EBUSY || attempt == tries)
            return false;
        if (m_calls.setLength(to.get(), 0) != 0 || m_calls.status(from.get(), "", source) != 0)
            return false;
    }
    struct stat made = {};
    if (m_calls.status(to.get(), "", made) != 0 || !m_attributes.copy(from.get(), source, to.get(), made))
        return false;
    m_lacksAttributes = m_attributes.hadNoRoom();
    return flushed(to.get());
}

bool TreeCopier::copyFolder(int from, const char* name, int to, const char* newName)
{
    struct stat source = {};
    struct stat made = {};
    const FileDescriptor original = m_calls.open(from, name, O_RDONLY | O_DIRECTORY);
    if (!original || m_calls.status(original.get(), "", source) != 0 ||
        m_calls.makeFolder(to, newName, S_IRWXU) != 0) {
        note(name, errno);
        return false;
    }
    const FileDescriptor copy = m_calls.open(to, newName, O_RDONLY | O_DIRECTORY);
    if (!copy || m_calls.status(copy.get(), "", made) != 0) {
        note(name, errno);
        static_cast<void>(m_calls.remove(to, newName, AT_REMOVEDIR));
        return false;
    }
    ++m_depth;
    const ino_t outer = std::exchange(m_folder, source.st_ino);
    {
        const PathBelow path(m_path, name);
        FolderEntries entries(m_calls, original);
        // What cannot be copied is noted, and the rest is copied.
        while (const char* entry = entries.next())
            static_cast<void>(copyItem(original.get(), entry, copy.get(), entry));
        if (entries.error() != 0)
            note("", entries.error());
    }
    m_folder = outer;
    --m_depth;
    if (m_fatalError != 0)
        return false;
    const bool isOutermost = m_depth == 0;
    const mode_t mode = source.st_mode & 07777U;
    bool isWhole = m_attributes.copy(original.get(), source, copy.get(), made);
    if (isWhole && isOutermost && (mode & S_IWUSR) == 0) {
        m_finalMode = mode;
        isWhole = m_calls.setMode(copy.get(), "", mode | S_IWUSR) == 0;
    }
    // What is in it is whole nevertheless.
    if (!isWhole)
        note(name, errno);
    else if (m_attributes.hadNoRoom())
        noteWithoutAttributes(name);
    // Nobody knows then what of its files is on the disk.
    if (!flushed(copy.get()))
        m_fatalError = errno;
    return m_fatalError == 0;
}

bool TreeCopier::copySymbolicLink(int from, const char* name, int to, const char* newName, const struct stat& source)
{
    std::array<char, PATH_MAX + 1> destination{};
    const ssize_t length = m_calls.readSymbolicLink(from, name, destination.data(), destination.size() - 1);
    if (length < 0)
        return false;
    destination.at(static_cast<std::size_t>(length)) = '\0';
    return m_calls.makeSymbolicLink(destination.data(), to, newName) == 0 &&
           m_attributes.copyUnopened(source, to, newName);
}

/// A pipe, or a socket's name. Neither is ever opened.
bool TreeCopier::copyNode(int to, const char* newName, const struct stat& source)
{
    if (!S_ISFIFO(source.st_mode) && !S_ISSOCK(source.st_mode)) {
        errno = ENODEV;
        return false;
    }
    const mode_t mode = (source.st_mode & S_IFMT) | (source.st_mode & 0777U);
    return m_calls.makeNode(to, newName, mode) == 0 && m_attributes.copyUnopened(source, to, newName);
}

/// Whether the file is another name of one that was copied, and has become that in the copy too.
bool TreeCopier::linkToCopy(const struct stat& source, int to, const char* newName)
{
    // It may be the last one by now.
    const auto found = m_several.find({m_root, source.st_dev, source.st_ino});
    if (found == m_several.end())
        return false;
    Copy& copy = found->second;
    // It may have changed since, and then it is a copy of its own.
    if (copy.original != versionOf(source) ||
        m_calls.link(copy.place->folder, (copy.place->name + copy.below).c_str(), to, newName) != 0)
        return false;
    // So may its copy, where everybody comes.
    struct stat linked = {};
    if (copy.place->folder != m_root && (m_calls.status(to, newName, linked) != 0 ||
                                         identityOf(linked) != copy.identity || versionOf(linked) != copy.made)) {
        static_cast<void>(m_calls.remove(to, newName, 0));
        return false;
    }
    m_lacksAttributes = copy.lacksAttributes;
    m_progress.bytes += static_cast<std::uint64_t>(source.st_size);
    if (--copy.namesLeft == 0)
        m_several.erase(found);
    return true;
}

void TreeCopier::rememberCopy(const struct stat& source, const char* name, const struct stat& copy)
{
    // Names may never come that lie elsewhere.
    if (m_several.size() >= mostSeveral)
        return;
    m_several.insert_or_assign({m_root, source.st_dev, source.st_ino},
                               Copy{.place = m_place,
                                    .below = m_depth == 0 ? std::string() : m_path.substr(m_itemLength) + '/' + name,
                                    .original = versionOf(source),
                                    .made = versionOf(copy),
                                    .identity = identityOf(copy),
                                    .lacksAttributes = m_lacksAttributes,
                                    .namesLeft = source.st_nlink - 1});
}

bool TreeCopier::flushed(int file)
{
    return m_flush == Flush::Later || m_calls.flush(file) == 0;
}

void TreeCopier::note(const char* name, int error)
{
    if (isFatal(error)) {
        m_fatalError = error;
        return;
    }
    const auto kind = error == EBUSY    ? Problem::Kind::Changed
                      : error == ENODEV ? Problem::Kind::IsDevice
                                        : Problem::Kind::NotTransferred;
    m_problems.add({kind, *name == '\0' ? m_path : m_path + '/' + name, error});
}

void TreeCopier::noteWithoutAttributes(const char* name)
{
    m_problems.add({Problem::Kind::WithoutAttributes, m_path + '/' + name});
}

} // namespace MenuExtension::Transfers
