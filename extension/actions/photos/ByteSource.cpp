#include "ByteSource.h"

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

namespace MenuExtension::Exif {

ByteSource::ByteSource(int file) : m_file(file)
{
    struct stat status = {};
    if (::fstat(file, &status) == 0)
        m_size = static_cast<std::uint64_t>(status.st_size);
}

std::string_view ByteSource::look(std::uint64_t offset, std::size_t count)
{
    if (m_file < 0)
        return m_memory.substr(std::min<std::uint64_t>(offset, m_memory.size()), count);
    const bool isInWindow = offset >= m_windowBegin && offset - m_windowBegin <= m_window.size() &&
                            m_window.size() - (offset - m_windowBegin) >= count;
    if (!isInWindow) {
        m_window.resize(mostAtOnce);
        const ssize_t read = ::pread(m_file, m_window.data(), m_window.size(), static_cast<off_t>(offset));
        m_window.resize(static_cast<std::size_t>(std::max<ssize_t>(read, 0)));
        m_windowBegin = offset;
    }
    return std::string_view(m_window).substr(offset - m_windowBegin, count);
}

} // namespace MenuExtension::Exif
