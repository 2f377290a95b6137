#include "extension/actions/transfer/CopyData.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace MenuExtension::Transfers {

namespace {

constexpr std::size_t bufferSize = std::size_t{256} << 10U;
/// Between two looks at whether to go on.
constexpr off_t chunk = off_t{16} << 20U;
/// The disk may lag behind by so much: what is flushed in the end is little, and a copy that is left ends soon.
constexpr off_t mostUnwritten = off_t{256} << 20U;
constexpr blksize_t blockOfStatus = 512;

bool isSparse(const struct stat& source)
{
    return source.st_blocks * blockOfStatus < source.st_size;
}

/// The disk begins to write what was copied, and has written what was copied a while ago. What goes wrong is said by
/// the flush.
void beginWriting(int to, off_t begin, off_t end)
{
    static_cast<void>(::sync_file_range(to, begin, end - begin, SYNC_FILE_RANGE_WRITE));
    if (begin >= mostUnwritten)
        static_cast<void>(
            ::sync_file_range(to, begin - mostUnwritten, chunk,
                              SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER));
}

} // namespace

bool DataCopier::copy(int from, const struct stat& source, int to)
{
    if (clone(from, source, to)) {
        m_progress.bytes += static_cast<std::uint64_t>(source.st_size);
    } else if (!copyData(from, source, to)) {
        return false;
    }
    struct stat now = {};
    if (m_calls.status(from, "", now) != 0)
        return false;
    if (now.st_size != source.st_size || now.st_mtim.tv_sec != source.st_mtim.tv_sec ||
        now.st_mtim.tv_nsec != source.st_mtim.tv_nsec) {
        errno = EBUSY;
        return false;
    }
    return true;
}

bool DataCopier::clone(int from, const struct stat& source, int to)
{
    if (!m_canClone || source.st_dev == m_notClonedFrom || source.st_size == 0)
        return false;
    if (m_calls.clone(from, to) == 0)
        return true;
    // Other errors are of this file alone; if it cannot be copied either, that says so.
    if (errno == EXDEV)
        m_notClonedFrom = source.st_dev;
    else if (errno == EOPNOTSUPP || errno == ENOTTY || errno == ENOSYS)
        m_canClone = false;
    return false;
}

bool DataCopier::copyData(int from, const struct stat& source, int to)
{
    const off_t size = source.st_size;
    if (!isSparse(source))
        return copySegment(from, to, 0, size) && (size > 0 || isAtEnd(from, size));
    for (off_t at = 0; at < size;) {
        const off_t begin = m_calls.seek(from, at, SEEK_DATA);
        if (begin < 0 && errno == ENXIO)
            break;
        const off_t end = begin < 0 ? -1 : m_calls.seek(from, begin, SEEK_HOLE);
        // A file system that does not know its holes.
        if (begin < 0 || end < 0) {
            if (!copySegment(from, to, at, size))
                return false;
            break;
        }
        if (!copySegment(from, to, begin, std::min(end, size)))
            return false;
        at = end;
    }
    return m_calls.setLength(to, size) == 0;
}

bool DataCopier::copySegment(int from, int to, off_t begin, off_t end)
{
    const bool isLarge = end - begin > chunk;
    for (off_t at = begin; at < end;) {
        const off_t upTo = std::min(end, at + chunk);
        for (off_t place = at; place < upTo;) {
            if (m_progress.cancelled) {
                errno = ECANCELED;
                return false;
            }
            const ssize_t count = copySome(from, to, place, static_cast<std::size_t>(upTo - place));
            if (count < 0)
                return false;
            if (count == 0) {
                errno = EBUSY;
                return false;
            }
            place += count;
            m_progress.bytes += static_cast<std::uint64_t>(count);
        }
        if (isLarge)
            beginWriting(to, at, upTo);
        at = upTo;
    }
    return true;
}

/// How much; 0 at the source's end, negative with errno.
ssize_t DataCopier::copySome(int from, int to, off_t at, std::size_t count)
{
    // For a small file the ordinary calls are the faster ones.
    if (m_canCopyRange && count > bufferSize) {
        const ssize_t copied = m_calls.copyRange(from, to, at, count);
        if (copied > 0)
            return copied;
        // What truly went wrong is said again by the ordinary calls.
        if (copied < 0 && (errno == EXDEV || errno == ENOSYS || errno == EOPNOTSUPP || errno == EINVAL))
            m_canCopyRange = false;
    }
    m_buffer.resize(bufferSize);
    const ssize_t there = m_calls.read(from, m_buffer.data(), std::min(count, m_buffer.size()), at);
    ssize_t written = 0;
    while (written < there) {
        const ssize_t result =
            m_calls.write(to, m_buffer.data() + written, static_cast<std::size_t>(there - written), at + written);
        if (result < 0)
            return -1;
        written += result;
    }
    return there;
}

/// A file of which the system does not know the size says that it is empty.
bool DataCopier::isAtEnd(int from, off_t at)
{
    char byte = 0;
    const ssize_t count = m_calls.read(from, &byte, 1, at);
    if (count > 0)
        errno = EBUSY;
    return count == 0;
}

} // namespace MenuExtension::Transfers
