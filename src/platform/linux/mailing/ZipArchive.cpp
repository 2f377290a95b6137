#include "platform/linux/mailing/ZipArchive.h"

#include "platform/LocalizedString.h"
#include "platform/linux/mailing/MailableName.h"
#include "platform/linux/mailing/SparingFile.h"
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
#include <system_error>
#include <utility>
#include <vector>

namespace LinuxDesktop {

namespace {

constexpr std::size_t bufferSize = std::size_t{256} * 1024;
/// So many of the items that cannot be packed are told by name.
constexpr std::size_t mostNamed = 4;

std::string reasonOf(int error)
{
    return std::generic_category().message(error);
}

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
    Packing(const std::string& folder, const std::string& name, const std::string& archive,
            AttachingProgress& progress)
        : m_folder(folder), m_name(name), m_archive(archive), m_progress(progress), m_file(archive),
          m_writer(archive_write_new()), m_entry(archive_entry_new()), m_buffer(bufferSize)
    {}

    /// Nothing when the archive is there, with everything in it.
    [[nodiscard]] std::optional<AttachingFailure> run()
    {
        static_cast<void>(open() && addTree() && finish());
        return std::move(m_failure);
    }

private:
    bool open()
    {
        if (m_file.error() != 0)
            return cannotWrite();
        archive_write_set_bytes_per_block(m_writer.get(), static_cast<int>(bufferSize));
        archive_write_set_bytes_in_last_block(m_writer.get(), 1);
        const bool opened = archive_write_set_format_zip(m_writer.get()) == ARCHIVE_OK &&
                            archive_write_open(m_writer.get(), this, nullptr, &Packing::write, nullptr) == ARCHIVE_OK;
        return opened || cannotWrite();
    }

    /// The library's way to the file. It is never told of an error, since it would not clear up after one: an error
    /// is kept by the file, and ends the packing at the next question for it.
    static la_ssize_t write(archive*, void* packing, const void* bytes, std::size_t size)
    {
        static_cast<Packing*>(packing)->m_file.write(bytes, size);
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
            return cannotReadFolder(errno);
        errno = 0;
        while (const FTSENT* node = fts_read(tree.get())) {
            if (!add(*node))
                return false;
            errno = 0;
        }
        return errno == 0 || cannotReadFolder(errno);
    }

    /// False when the packing is to end.
    bool add(const FTSENT& node)
    {
        if (isCancelled())
            return false;
        switch (node.fts_info) {
        case FTS_D:
            describe(node, *node.fts_statp);
            return writeHeader(node);
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
            if (node.fts_level == FTS_ROOTLEVEL)
                return cannotReadFolder(node.fts_errno);
            return leaveOut(node, reasonOf(node.fts_errno));
        case FTS_DC:
            return leaveOut(node, reasonOf(ELOOP));
        default:
            return leaveOut(node, std::string(NS::LocalizableString("Attachments", "it is not a file")));
        }
    }

    bool addLink(const FTSENT& node)
    {
        std::array<char, PATH_MAX> target{};
        const ssize_t length = ::readlink(node.fts_accpath, target.data(), target.size() - 1);
        if (length < 0)
            return leaveOut(node, reasonOf(errno));
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
        if (!file || ::fstat(file.get(), &status) != 0)
            return leaveOut(node, reasonOf(errno));
        if (!S_ISREG(status.st_mode))
            return leaveOut(node, std::string(NS::LocalizableString("Attachments", "it is not a file")));
        if (m_file.is(status))
            return true;
        ssize_t length = ::read(file.get(), m_buffer.data(), m_buffer.size());
        if (length < 0)
            return leaveOut(node, reasonOf(errno));

        describe(node, status);
        archive_entry_set_size(m_entry.get(), status.st_size);
        if (!writeHeader(node))
            return false;
        // What is known not to be sent is only looked at.
        if (m_incomplete)
            return true;
        // A file that grows meanwhile is taken at the size that its header has.
        for (off_t left = status.st_size; left > 0;) {
            if (isCancelled())
                return false;
            if (length < 0)
                return leaveOut(node, reasonOf(errno));
            if (length == 0)
                return leaveOut(node, std::string(NS::LocalizableString("Attachments", "it became shorter")));
            const auto part = static_cast<std::size_t>(std::min<off_t>(length, left));
            if (archive_write_data(m_writer.get(), m_buffer.data(), part) != static_cast<la_ssize_t>(part) ||
                m_file.error() != 0)
                return cannotWrite();
            m_progress.bytes += part;
            left -= static_cast<off_t>(part);
            length = ::read(file.get(), m_buffer.data(), m_buffer.size());
        }
        return archive_write_finish_entry(m_writer.get()) >= ARCHIVE_WARN || cannotWrite();
    }

