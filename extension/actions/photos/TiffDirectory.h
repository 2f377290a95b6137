#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace MenuExtension::Photos {

/// A directory of a TIFF file: what is said of one picture. Any file may be given; what lies beyond its end is 0.
class TiffDirectory {
public:
    /// The first one. The file must outlive it.
    explicit TiffDirectory(std::string_view file);

    [[nodiscard]] bool has(std::uint64_t tag) const { return entryOf(tag).has_value(); }
    /// The first whole number of an entry; 0 where there is none.
    [[nodiscard]] std::uint64_t number(std::uint64_t tag) const;

    /// Whether it is of a smaller copy of another picture in the file.
    [[nodiscard]] bool isOfCopy() const { return (number(254) & 1U) != 0; }

    /// Goes on to the next one, which a hostile file may say is one before; false where there is none.
    [[nodiscard]] bool goOn();

private:
    [[nodiscard]] std::uint64_t at(std::uint64_t place, unsigned size) const;
    [[nodiscard]] std::uint64_t begin() const { return m_place + (m_isBig ? 8 : 2); }
    [[nodiscard]] std::uint64_t count() const { return at(m_place, m_isBig ? 8 : 2); }
    [[nodiscard]] std::uint64_t entrySize() const { return m_isBig ? 20 : 12; }
    [[nodiscard]] std::optional<std::uint64_t> entryOf(std::uint64_t tag) const;

    std::string_view m_file;
    bool m_isLeastFirst;
    bool m_isBig;
    std::uint64_t m_place;
};

} // namespace MenuExtension::Photos
