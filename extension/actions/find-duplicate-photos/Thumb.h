#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace MenuExtension::SimilarPhotos {

/// A picture of bytes in three bands, red, green and blue, row by row.
struct Pixels {
    int width = 0;
    int height = 0;
    const std::uint8_t* bytes = nullptr;
};

/// What is kept of a picture to compare it with others: the picture without a border, pressed into a square.
struct Thumb {
    static constexpr std::size_t side = 32;
    static constexpr std::size_t colorSide = 8;

    /// Brightness less its mean, in `step`s of a level of 0 to 255.
    std::array<std::int8_t, side * side> brightness{};
    /// What the colours have of blue and of red, in levels.
    std::array<std::int8_t, colorSide * colorSide> blue{};
    std::array<std::int8_t, colorSide * colorSide> red{};
    /// A bit for each cell: whether a band is at its end somewhere in it, as in what was made brighter.
    std::array<std::uint8_t, side * side / 8> full{};
    float mean = 0;
    float step = 1;
    /// Width by height, of what is in the square.
    float aspect = 1;
};

/// Describes a picture, of which a few hundred pixels each way are enough.
[[nodiscard]] Thumb thumbOf(const Pixels& pixels);

/// The thumb as bytes that the same program reads.
[[nodiscard]] std::string bytesOf(const Thumb& thumb);
/// Nothing for bytes that are none.
[[nodiscard]] std::optional<Thumb> thumbFrom(std::string_view bytes);
inline constexpr std::size_t thumbBytes = sizeof(Thumb);

} // namespace MenuExtension::SimilarPhotos
