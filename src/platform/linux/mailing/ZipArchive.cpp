#include "platform/linux/mailing/ZipArchive.h"

#include "platform/linux/mailing/MailableName.h"
#include "platform/linux/system/Complaint.h"
#include "platform/linux/system/FileDescriptor.h"

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <array>
#include <cerrno>
#include <climits>
#include <clocale>
#include <cstring>
#include <fcntl.h>
#include <fts.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <vector>

namespace LinuxDesktop {

namespace {

constexpr std::size_t bufferSize = std::size_t{256} * 1024;

struct Closer {
    void operator()(archive* writer) const { archive_write_free(writer); }
    void operator()(archive_entry* entry) const { archive_entry_free(entry); }
    void operator()(FTS* tree) const { fts_close(tree); }
};
using Writer = std::unique_ptr<archive, Closer>;
using Entry = std::unique_ptr<archive_entry, Closer>;
using Tree = std::unique_ptr<FTS, Closer>;

/// The thread's locale while it lives. The library takes names to be in the locale's encoding and marks those it
/// takes for UTF-8, which makes an archive unreadable where they are not.
class LocaleFor {
public:
    explicit LocaleFor(std::string_view name)
        : m_locale(::newlocale(LC_CTYPE_MASK, isUtf8(name) ? "C.UTF-8" : "C", nullptr)),
          m_before(::uselocale(m_locale))
    {}
    ~LocaleFor()
    {
        ::uselocale(m_before);
        if (m_locale)
            ::freelocale(m_locale);
    }
    LocaleFor(const LocaleFor&) = delete;
    LocaleFor& operator=(const LocaleFor&) = delete;

private:
    locale_t m_locale;
    locale_t m_before;
};

/// A folder on its way into an archive.
class Packing {
public:
    Packing(const std::string& folder, const std::string& name, const std::string& archive, FileDescriptor file)
        : m_folder(folder), m_name(name), m_archive(archive), m_file(std::move(file)), m_writer(archive_write_new()),
          m_entry(archive_entry_new()), m_buffer(bufferSize)
    {}

    [[nodiscard]] bool run() { return open() && addTree() && finish(); }

private:
    bool open()
    {
        archive_write_set_bytes_per_block(m_writer.get(), static_cast<int>(bufferSize));
        archive_write_set_bytes_in_last_block(m_writer.get(), 1);
        const bool opened = archive_write_set_format_zip(m_writer.get()) == ARCHIVE_OK &&
                            archive_write_open(m_writer.get(), this, nullptr, &Packing::write, nullptr) == ARCHIVE_OK;
        return opened || cannotWrite();
    }

    /// The library's way to the file. It is never told of an error, since it would not clear up after one: an error
    /// is kept, and ends the packing at the next question for it.
    static la_ssize_t write(archive*, void* packing, const void* bytes, std::size_t size)
    {
        auto& self = *static_cast<Packing*>(packing);
        const auto* next = static_cast<const char*>(bytes);
        for (std::size_t left = size; left > 0 && self.m_writeError == 0;) {
            const ssize_t written = ::write(self.m_file.get(), next, left);
            if (written < 0) {
                self.m_writeError = errno == EINTR ? 0 : errno;
                continue;
            }
            next += written;
            left -= static_cast<std::size_t>(written);
        }
        return static_cast<la_ssize_t>(size);
    }

    bool addTree()
    {
        std::string root = m_folder;
        std::array<char*, 2> roots{root.data(), nullptr};
        const auto byName = [](const FTSENT** a, const FTSENT** b) {
            return std::strcmp(&(*a)->fts_name[0], &(*b)->fts_name[0]);
        };
        const Tree tree(fts_open(roots.data(), FTS_COMFOLLOW | FTS_PHYSICAL | FTS_NOCHDIR, byName));
        if (!tree)
            return cannotRead(m_folder, errno);
        errno = 0;
        while (const FTSENT* node = fts_read(tree.get())) {
            if (!add(*node))
                return false;
            errno = 0;
        }
        return errno == 0 || cannotRead(m_folder, errno);
    }

    bool add(const FTSENT& node)
    {
        switch (node.fts_info) {
        case FTS_D:
            return addFolder(node);
        case FTS_DP:
            return true;
        case FTS_F:
            return addFile(node);
        case FTS_SL:
        case FTS_SLNONE:
            return addLink(node);
        case FTS_DNR:
        case FTS_NS:
        case FTS_ERR:
            cannotRead(node.fts_path, node.fts_errno);
            return node.fts_level > FTS_ROOTLEVEL;
        case FTS_DC:
            cannotRead(node.fts_path, ELOOP);
            return true;
        default:
            complain("leaving out", node.fts_path, "it is not a file");
            return true;
        }
    }

