#pragma once

#include "Signature.h"

#include <cstdint>
#include <vector>

namespace MenuExtension::SimilarPhotos {

/// Finds the points near another one without looking at all of them: vantage-point trees, of which there are few,
/// each at least twice as large as the next. One thread at a time.
class NeighbourIndex {
public:
    struct Neighbour {
        std::uint32_t number;
        float distance;
        friend bool operator==(const Neighbour&, const Neighbour&) = default;
    };

    /// `number` is the caller's own.
    void add(std::uint32_t number, const Signature& signature);
    [[nodiscard]] std::size_t size() const { return m_points.size(); }

    /// All points at most that far away, in no order.
    [[nodiscard]] std::vector<Neighbour> within(const Signature& centre, float radius) const;

    /// How many distances were measured to answer so far.
    [[nodiscard]] std::uint64_t measured() const { return m_measured; }

private:
    struct Point {
        Signature signature;
        std::uint32_t number;
        /// Of a vantage point: half of those in its part of the tree are at most that far away, and come first.
        float radius;
    };
    struct Search;

    void build(std::size_t begin, std::size_t end);
    void search(std::size_t begin, std::size_t end, Search& search) const;

    std::vector<Point> m_points;
    /// Where each tree ends.
    std::vector<std::size_t> m_ends;
    mutable std::uint64_t m_measured = 0;
};

} // namespace MenuExtension::SimilarPhotos
