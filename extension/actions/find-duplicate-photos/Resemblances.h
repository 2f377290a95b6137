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
    std::vector<std::uint32_t> m_above;
};

/// Which pictures resemble which, and how much: enough of it to say for every limit which belong together, and no
/// more than a few for each picture, however many resemble each other.
class Resemblances {
public:
    /// Which of two is a part that was cut out of the other.
    enum class Part : std::uint8_t { Neither, One, Other };
    struct Pair {
        std::uint32_t one;
        std::uint32_t other;
        float difference;
        Part part = Part::Neither;
    };

    void add(const Pair& pair);
    /// The pairs that lead from each picture of a group to all others of it, the most alike first.
    [[nodiscard]] const std::vector<Pair>& needed();
    /// Groups of two and more, each in the order of its numbers: those that are joined by pairs which differ by no
    /// more than the limit. A part, and what is the same as it, belongs to one whole alone, the one that it is most
    /// like: two pictures of a series have parts in common, and are not the same for that.
    [[nodiscard]] std::vector<std::vector<std::uint32_t>> groups(float limit);

private:
    void forgetNeedless();

    std::vector<Pair> m_pairs;
    /// As many there were when the last needless ones were forgotten.
    std::size_t m_kept = 0;
    bool m_areNeeded = true;
};

} // namespace MenuExtension::SimilarPhotos
