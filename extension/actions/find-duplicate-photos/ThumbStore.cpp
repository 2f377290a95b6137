#include "ThumbStore.h"

#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace MenuExtension::SimilarPhotos {

namespace {

off_t placeOf(std::uint32_t number)
{
    return static_cast<off_t>(number) * static_cast<off_t>(thumbBytes);
}

} // namespace

// What lies in /tmp may lie in memory.
ThumbStore::ThumbStore() : m_file(::open("/var/tmp", O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR)) {}

void ThumbStore::add(const Thumb& thumb)
{
    const std::string bytes = bytesOf(thumb);
    if (m_thumbs.empty() && m_file &&
        ::pwrite(m_file.get(), bytes.data(), bytes.size(), placeOf(m_inFile)) == static_cast<ssize_t>(bytes.size()))
        ++m_inFile;
    else
        m_thumbs.push_back(thumb);
}

std::optional<Thumb> ThumbStore::thumb(std::uint32_t number) const
{
    if (number >= m_inFile)
        return number - m_inFile < m_thumbs.size() ? std::optional(m_thumbs[number - m_inFile]) : std::nullopt;
    std::string bytes(thumbBytes, '\0');
    if (::pread(m_file.get(), bytes.data(), bytes.size(), placeOf(number)) != static_cast<ssize_t>(bytes.size()))
        return std::nullopt;
    return thumbFrom(bytes);
}

} // namespace MenuExtension::SimilarPhotos
