#pragma once

#include "Thumb.h"

namespace MenuExtension::SimilarPhotos {

/// A part of a picture, in its pixels; the right and the bottom one are past it.
struct Part {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    friend bool operator==(const Part&, const Part&) = default;
};

/// The picture without a frame of one colour, or bars of one at two opposite sides. A sky is no border: it has no
/// second one opposite, or no edge.
[[nodiscard]] Part withoutBorder(const Pixels& pixels);

} // namespace MenuExtension::SimilarPhotos
