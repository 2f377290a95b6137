#pragma once

#include <array>
#include <cstddef>
#include <utility>

namespace MenuExtension::SimilarPhotos {

/// One of the eight ways to turn and mirror a picture by quarter turns.
struct Symmetry {
    bool mirroredAcross = false;
    bool mirroredDown = false;
    /// Columns and rows change places, before it is mirrored.
    bool transposed = false;

    friend bool operator==(const Symmetry&, const Symmetry&) = default;
};

inline constexpr std::array<Symmetry, 8> symmetries{{
    {false, false, false},
    {true, false, false},
    {false, true, false},
    {true, true, false},
    {false, false, true},
    {true, false, true},
    {false, true, true},
    {true, true, true},
}};

/// A square of values, row by row, as it looks under the symmetry.
template<class Value, std::size_t Size>
std::array<Value, Size> turned(const std::array<Value, Size>& square, std::size_t side, Symmetry symmetry)
{
    std::array<Value, Size> result{};
    for (std::size_t row = 0; row < side; ++row) {
        for (std::size_t column = 0; column < side; ++column) {
            std::size_t fromColumn = symmetry.mirroredAcross ? side - 1 - column : column;
            std::size_t fromRow = symmetry.mirroredDown ? side - 1 - row : row;
            if (symmetry.transposed)
                std::swap(fromColumn, fromRow);
            result[row * side + column] = square[fromRow * side + fromColumn];
        }
    }
    return result;
}

} // namespace MenuExtension::SimilarPhotos
