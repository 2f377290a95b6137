#include "extension/actions/photos/TiffDirectory.h"

namespace MenuExtension::Photos {

TiffDirectory::TiffDirectory(std::string_view file)
    : m_file(file), m_isLeastFirst(file.starts_with("II")), m_isBig(at(2, 2) == 43),
      m_place(m_isBig ? at(8, 8) : at(4, 4))
{}

std::uint64_t TiffDirectory::at(std::uint64_t place, unsigned size) const
{
    if (place > m_file.size() || m_file.size() - place < size)
        return 0;
    std::uint64_t value = 0;
    for (unsigned index = 0; index < size; ++index)
        value = value << 8U | static_cast<unsigned char>(m_file[place + (m_isLeastFirst ? size - 1 - index : index)]);
    return value;
}

std::optional<std::uint64_t> TiffDirectory::entryOf(std::uint64_t tag) const
{
    std::uint64_t entry = begin();
    for (std::uint64_t index = 0; index < count() && entry < m_file.size(); ++index, entry += entrySize()) {
        if (at(entry, 2) == tag)
            return entry;
    }
    return std::nullopt;
}

std::uint64_t TiffDirectory::number(std::uint64_t tag) const
{
    constexpr std::uint64_t ofTwoBytes = 3;
    const auto entry = entryOf(tag);
    return entry ? at(*entry + (m_isBig ? 12 : 8), at(*entry + 2, 2) == ofTwoBytes ? 2 : 4) : 0;
}

bool TiffDirectory::goOn()
{
    if (count() > m_file.size() / entrySize())
        return false;
    m_place = at(begin() + count() * entrySize(), m_isBig ? 8 : 4);
    return m_place != 0 && m_place < m_file.size();
}

} // namespace MenuExtension::Photos
