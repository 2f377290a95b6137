#include "Likeness.h"

#include "Alignment.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace MenuExtension::SimilarPhotos {

namespace {

constexpr std::size_t side = Thumb::side;
constexpr std::size_t colorSide = Thumb::colorSide;

/// A picture as it is compared: turned, in levels.
struct View {
    Grid brightness{};
    /// 1 in the cells where a band is at its end: what was made brighter has lost there what it was.
    Grid full{};
    ColorGrid blue{};
    ColorGrid red{};
};

ColorGrid levels(const std::array<std::int8_t, colorSide * colorSide>& values, Symmetry symmetry)
{
    ColorGrid result{};
    std::ranges::copy(turned(values, colorSide, symmetry), result.begin());
    return result;
}

View viewOf(const Thumb& thumb, Symmetry symmetry)
{
    Grid full{};
    for (std::size_t cell = 0; cell < full.size(); ++cell)
        full[cell] = (thumb.full[cell / 8] >> cell % 8 & 1U) != 0 ? 1 : 0;
    return {.brightness = turned(brightnessOf(thumb), side, symmetry),
            .full = turned(full, side, symmetry),
            .blue = levels(thumb.blue, symmetry),
            .red = levels(thumb.red, symmetry)};
}

/// A level of brightness in one picture and in the other, and where.
struct Pair {
    float from;
    float to;
    std::size_t cell;
    bool isFromFull;
    bool isToFull;

