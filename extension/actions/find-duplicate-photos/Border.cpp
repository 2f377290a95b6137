#include "Border.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <functional>

namespace MenuExtension::SimilarPhotos {

namespace {

using Color = std::array<double, 3>;

/// A line along a side of a picture.
struct Line {
    Color mean{};
    /// How far most of its pixels are from the mean.
    double spread = 0;
};

/// The most of a picture's width or height that a border at one side has.
constexpr double widestBorder = 0.25;
/// Levels of 0 to 255 that a border's pixels differ by, most of which come from compression.
constexpr double sameColor = 7;
constexpr double evenLine = 4;
/// What the edge of the picture differs from the border by.
constexpr double edge = 12;

template<class PixelAt>
Line lineOf(int length, PixelAt pixelAt)
{
    Line line;
    Color squares{};
    for (int at = 0; at < length; ++at) {
        const std::uint8_t* const pixel = pixelAt(at);
        for (std::size_t band = 0; band < line.mean.size(); ++band) {
            line.mean[band] += pixel[band];
            squares[band] += double(pixel[band]) * pixel[band];
        }
    }
    double variance = 0;
    for (std::size_t band = 0; band < line.mean.size(); ++band) {
        line.mean[band] /= length;
        variance += std::max(0.0, squares[band] / length - line.mean[band] * line.mean[band]);
    }
    line.spread = std::sqrt(variance / 3);
    return line;
}

double distance(const Color& one, const Color& other)
{
    double largest = 0;
    for (std::size_t band = 0; band < one.size(); ++band)
        largest = std::max(largest, std::abs(one[band] - other[band]));
    return largest;
}

/// The border at a side: how many lines it has, and its colour.
struct Side {
    int lines = 0;
    Color color{};
    bool isPlain = false;
};

/// `line` gives the lines from the side inwards; there are `count`.
Side sideOf(int count, const std::function<Line(int)>& line)
{
    Side side;
    const Line first = line(0);
    if (first.spread > evenLine)
        return side;
    const int most = static_cast<int>(count * widestBorder);
    int lines = 1;
    Line next = line(lines);
    while (lines <= most && next.spread <= evenLine && distance(next.mean, first.mean) <= sameColor)
        next = line(++lines);
    if (lines > most)
        return side;
    // A line that is half border is part of it; behind it the picture begins, with an edge.
    const Line inside = line(std::min(lines + 1, count - 1));
    const bool hasEdge = std::max(distance(inside.mean, first.mean), inside.spread) > edge;
    if (hasEdge)
        side = {lines + 1, first.mean, true};
    return side;
}

bool areBorders(const Side& one, const Side& other)
{
    return one.isPlain && other.isPlain && distance(one.color, other.color) <= sameColor;
}

} // namespace

Part withoutBorder(const Pixels& pixels)
{
    Part part{0, 0, pixels.width, pixels.height};
    constexpr int smallest = 16;
    if (pixels.width < smallest || pixels.height < smallest)
        return part;
    const auto row = [&](int y, int left, int right) {
        return lineOf(right - left, [&, y, left](int at) {
            return pixels.bytes + (std::size_t(y) * std::size_t(pixels.width) + std::size_t(left + at)) * 3;
        });
    };
    const auto column = [&](int x) {
        return lineOf(part.bottom - part.top, [&, x](int at) {
            return pixels.bytes + (std::size_t(part.top + at) * std::size_t(pixels.width) + std::size_t(x)) * 3;
        });
    };
    const int height = pixels.height;
    const int width = pixels.width;
    const Side top = sideOf(height, [&](int y) { return row(y, 0, width); });
    const Side bottom = sideOf(height, [&](int y) { return row(height - 1 - y, 0, width); });
    if (areBorders(top, bottom)) {
        part.top = top.lines;
        part.bottom = height - bottom.lines;
    }
    const Side left = sideOf(width, [&](int x) { return column(x); });
    const Side right = sideOf(width, [&](int x) { return column(width - 1 - x); });
    if (areBorders(left, right)) {
        part.left = left.lines;
        part.right = width - right.lines;
    }
    return part;
}

} // namespace MenuExtension::SimilarPhotos
