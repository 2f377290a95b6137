#pragma once

#include "NeighbourIndex.h"
#include "Resemblances.h"
#include "ThumbStore.h"

#include <cstdint>
#include <vector>

namespace MenuExtension::SimilarPhotos {

/// Up to where pictures count as alike.
inline constexpr float usualLimit = 0.18F;
inline constexpr float widestLimit = 0.60F;

/// Pictures, of which each new one is compared with those that may look like it. One thread at a time.
class Collection {
public:
    /// Gives the pictures that resemble it, at most as far as widestLimit.
    std::vector<Resemblances::Pair> add(std::uint32_t number, const Thumb& thumb);

    [[nodiscard]] Resemblances& resemblances() { return m_resemblances; }
    [[nodiscard]] std::uint64_t compared() const { return m_compared; }
    [[nodiscard]] const NeighbourIndex& index() const { return m_index; }

private:
    ThumbStore m_thumbs;
    /// The number of each thumb's picture.
    std::vector<std::uint32_t> m_numbers;
    NeighbourIndex m_index;
    Resemblances m_resemblances;
    std::uint64_t m_compared = 0;
};

} // namespace MenuExtension::SimilarPhotos
