#include "platform/linux/mailing/SparingFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <utility>

namespace LinuxDesktop {

namespace {

/// What is left free, on small disks a tenth. The folder for such files is often one that a whole desktop needs.
constexpr std::uint64_t room = std::uint64_t{64} * 1024 * 1024;
constexpr std::uint64_t partOfDisk = 10;

} // namespace

SparingFile::SparingFile(std::string path)
    : m_path(std::move(path)),
      m_file(::open(m_path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR)),
      m_error(m_file ? 0 : errno)
{
    // One that is there already is somebody else's.
    m_stays = !m_file;
}

SparingFile::~SparingFile()
{
    if (!m_stays)
        ::unlink(m_path.c_str());
}

void SparingFile::write(const void* bytes, std::size_t size)
{
    if (m_error == 0 && !leavesRoom(size))
        m_error = ENOSPC;
    const auto* next = static_cast<const char*>(bytes);
    while (size > 0 && m_error == 0) {
        const ssize_t written = ::write(m_file.get(), next, size);
        if (written < 0) {
            m_error = errno == EINTR ? 0 : errno;
            continue;
        }
        next += written;
        size -= static_cast<std::size_t>(written);
    }
}

bool SparingFile::leavesRoom(std::size_t size) const
{
    struct statvfs disk = {};
    // A disk that does not tell its size, as some kinds do not, is found to be full when it is.
    if (::fstatvfs(m_file.get(), &disk) != 0 || disk.f_blocks == 0)
        return true;
    const std::uint64_t whole = std::uint64_t{disk.f_blocks} * disk.f_frsize;
    return std::uint64_t{disk.f_bavail} * disk.f_frsize >= std::min(room, whole / partOfDisk) + size;
}

bool SparingFile::close()
{
    if (m_error == 0 && !m_file.close())
        m_error = errno;
    m_stays = m_stays || m_error == 0;
    return m_error == 0;
}

bool SparingFile::is(const struct stat& status) const
{
    struct stat own = {};
    return ::fstat(m_file.get(), &own) == 0 && own.st_dev == status.st_dev && own.st_ino == status.st_ino;
}

} // namespace LinuxDesktop
