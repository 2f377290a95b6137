#include "extension/actions/duplicates/GrowingArray.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <new>
#include <string>
#include <sys/mman.h>

namespace MenuExtension::Duplicates {

namespace {

constexpr std::size_t step = std::size_t{4} << 20U;
/// Of addresses, which cost nothing.
constexpr std::size_t mostReserved = std::size_t{64} << 30U;
constexpr std::size_t leastReserved = std::size_t{64} << 20U;

/// In a folder for what may be large: not on a disk that is memory itself.
LinuxDesktop::FileDescriptor openNamelessFile()
{
    const char* cache = std::getenv("XDG_CACHE_HOME");
    const char* home = std::getenv("HOME");
    const std::array<std::string, 3> folders{cache ? cache : "", home ? std::string(home) + "/.cache" : "",
                                             "/var/tmp"};
    for (const std::string& folder : folders) {
        if (!folder.starts_with('/'))
            continue;
        constexpr mode_t onlyOwner = 0600;
        LinuxDesktop::FileDescriptor file(::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, onlyOwner));
        if (file)
            return file;
    }
    return {};
}

} // namespace

GrowingMemory::~GrowingMemory()
{
    if (m_begin)
        ::munmap(m_begin, m_reserved);
}

GrowingMemory::GrowingMemory(GrowingMemory&& other) noexcept
    : m_begin(std::exchange(other.m_begin, nullptr)), m_reserved(std::exchange(other.m_reserved, 0)),
      m_provided(std::exchange(other.m_provided, 0)), m_file(std::move(other.m_file)),
      m_fileBegin(std::exchange(other.m_fileBegin, 0)), m_fileEnd(std::exchange(other.m_fileEnd, 0))
{}

GrowingMemory& GrowingMemory::operator=(GrowingMemory&& other) noexcept
{
    std::swap(m_begin, other.m_begin);
    std::swap(m_reserved, other.m_reserved);
    std::swap(m_provided, other.m_provided);
    std::swap(m_file, other.m_file);
    std::swap(m_fileBegin, other.m_fileBegin);
    std::swap(m_fileEnd, other.m_fileEnd);
    return *this;
}

void GrowingMemory::grow(std::size_t size)
{
    for (std::size_t reserved = mostReserved; !m_begin; reserved /= 2) {
        if (reserved < leastReserved)
            throw std::bad_alloc();
        void* begin = ::mmap(nullptr, reserved, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (begin == MAP_FAILED)
            continue;
        m_begin = static_cast<std::byte*>(begin);
        m_reserved = reserved;
    }
    const std::size_t length = (size - m_provided + step - 1) / step * step;
    if (m_provided + length > m_reserved)
        throw std::bad_alloc();
    if (m_provided < inMemory || !mapFile(length)) {
        if (::mprotect(m_begin + m_provided, length, PROT_READ | PROT_WRITE) != 0)
            throw std::bad_alloc();
    }
    m_provided += length;
}

/// The file's blocks are taken before they are mapped: a full disk is met here, not when they are written.
bool GrowingMemory::mapFile(std::size_t length)
{
    if (!m_file) {
        m_file = openNamelessFile();
        m_fileBegin = m_fileEnd = m_provided;
    }
    const auto offset = static_cast<off_t>(m_provided);
    // Where the file ended once, it stays so.
    if (!m_file || m_fileEnd != m_provided ||
        ::posix_fallocate(m_file.get(), offset, static_cast<off_t>(length)) != 0)
        return false;
    rest();
    if (::mmap(m_begin + m_provided, length, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, m_file.get(), offset) ==
        MAP_FAILED)
        return false;
    m_fileEnd += length;
    return true;
}

void GrowingMemory::rest() const
{
    if (m_fileEnd > m_fileBegin)
        ::madvise(m_begin + m_fileBegin, m_fileEnd - m_fileBegin, MADV_DONTNEED);
}

} // namespace MenuExtension::Duplicates