    bool addFolder(const FTSENT& node)
    {
        describe(node, *node.fts_statp);
        return writeHeader(node);
    }

    bool addLink(const FTSENT& node)
    {
        std::array<char, PATH_MAX> target{};
        const ssize_t length = ::readlink(node.fts_accpath, target.data(), target.size() - 1);
        if (length < 0) {
            cannotRead(node.fts_path, errno);
            return true;
        }
        describe(node, *node.fts_statp);
        archive_entry_copy_symlink(m_entry.get(), target.data());
        return writeHeader(node);
    }

    bool addFile(const FTSENT& node)
    {
        // Not blocking, in case something that is not a file has taken its place.
        const FileDescriptor file(
            ::open(node.fts_accpath, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
        struct stat status = {};
        if (!file || ::fstat(file.get(), &status) != 0) {
            cannotRead(node.fts_path, errno);
            return true;
        }
        if (!S_ISREG(status.st_mode) || isArchive(status))
            return true;
        ssize_t length = ::read(file.get(), m_buffer.data(), m_buffer.size());
        if (length < 0) {
            cannotRead(node.fts_path, errno);
            return true;
        }

        describe(node, status);
        archive_entry_set_size(m_entry.get(), status.st_size);
        if (!writeHeader(node))
            return false;
        // A file that grows meanwhile is taken at the size that its header has.
        for (off_t left = status.st_size; length > 0 && left > 0;) {
            const auto part = static_cast<std::size_t>(std::min<off_t>(length, left));
            if (archive_write_data(m_writer.get(), m_buffer.data(), part) != static_cast<la_ssize_t>(part) ||
                m_writeError != 0)
                return cannotWrite();
            left -= static_cast<off_t>(part);
            length = ::read(file.get(), m_buffer.data(), m_buffer.size());
            if (length < 0)
                return cannotRead(node.fts_path, errno);
        }
        return archive_write_finish_entry(m_writer.get()) >= ARCHIVE_WARN || cannotWrite();
    }

    [[nodiscard]] bool isArchive(const struct stat& status) const
    {
        struct stat archive = {};
        return ::fstat(m_file.get(), &archive) == 0 && archive.st_dev == status.st_dev &&
               archive.st_ino == status.st_ino;
    }

    void describe(const FTSENT& node, const struct stat& status)
    {
        archive_entry_clear(m_entry.get());
        archive_entry_copy_pathname(m_entry.get(), nameInArchive(node).c_str());
        archive_entry_set_mode(m_entry.get(), status.st_mode);
        archive_entry_set_mtime(m_entry.get(), status.st_mtim.tv_sec, status.st_mtim.tv_nsec);
    }

    [[nodiscard]] std::string nameInArchive(const FTSENT& node) const
    {
        const auto below = std::string_view(node.fts_path).substr(m_folder.size());
        std::string name = m_name;
        if (!below.empty() && below.front() != '/')
            name += '/';
        return name.append(below);
    }

    bool writeHeader(const FTSENT& node)
    {
        const LocaleFor locale(archive_entry_pathname(m_entry.get()));
        const int result = archive_write_header(m_writer.get(), m_entry.get());
        if (result == ARCHIVE_FATAL)
            return cannotWrite();
        if (result == ARCHIVE_FAILED)
            return cannotRead(node.fts_path, archive_errno(m_writer.get()));
        return true;
    }

    bool finish()
    {
        if (archive_write_close(m_writer.get()) != ARCHIVE_OK || m_writeError != 0)
            return cannotWrite();
        if (m_file.close())
            return true;
        m_writeError = errno;
        return cannotWrite();
    }

    bool cannotWrite()
    {
        complain("cannot write", m_archive, m_writeError != 0 ? m_writeError : archive_errno(m_writer.get()));
        return false;
    }

    static bool cannotRead(std::string_view path, int error)
    {
        complain("cannot read", path, error);
        return false;
    }

    const std::string& m_folder;
    const std::string& m_name;
    const std::string& m_archive;
    FileDescriptor m_file;
    Writer m_writer;
    Entry m_entry;
    std::vector<char> m_buffer;
    /// The errno value of the first write that failed.
    int m_writeError = 0;
};

} // namespace

bool zipFolder(const std::string& folder, const std::string& name, const std::string& archive)
{
    FileDescriptor file(::open(archive.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file) {
        complain("cannot write", archive, errno);
        return false;
    }
    if (Packing(folder, name, archive, std::move(file)).run())
        return true;
    ::unlink(archive.c_str());
    return false;
}

} // namespace LinuxDesktop
