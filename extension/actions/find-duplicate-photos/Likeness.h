#pragma once

#include "Symmetry.h"
#include "Thumb.h"

namespace MenuExtension::SimilarPhotos {

/// What two pictures differ by, each as a part of what a picture holds; 0 where they are the same in it.
struct Likeness {
    /// Over all.
    float content = 1;
    /// Where they differ most.
    float place = 1;
    float color = 1;
    /// How much the light has changed, which says a little only: two of a series rarely have the very same.
    float light = 0;
    /// How far each shows what the other does not: a part of its length. Of two of a series one was taken a little
    /// beside the other; of a cutting everything is in the whole.
    float beside = 0;
    /// How much is cut away at a side, and of which.
    float cut = 0;
    bool isOtherCut = false;

    /// How much is cut away at a side before that is noticed: a little of it may as well be something that has moved.
    static constexpr float hardlyCut = 0.01F;

    /// All of it in one number: 0 for the same picture, 1 for one that has nothing to do with it.
    [[nodiscard]] float difference() const;
};

/// Compares pictures of which the second is turned by the symmetry first. Which of two is the first changes nothing
/// but which one `isOtherCut` says.
[[nodiscard]] Likeness likenessOf(const Thumb& one, const Thumb& other, Symmetry symmetry);

} // namespace MenuExtension::SimilarPhotos
