#include "platform/linux/store/Snapshot.h"

#include "platform/linux/store/PropertyList.h"

#include <cerrno>
#include <chrono>
#include <ctime>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace LinuxDesktop {

namespace {

using std::chrono::nanoseconds;

/// The clock that file systems take their time stamps from.
nanoseconds fileClock()
{
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
    return std::chrono::seconds(now.tv_sec) + nanoseconds(now.tv_nsec);
}

/// Whether a change after `now` would have got another time stamp than `version` has. Within one tick of the
/// clock it would not, and the file must be read again to know.
bool settledBy(nanoseconds now, const FileStamp& version)
{
    constexpr nanoseconds fewTicks = std::chrono::milliseconds(40);
    constexpr nanoseconds coarsest = std::chrono::seconds(2);
    // A whole second is most likely that of a file system which stores no fractions.
    const auto changed = std::chrono::seconds(version.changed.seconds) + nanoseconds(version.changed.nanoseconds);
    return changed + (version.changed.nanoseconds == 0 ? coarsest : fewTicks) < now;
}

/// The file's first `size` bytes, or as many as there are; gives errno, or 0.
int readAll(int descriptor, std::size_t size, std::string& bytes)
{
    bytes.resize(size);
    std::size_t length = 0;
    while (length < size) {
        const ssize_t count = ::pread(descriptor, bytes.data() + length, size - length, static_cast<off_t>(length));
        if (count < 0 && errno != EINTR)
            return errno;
        if (count == 0)
            break;
        if (count > 0)
            length += static_cast<std::size_t>(count);
    }
    bytes.resize(length);
    return 0;
}

} // namespace

Snapshot Snapshot::read(FileOperations& files, const std::string& path, const SharedContent& known)
{
    Snapshot snapshot;
    snapshot.m_file = files.open(path, O_RDONLY);
    if (!snapshot.m_file) {
        if (errno != ENOENT) {
            snapshot.m_why = std::generic_category().message(errno);
            snapshot.m_state = State::Inaccessible;
        }
        return snapshot;
    }
    struct stat status {};
    if (::fstat(snapshot.m_file.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        snapshot.m_state = State::Inaccessible;
        snapshot.m_why = "it is not a regular file";
        return snapshot;
    }

    // Somebody may be writing in place; what is read while the file changes can be half of each content. A few
    // tries, then the last one has to do: it is not settled, so the next reader looks again.
    constexpr int tries = 4;
    for (int i = 0; i < tries; ++i) {
        snapshot.readContent(known);
        if (snapshot.m_state == State::Inaccessible || FileStamp::of(snapshot.m_file.get()) == snapshot.m_version)
            break;
    }
    return snapshot;
}

void Snapshot::readContent(const SharedContent& known)
{
    m_content = nullptr;
    const auto now = fileClock();
    if (const auto version = FileStamp::of(m_file.get()))
        m_version = *version;
    m_settled = settledBy(now, m_version);

    const auto size = static_cast<std::size_t>(m_version.size);
    if (size > PropertyList::maximumBytes) {
        m_state = State::Damaged;
        m_why = "it is too large";
        return;
    }
    std::string bytes;
    if (const int error = readAll(m_file.get(), size, bytes); error != 0) {
        m_state = State::Inaccessible;
        m_why = std::generic_category().message(error);
        return;
    }
    if (known && known->bytes == bytes) {
        m_state = State::Readable;
        m_content = known;
        return;
    }
    auto root = PropertyList::parse(bytes);
    if (root && root->dictionary()) {
        m_state = State::Readable;
        m_content = std::make_shared<const Content>(Content{std::move(bytes), std::move(*root)});
    } else {
        m_state = State::Damaged;
        m_why = root ? "its root is not a dictionary" : root.error();
    }
}

Snapshot Snapshot::written(SharedContent content, FileDescriptor file)
{
    Snapshot snapshot;
    snapshot.m_state = State::Readable;
    snapshot.m_content = std::move(content);
    snapshot.m_file = std::move(file);
    if (const auto version = FileStamp::of(snapshot.m_file.get()))
        snapshot.m_version = *version;
    return snapshot;
}

const NS::Value::Dictionary& Snapshot::values() const
{
    static const NS::Value::Dictionary none;
    return m_content ? *m_content->root.dictionary() : none;
}

bool Snapshot::isCurrent(const std::string& path) const
{
    const auto found = FileStamp::of(path);
    if (!found)
        return errno == ENOENT && m_state == State::Absent;
    return m_settled && m_file && found == m_version;
}

bool Snapshot::isNamed(const std::string& path) const
{
    auto found = FileStamp::of(path);
    if (!m_file || !found)
        return false;
    found->changed = m_version.changed;
    return found == m_version;
}

} // namespace LinuxDesktop
