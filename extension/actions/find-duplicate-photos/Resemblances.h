#pragma once

#include <cstdint>
#include <vector>

namespace MenuExtension::SimilarPhotos {

/// Sets of numbers that grow together.
class Clusters {
public:
    [[nodiscard]] std::uint32_t of(std::uint32_t number);
    /// False where they are together already.
    bool join(std::uint32_t one, std::uint32_t other);

private:
    void reach(std::uint32_t number);

    std::vector<std::uint32_t> m_above;
};

/// Which pictures resemble which, and how much: enough of it to say for every limit which belong together, and no
/// more than a few for each picture, however many resemble each other.
class Resemblances {
public:
    struct Pair {
        std::uint32_t one;
        std::uint32_t other;
        float difference;
    };

    void add(const Pair& pair);
    /// The pairs that lead from each picture of a group to all others of it, the most alike first.
    [[nodiscard]] const std::vector<Pair>& needed();
    /// Groups of two and more, each in the order of its numbers: those that are joined by pairs which differ by no
    /// more than the limit.
    [[nodiscard]] std::vector<std::vector<std::uint32_t>> groups(float limit);

private:
    void forgetNeedless();

    std::vector<Pair> m_pairs;
    /// As many there were when the last needless ones were forgotten.
    std::size_t m_kept = 0;
    bool m_areNeeded = true;
};

} // namespace MenuExtension::SimilarPhotos