    void describe(const FTSENT& node, const struct stat& status)
    {
        archive_entry_clear(m_entry.get());
        archive_entry_copy_pathname(m_entry.get(), nameInArchive(node).c_str());
        archive_entry_set_mode(m_entry.get(), status.st_mode);
        archive_entry_set_mtime(m_entry.get(), status.st_mtim.tv_sec, status.st_mtim.tv_nsec);
    }

    /// The node's path from the folder on.
    [[nodiscard]] std::string_view pathBelow(const FTSENT& node) const
    {
        auto below = std::string_view(node.fts_path).substr(m_folder.size());
        if (below.starts_with('/'))
            below.remove_prefix(1);
        return below;
    }

    [[nodiscard]] std::string nameInArchive(const FTSENT& node) const
    {
        const auto below = pathBelow(node);
        return below.empty() ? m_name : m_name + '/' + std::string(below);
    }

    bool writeHeader(const FTSENT& node)
    {
        if (m_incomplete)
            return true;
        const LocaleFor locale(archive_entry_pathname(m_entry.get()));
        const int result = archive_write_header(m_writer.get(), m_entry.get());
        if (result == ARCHIVE_FATAL || m_file.error() != 0)
            return cannotWrite();
        if (result == ARCHIVE_FAILED)
            return leaveOut(node, reasonOf(archive_errno(m_writer.get())));
        return true;
    }

    bool finish()
    {
        if (m_incomplete) {
            m_failure = std::move(m_incomplete);
            return false;
        }
        return (archive_write_close(m_writer.get()) == ARCHIVE_OK && m_file.close()) || cannotWrite();
    }

    bool isCancelled()
    {
        if (m_progress.cancelled)
            m_failure = AttachingFailure{AttachingFailure::Kind::Cancelled};
        return m_progress.cancelled;
    }

    /// Always true: the rest is looked at too, for whoever wants to know what else stands in the way.
    bool leaveOut(const FTSENT& node, const std::string& reason)
    {
        if (!m_incomplete)
            m_incomplete = AttachingFailure{AttachingFailure::Kind::Incomplete};
        if (m_incomplete->leftOut.size() < mostNamed) {
            m_incomplete->leftOut.push_back({std::string(pathBelow(node)), reason});
            complain("cannot pack", node.fts_path, reason);
        }
        ++m_incomplete->leftOutCount;
        return true;
    }

    bool cannotReadFolder(int error)
    {
        complain("cannot read", m_folder, error);
        m_failure = AttachingFailure{AttachingFailure::Kind::Unreadable, reasonOf(error)};
        return false;
    }

    bool cannotWrite()
    {
        const int error = m_file.error() != 0 ? m_file.error() : archive_errno(m_writer.get());
        complain("cannot write", m_archive, error);
        m_failure = AttachingFailure::unwritable(error);
        return false;
    }

    const std::string& m_folder;
    const std::string& m_name;
    const std::string& m_archive;
    AttachingProgress& m_progress;
    SparingFile m_file;
    Writer m_writer;
    Entry m_entry;
    std::vector<char> m_buffer;
    /// What keeps the archive from being made.
    std::optional<AttachingFailure> m_failure;
    /// What is missing in it, once something is.
    std::optional<AttachingFailure> m_incomplete;
};

} // namespace

std::optional<AttachingFailure> zipFolder(const std::string& folder, const std::string& name,
                                          const std::string& archive, AttachingProgress& progress)
{
    return Packing(folder, name, archive, progress).run();
}

} // namespace LinuxDesktop