    /// For what the levels have become.
    [[nodiscard]] float weight() const { return isFromFull || isToFull ? 0.05F : 1; }
};

/// The brightness that is compared, and what of it is cut off.
struct Compared {
    const Grid& brightness;
    const Grid& full;
};

std::vector<Pair> pairsOf(const Compared& from, const Compared& to)
{
    constexpr float some = 0.3F;
    std::vector<Pair> pairs;
    pairs.reserve(from.brightness.size());
    for (std::size_t cell = 0; cell < from.brightness.size(); ++cell) {
        if (!std::isnan(from.brightness[cell]) && !std::isnan(to.brightness[cell]))
            pairs.push_back(
                {from.brightness[cell], to.brightness[cell], cell, from.full[cell] > some, to.full[cell] > some});
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
            mean.from += pairs[at].weight() * pairs[at].from;
            mean.to += pairs[at].weight() * pairs[at].to;
            mean.weight += pairs[at].weight();
        }
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
    constexpr float least = 1e-3F;
    if (high.from - low.from < least)
        return (low.to + high.to) / 2;
    return low.to + (high.to - low.to) * (level - low.from) / (high.from - low.from);
}

float slopeAt(const Grid& grid, std::size_t cell)
{
    const std::size_t row = cell / side;
    const std::size_t column = cell % side;
    const float across =
        grid[row * side + std::min(column + 1, side - 1)] - grid[row * side + (column == 0 ? 0 : column - 1)];
    const float down =
        grid[std::min(row + 1, side - 1) * side + column] - grid[(row == 0 ? 0 : row - 1) * side + column];
    return std::hypot(across, down) / 2;
}

struct Difference {
    float content = 1;
    float place = 1;
    float light = 0;
};

/// How much of a cell's level in the second picture the first does not tell.
float missing(const Pair& pair, float expected, const Grid& to)
{
    // Cut off, it would have been brighter.
    if (pair.isToFull ? expected > pair.to : pair.isFromFull && expected < pair.to)
        return 0;
    // How finely a picture was made smaller shows at edges.
    constexpr float edges = 0.04F;
    constexpr float noise = 0.5F;
    return std::max(0.0F, std::abs(pair.to - expected) - noise - edges * slopeAt(to, pair.cell));
}

/// How badly the second picture is told by the first.
Difference differenceBetween(const Compared& from, const Compared& to)
{
    std::vector<Pair> pairs = pairsOf(from, to);
    if (pairs.size() < from.brightness.size() / 2)
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
    float light = 0;
    for (const Pair& pair : pairs) {
        const float expected = valueOf(curve, pair.from);
        light += std::pow(expected - pair.from, 2.0F);
        mean += pair.to;
        squares += pair.to * pair.to;
        const float square = std::pow(missing(pair, expected, to.brightness), 2.0F);
        sum += square;
        const std::size_t at = pair.cell / side / part * parts + pair.cell % side / part;
        sums[at] += square;
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
    return {std::sqrt(sum / count) / contrast, std::sqrt(worst) / contrast, std::sqrt(light / count) / contrast};
}

/// In either direction: what is cut off at white is in one of them only.
Difference differenceOf(const Compared& one, const Compared& other)
{
    const Difference there = differenceBetween(one, other);
    const Difference back = differenceBetween(other, one);
    return there.content < back.content ? there : back;
}

/// How much each of a colour's cells counts.
ColorGrid weightOfColors(const Grid& full, const Grid& otherFull)
{
    constexpr std::size_t ratio = side / colorSide;
    constexpr float least = 0.05F;
    ColorGrid result{};
    result.fill(least);
    for (std::size_t cell = 0; cell < full.size(); ++cell) {
        if (full[cell] < 1 && otherFull[cell] < 1)
            result[cell / side / ratio * colorSide + cell % side / ratio] += 1.0F / (ratio * ratio);
    }
    return result;
}

/// The same for the colours, as far as they are not only stronger.
float colorDifference(const View& whole, const View& picture, const Placement& placement)
{
    const auto blue = placed(whole.blue, placement);
    const auto red = placed(whole.red, placement);
    const auto counts = weightOfColors(placed(whole.full, placement), picture.full);
    float both = 0;
    float own = 0;
    float count = 0;
    for (std::size_t cell = 0; cell < blue.size(); ++cell) {
        both += counts[cell] * (blue[cell] * picture.blue[cell] + red[cell] * picture.red[cell]);
        own += counts[cell] * (blue[cell] * blue[cell] + red[cell] * red[cell]);
        count += counts[cell];
    }
    constexpr float weakest = 0.6F;
    constexpr float strongest = 1.6F;
    const float gain = own > 0 ? std::clamp(both / own, weakest, strongest) : 1;
    float sum = 0;
    for (std::size_t cell = 0; cell < blue.size(); ++cell) {
        const float missingBlue = picture.blue[cell] - gain * blue[cell];
        const float missingRed = picture.red[cell] - gain * red[cell];
        sum += counts[cell] * (missingBlue * missingBlue + missingRed * missingRed);
    }
    constexpr float scale = 40;
    return std::sqrt(sum / (2 * count)) / scale;
}

/// How far each shows what the other does not, and how much is cut away.
void place(const Placement& placement, Likeness& likeness)
{
    const std::array insides{placement.across.before(), placement.across.behind(), placement.down.before(),
                             placement.down.behind()};
    const auto [least, most] = std::ranges::minmax(insides);
    likeness.beside = std::max(0.0F, std::min(-least, most));
    likeness.cut = std::max(most, -least);
    likeness.isOtherCut = most > -least;
}

bool haveLikeShapes(const Thumb& one, const Thumb& other, Symmetry symmetry)
{
    constexpr float mostAspect = 1.15F;
    const float aspect = symmetry.transposed ? 1 / other.aspect : other.aspect;
    return std::max(one.aspect, aspect) <= mostAspect * std::min(one.aspect, aspect);
}

/// How the second picture is told by the first, which it may be a part of.
Likeness likenessBetween(const View& whole, const View& picture)
{
    const Difference asItIs = differenceOf({whole.brightness, whole.full}, {picture.brightness, picture.full});
    Likeness best{.content = asItIs.content,
                  .place = asItIs.place,
                  .color = colorDifference(whole, picture, {}),
                  .light = asItIs.light};
    constexpr float clearlyAlike = 0.02F;
    if (asItIs.content < clearlyAlike && asItIs.place < 2 * clearlyAlike)
        return best;

    const Grid smoothWhole = smoothed(whole.brightness);
    const Grid smoothPicture = smoothed(picture.brightness);
    const Difference stayed = differenceOf({smoothWhole, whole.full}, {smoothPicture, picture.full});
    constexpr Placement::Axis smaller{0, 0.92F};
    constexpr Placement::Axis larger{0, 1.08F};
    for (const Placement& begin : {Placement{}, Placement{smaller, smaller}, Placement{larger, larger}}) {
        const auto found = align(smoothWhole, smoothPicture, begin);
        if (!found)
            continue;
        const Difference there =
            differenceOf({placed(smoothWhole, *found), placed(whole.full, *found)}, {smoothPicture, picture.full});
        // Where it explains most of what differs, that is how the two were taken, whatever follows from it.
        constexpr float most = 0.55F;
        if (there.content < stayed.content * most) {
            best = {.content = there.content,
                    .place = there.place,
                    .color = colorDifference(whole, picture, *found),
                    .light = there.light};
            place(*found, best);
            break;
        }
    }
    return best;
}

} // namespace

float Likeness::difference() const
{
    // Aligning finds a place a little beside the right one.
    constexpr float exact = 0.003F;
    const float shift = std::max(0.0F, beside - exact) * 50;
    // What was cut has its cells elsewhere, and so a little different everywhere.
    constexpr float clearlyCut = 0.03F;
    const float isCut = std::clamp((cut - hardlyCut) / (clearlyCut - hardlyCut), 0.0F, 1.0F);
    // Where the light is another altogether, levels are told less well, and it was not the next of a series.
    constexpr float hardlyLit = 0.3F;
    constexpr float clearlyLit = 0.5F;
    const float isLit = std::clamp((light - hardlyLit) / (clearlyLit - hardlyLit), 0.0F, 1.0F);
    const float everywhere = std::lerp(content * 3, content * 2.2F, isLit);
    const float somewhere = std::lerp(place * 1.1F, place * 0.7F, isLit);
    const float differs = std::lerp(std::max(everywhere, somewhere), std::max(content * 2, place * 0.5F), isCut);
    const float mostOfLight = std::lerp(0.04F, 0.02F, isLit);
    return std::min(1.0F, std::hypot(differs, color, shift) + std::max(0.0F, cut - hardlyCut) * 0.5F +
                              std::min(light * 0.5F, mostOfLight));
}

Likeness likenessOf(const Thumb& one, const Thumb& other, Symmetry symmetry)
{
    if (!haveLikeShapes(one, other, symmetry))
        return {};
    View whole = viewOf(one, {});
    View picture = viewOf(other, symmetry);
    // Aligning finds a little more in one direction, and which of the two was read first must say nothing.
    const bool isSwapped = other.brightness < one.brightness;
    if (isSwapped)
        std::swap(whole, picture);
    Likeness likeness = likenessBetween(whole, picture);
    if (likeness.cut > Likeness::hardlyCut && !likeness.isOtherCut) {
        // A part is found in its whole better than a whole around its part.
        Likeness back = likenessBetween(picture, whole);
        back.isOtherCut = !back.isOtherCut;
        if (back.difference() < likeness.difference())
            likeness = back;
    }
    if (isSwapped)
        likeness.isOtherCut = !likeness.isOtherCut;
    return likeness;
}

} // namespace MenuExtension::SimilarPhotos
