#include "extension/actions/find-duplicate-files/FileDigest.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <linux/fiemap.h>
#include <linux/fs.h>
#include <new>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <utility>
#include <xxhash.h>

namespace MenuExtension {

using Duplicates::FileState;
using LinuxDesktop::FileDescriptor;

namespace {

constexpr std::int64_t endSize = std::int64_t{16} << 10U;

struct FreeState {
    void operator()(XXH3_state_t* state) const { XXH3_freeState(state); }
};

Digest digestOf(const XXH128_hash_t& hash)
{
    return {hash.high64, hash.low64};
}

FileReader::Result unchangedOr(int file, const FileState& state)
{
    struct stat status = {};
    if (::fstat(file, &status) != 0)
        return FileReader::Result::Failed;
    return FileState::of(status) == state ? FileReader::Result::Read : FileReader::Result::Changed;
}

} // namespace

FileReader::FileReader(std::function<void(std::size_t)> hasRead, std::stop_token stop)
    : m_hasRead(std::move(hasRead)), m_stop(std::move(stop)),
      m_buffer(std::make_unique<std::array<std::byte, bufferSize>>())
{}

FileDescriptor FileReader::open(const std::string& path, FileState& state) const
{
    // What is a pipe by now would keep whoever opens it.
    FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!file || ::fstat(file.get(), &status) != 0)
        return {};
    if (!S_ISREG(status.st_mode)) {
        errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
        return {};
    }
    state = FileState::of(status);
    return file;
}

FileReader::Result FileReader::readPart(int file, std::int64_t offset, std::size_t size, Wait wait) const
{
    for (std::size_t filled = 0; filled < size;) {
        if (m_stop.stop_requested())
            return Result::Stopped;
        const iovec rest{m_buffer->data() + filled, size - filled};
        const ssize_t count =
            ::preadv2(file, &rest, 1, offset + static_cast<off_t>(filled), wait == Wait::Yes ? 0 : RWF_NOWAIT);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return wait == Wait::No && (errno == EAGAIN || errno == EOPNOTSUPP) ? Result::NotInMemory
                                                                                : Result::Failed;
        if (count == 0)
            return Result::Changed;
        filled += static_cast<std::size_t>(count);
    }
    return Result::Read;
}

FileReader::Result FileReader::readEnds(int file, const FileState& state, Wait wait, Digest& digest) const
{
    digest = {};
    for (const std::int64_t offset : {std::int64_t{0}, state.size - endSize}) {
        if (const Result result = readPart(file, offset, endSize, wait); result != Result::Read)
            return result;
        digest = digestOf(XXH3_128bits_withSeed(m_buffer->data(), endSize, digest.low));
    }
    return Result::Read;
}

FileReader::Result FileReader::readWhole(int file, const FileState& state, Wait wait, Digest& digest) const
{
    const auto size = static_cast<std::size_t>(state.size);
    if (size <= bufferSize) {
        if (const Result result = readPart(file, 0, size, wait); result != Result::Read)
            return result;
        m_hasRead(size);
        digest = digestOf(XXH3_128bits(m_buffer->data(), size));
        return unchangedOr(file, state);
    }
    const std::unique_ptr<XXH3_state_t, FreeState> hash(XXH3_createState());
    XXH3_128bits_reset(hash.get());
    for (std::size_t offset = 0; offset < size; offset += bufferSize) {
        const std::size_t length = std::min(bufferSize, size - offset);
        // Only the beginning tells: what has begun goes on.
        const Result result =
            readPart(file, static_cast<std::int64_t>(offset), length, offset == 0 ? wait : Wait::Yes);
        if (result != Result::Read)
            return result;
        m_hasRead(length);
        XXH3_128bits_update(hash.get(), m_buffer->data(), length);
    }
    digest = digestOf(XXH3_128bits_digest(hash.get()));
    return unchangedOr(file, state);
}

void FileReader::announceEnds(int file, const FileState& state)
{
    ::posix_fadvise(file, 0, endSize, POSIX_FADV_WILLNEED);
    ::posix_fadvise(file, state.size - endSize, endSize, POSIX_FADV_WILLNEED);
}

void FileReader::announceWhole(int file, const FileState& state)
{
    constexpr std::int64_t most = std::int64_t{1} << 20U;
    ::posix_fadvise(file, 0, 0, POSIX_FADV_SEQUENTIAL);
    ::posix_fadvise(file, 0, std::min(most, state.size), POSIX_FADV_WILLNEED);
}

std::uint64_t diskPosition(int file)
{
    alignas(fiemap) std::array<std::byte, sizeof(fiemap) + sizeof(fiemap_extent)> space{};
    auto* const map = new (space.data()) fiemap{};
    map->fm_length = 1;
    map->fm_extent_count = 1;
    if (::ioctl(file, FS_IOC_FIEMAP, map) != 0 || map->fm_mapped_extents == 0)
        return 0;
    return map->fm_extents[0].fe_physical;
}

} // namespace MenuExtension
