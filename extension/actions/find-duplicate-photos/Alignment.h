#pragma once

#include "Thumb.h"

#include <array>
#include <optional>

namespace MenuExtension::SimilarPhotos {

/// Values of a picture in the cells of a thumb.
using Grid = std::array<float, Thumb::side * Thumb::side>;
using ColorGrid = std::array<float, Thumb::colorSide * Thumb::colorSide>;

/// Where a picture's places are in another one: both have their centre at 0, and are 1 wide and 1 high.
struct Placement {
    struct Axis {
        float shift = 0;
        float scale = 1;

        /// How far inside the other picture this one begins and ends, as a part of the other's length; negative
        /// where that is outside.
        [[nodiscard]] float before() const { return 0.5F + shift - scale / 2; }
        [[nodiscard]] float behind() const { return 0.5F - shift - scale / 2; }
    };
    Axis across;
    Axis down;
};

/// The brightness of a thumb in levels.
[[nodiscard]] Grid brightnessOf(const Thumb& thumb);
/// Without what is finer than a picture that was cut otherwise can be compared by.
[[nodiscard]] Grid smoothed(const Grid& grid);

/// The placement near `begin` at which `picture` is most like the part of `whole` that it covers, when it may be
/// brighter and have more contrast. Nothing where that is too far away, or hardly anything is alike.
[[nodiscard]] std::optional<Placement> align(const Grid& whole, const Grid& picture, const Placement& begin);

/// The values of `whole` at the cells of a picture that is placed in it; not a number where it is outside.
[[nodiscard]] Grid placed(const Grid& whole, const Placement& placement);
/// The same for a colour, whose nearest value it gives where it is outside.
[[nodiscard]] ColorGrid placed(const ColorGrid& whole, const Placement& placement);

} // namespace MenuExtension::SimilarPhotos
