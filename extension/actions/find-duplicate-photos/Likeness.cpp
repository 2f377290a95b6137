#include "Likeness.h"

#include "Alignment.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace MenuExtension::SimilarPhotos {

namespace {

constexpr std::size_t side = Thumb::side;

/// A level of brightness in one picture and in the other, and where.
struct Pair {
    float from;
    float to;
    std::size_t cell;
};

std::vector<Pair> pairsOf(const Grid& from, const Grid& to)
{
    std::vector<Pair> pairs;
    pairs.reserve(from.size());
    for (std::size_t cell = 0; cell < from.size(); ++cell) {
        if (!std::isnan(from[cell]) && !std::isnan(to[cell]))
            pairs.push_back({from[cell], to[cell], cell});
    }
    return pairs;
}

struct Step {
    float from = 0;
    float to = 0;
    float weight = 0;
};

/// What each level of the first picture has become in the second: brighter, with more contrast, or cut off at white,
/// but never the other way round. `pairs` are in the order of the levels.
std::vector<Step> curveOf(const std::vector<Pair>& pairs)
{
    constexpr std::size_t steps = 24;
    std::vector<Step> curve;
    for (std::size_t step = 0; step < steps; ++step) {
        const std::size_t begin = pairs.size() * step / steps;
        const std::size_t end = pairs.size() * (step + 1) / steps;
        if (begin == end)
            continue;
        Step mean;
        for (std::size_t at = begin; at < end; ++at) {
            mean.from += pairs[at].from;
            mean.to += pairs[at].to;
        }
        mean.weight = static_cast<float>(end - begin);
        mean.from /= mean.weight;
        mean.to /= mean.weight;
        curve.push_back(mean);
        // What falls is levelled with what was before.
        while (curve.size() > 1 && curve.back().to < curve[curve.size() - 2].to) {
            const Step last = curve.back();
            curve.pop_back();
            Step& before = curve.back();
            const float weight = before.weight + last.weight;
            before.from = (before.from * before.weight + last.from * last.weight) / weight;
            before.to = (before.to * before.weight + last.to * last.weight) / weight;
            before.weight = weight;
        }
    }
    return curve;
}

float valueOf(const std::vector<Step>& curve, float level)
{
    if (curve.size() < 2)
        return curve.empty() ? level : curve.front().to;
    const auto behind = std::ranges::lower_bound(curve, level, {}, &Step::from);
    const auto next = std::clamp(behind, curve.begin() + 1, curve.end() - 1);
    const Step& low = *(next - 1);
    const Step& high = *next;
    if (high.from - low.from < 1e-3F)
        return (low.to + high.to) / 2;
    return low.to + (high.to - low.to) * (level - low.from) / (high.from - low.from);
}

float slopeAt(const Grid& grid, std::size_t cell)
{
    const std::size_t row = cell / side;
    const std::size_t column = cell % side;
    const float across =
        (grid[row * side + std::min(column + 1, side - 1)] - grid[row * side + (column == 0 ? 0 : column - 1)]) / 2;
    const float down =
        (grid[std::min(row + 1, side - 1) * side + column] - grid[(row == 0 ? 0 : row - 1) * side + column]) / 2;
    return std::hypot(across, down);
}

struct Difference {
    float content = 1;
    float place = 1;
};

/// How badly the second picture is told by the first.
Difference differenceBetween(const Grid& from, const Grid& to)
{
    std::vector<Pair> pairs = pairsOf(from, to);
    if (pairs.size() < from.size() / 2)
        return {};
    std::ranges::sort(pairs, {}, &Pair::from);
    const std::vector<Step> curve = curveOf(pairs);

    // Parts of a thumb, a few cells each.
    constexpr std::size_t part = 4;
    constexpr std::size_t parts = side / part;
    std::array<float, parts * parts> sums{};
    std::array<float, parts * parts> counts{};
    float sum = 0;
    float mean = 0;
    float squares = 0;
    for (const Pair& pair : pairs) {
        mean += pair.to;
        squares += pair.to * pair.to;
        // How finely a picture was made smaller shows at edges.
        constexpr float edges = 0.04F;
        constexpr float noise = 0.5F;
        const float tolerance = noise + edges * slopeAt(to, pair.cell);
        const float missing = std::max(0.0F, std::abs(pair.to - valueOf(curve, pair.from)) - tolerance);
        sum += missing * missing;
        const std::size_t at = pair.cell / side / part * parts + pair.cell % side / part;
        sums[at] += missing * missing;
        counts[at] += 1;
    }
    const auto count = static_cast<float>(pairs.size());
    mean /= count;
    // In a picture of nearly one colour noise is no content.
    constexpr float least = 2;
    const float contrast = std::max(least, std::sqrt(std::max(0.0F, squares / count - mean * mean)));
    float worst = 0;
    for (std::size_t at = 0; at < sums.size(); ++at) {
        if (counts[at] >= part)
            worst = std::max(worst, sums[at] / counts[at]);
    }
    return {std::sqrt(sum / count) / contrast, std::sqrt(worst) / contrast};
}

/// In either direction: what is cut off at white is in one of them only.
Difference differenceOf(const Grid& one, const Grid& other)
{
    const Difference there = differenceBetween(one, other);
    const Difference back = differenceBetween(other, one);
    return there.content < back.content ? there : back;
}

/// The same for the colours, as far as they are not only stronger.
float colorDifference(const Thumb& one, const Thumb& other, Symmetry symmetry)
{
    const auto blue = turned(other.blue, Thumb::colorSide, symmetry);
    const auto red = turned(other.red, Thumb::colorSide, symmetry);
    float both = 0;
    float own = 0;
    for (std::size_t cell = 0; cell < blue.size(); ++cell) {
        const auto ownBlue = static_cast<float>(one.blue[cell]);
        const auto ownRed = static_cast<float>(one.red[cell]);
        both += ownBlue * static_cast<float>(blue[cell]) + ownRed * static_cast<float>(red[cell]);
        own += ownBlue * ownBlue + ownRed * ownRed;
    }
    constexpr float weakest = 0.6F;
    constexpr float strongest = 1.6F;
    const float gain = own > 0 ? std::clamp(both / own, weakest, strongest) : 1;
    float sum = 0;
    for (std::size_t cell = 0; cell < blue.size(); ++cell) {
        const float missingBlue = static_cast<float>(blue[cell]) - gain * static_cast<float>(one.blue[cell]);
        const float missingRed = static_cast<float>(red[cell]) - gain * static_cast<float>(one.red[cell]);
        sum += missingBlue * missingBlue + missingRed * missingRed;
    }
    constexpr float scale = 40;
    return std::sqrt(sum / static_cast<float>(2 * blue.size())) / scale;
}

/// How far each shows what the other does not, and how much is cut away.
void place(const Placement& placement, Likeness& likeness)
{
    const std::array insides{placement.across.before(), placement.across.behind(), placement.down.before(),
                             placement.down.behind()};
    const auto [least, most] = std::ranges::minmax(insides);
    likeness.beside = std::max(0.0F, std::min(-least, most));
    likeness.cut = std::max(most, -least);
}

} // namespace

