#include "Collection.h"

#include "Likeness.h"
#include "Signature.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

namespace MenuExtension::SimilarPhotos {

namespace {

/// How far apart the signatures of two pictures may be that look alike.
constexpr float radius = 0.6F;
/// The most pictures that a new one is compared with, nearest first.
constexpr std::size_t mostCompared = 64;

struct Candidate {
    float distance;
    std::uint32_t thumb;
    Symmetry symmetry;
};

std::vector<Candidate> candidatesFor(const Signature& signature, const NeighbourIndex& index)
{
    std::vector<Candidate> candidates;
    for (const Symmetry symmetry : symmetries) {
        // Where the new one is turned as the symmetry says, and one that is there looks like that.
        for (const auto& neighbour : index.within(turned(signature, symmetry), radius))
            candidates.push_back({neighbour.distance, neighbour.number, symmetry});
    }
    std::ranges::stable_sort(candidates, {}, &Candidate::distance);
    return candidates;
}

Resemblances::Part partOf(const Likeness& likeness)
{
    using Part = Resemblances::Part;
    if (likeness.cut <= Likeness::hardlyCut)
        return Part::Neither;
    return likeness.isOtherCut ? Part::Other : Part::One;
}

} // namespace

std::vector<Resemblances::Pair> Collection::add(std::uint32_t number, const Thumb& thumb)
{
    // A picture that is the same as one that is there in all respects is found by that one.
    constexpr float theSame = 0.01F;
    const Signature signature = signatureOf(thumb);
    std::vector<Resemblances::Pair> pairs;
    std::set<std::uint32_t> alike;
    bool isKnown = false;
    std::size_t count = 0;
    for (const Candidate& candidate : candidatesFor(signature, m_index)) {
        if (isKnown || count == mostCompared)
            break;
        if (alike.contains(candidate.thumb))
            continue;
        const auto other = m_thumbs.thumb(candidate.thumb);
        if (!other)
            continue;
        ++count;
        const Likeness likeness = likenessOf(*other, thumb, candidate.symmetry);
        const float difference = likeness.difference();
        if (difference > widestLimit)
            continue;
        alike.insert(candidate.thumb);
        pairs.push_back({m_numbers[candidate.thumb], number, difference, partOf(likeness)});
        isKnown = difference <= theSame;
    }
    m_compared += count;
    for (const auto& pair : pairs)
        m_resemblances.add(pair);
    if (!isKnown) {
        m_index.add(static_cast<std::uint32_t>(m_numbers.size()), signature);
        m_thumbs.add(thumb);
        m_numbers.push_back(number);
    }
    return pairs;
}

} // namespace MenuExtension::SimilarPhotos
