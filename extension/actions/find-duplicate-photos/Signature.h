#pragma once

#include "Symmetry.h"
#include "Thumb.h"

#include <array>
#include <cstddef>

namespace MenuExtension::SimilarPhotos {

/// A point that pictures which look alike have near each other: the lowest waves of the brightness, less what the
/// picture's contrast is, and of a picture that is nearly of one colour also that colour.
struct Signature {
    static constexpr std::size_t waves = 5;
    /// Without the mean.
    static constexpr std::size_t coefficients = waves * waves - 1;
    static constexpr std::size_t dimensions = coefficients + 3;

    std::array<float, dimensions> values{};
};

[[nodiscard]] Signature signatureOf(const Thumb& thumb);
/// The signature of the picture as it looks under the symmetry.
[[nodiscard]] Signature turned(const Signature& signature, Symmetry symmetry);

/// The usual distance of two points.
[[nodiscard]] float distance(const Signature& one, const Signature& other);

} // namespace MenuExtension::SimilarPhotos