float Likeness::difference() const
{
    // Aligning finds a place a little beside the right one.
    constexpr float exact = 0.004F;
    const float shift = std::max(0.0F, beside - exact) * 20;
    const float trimmed = std::max(0.0F, cut - 2 * exact) * 0.5F;
    return std::min(1.0F, std::hypot(std::max(content * 2, place * 0.5F), color, shift) + trimmed);
}

Likeness likenessOf(const Thumb& one, const Thumb& other, Symmetry symmetry)
{
    constexpr float mostAspect = 1.15F;
    const float aspect = symmetry.transposed ? 1 / other.aspect : other.aspect;
    Likeness best;
    if (std::max(one.aspect, aspect) > mostAspect * std::min(one.aspect, aspect))
        return best;

    const Grid whole = brightnessOf(one);
    const Grid picture = turned(brightnessOf(other), side, symmetry);
    const float color = colorDifference(one, other, symmetry);
    const Difference asItIs = differenceOf(whole, picture);
    best = {.content = asItIs.content, .place = asItIs.place, .color = color};
    constexpr float clearlyAlike = 0.02F;
    if (asItIs.content < clearlyAlike && asItIs.place < 4 * clearlyAlike)
        return best;

    const Grid smoothWhole = smoothed(whole);
    const Grid smoothPicture = smoothed(picture);
    const Difference stayed = differenceOf(smoothWhole, smoothPicture);
    constexpr Placement::Axis smaller{0, 0.92F};
    constexpr Placement::Axis larger{0, 1.08F};
    for (const Placement& begin : {Placement{}, Placement{smaller, smaller}, Placement{larger, larger}}) {
        const auto found = align(smoothWhole, smoothPicture, begin);
        if (!found)
            continue;
        const Difference there = differenceOf(placed(smoothWhole, *found), smoothPicture);
        Likeness likeness{.content = there.content, .place = there.place, .color = color};
        place(*found, likeness);
        // Where it explains most of what differs, that is how the two were taken, whatever follows from it.
        const bool explains = there.content * 2 < stayed.content;
        if (explains || likeness.difference() < best.difference())
            best = likeness;
        if (explains)
            break;
    }
    return best;
}

} // namespace MenuExtension::SimilarPhotos
