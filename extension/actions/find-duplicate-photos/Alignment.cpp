#include "Alignment.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace MenuExtension::SimilarPhotos {

namespace {

constexpr auto side = static_cast<int>(Thumb::side);
constexpr auto length = static_cast<float>(Thumb::side);

/// Of a grid with so many columns.
std::size_t cell(int row, int column, int columns = side)
{
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) + static_cast<std::size_t>(column);
}

/// From -0.5 to 0.5.
float placeOf(int index)
{
    return (static_cast<float>(index) + 0.5F) / length - 0.5F;
}

/// Where a place lies among the cells' centres.
float cellAt(const Placement::Axis& axis, float place)
{
    return (axis.shift + axis.scale * place + 0.5F) * length - 0.5F;
}

/// A little past the last centre is the last cell still.
bool isInside(float at)
{
    constexpr float past = 0.5F;
    return at >= -past && at <= length - 1 + past;
}

struct Between {
    int first;
    float share;
};

Between between(float at)
{
    const float clamped = std::clamp(at, 0.0F, length - 1.001F);
    const int first = static_cast<int>(clamped);
    return {first, clamped - static_cast<float>(first)};
}

float valueAt(const Grid& grid, const Between& row, const Between& column)
{
    const auto along = [&](int line) {
        const float left = grid[cell(line, column.first)];
        return left + column.share * (grid[cell(line, column.first + 1)] - left);
    };
    const float above = along(row.first);
    return above + row.share * (along(row.first + 1) - above);
}

/// The curve through four values a cell apart (Catmull and Rom's), between the second and the third.
float curve(const std::array<float, 4>& values, float share)
{
    const float second = values[2] - values[0];
    const float third = 2 * values[0] - 5 * values[1] + 4 * values[2] - values[3];
    const float fourth = 3 * (values[1] - values[2]) + values[3] - values[0];
    return values[1] + share * (second + share * (third + share * fourth)) / 2;
}

/// As valueAt(), and closer to what lies between the cells.
float curvedValueAt(const Grid& grid, float atRow, float atColumn)
{
    const Between row = between(atRow);
    const Between column = between(atColumn);
    const auto inside = [](int index) { return std::clamp(index, 0, side - 1); };
    std::array<float, 4> down{};
    for (int line = 0; line < 4; ++line) {
        std::array<float, 4> across{};
        for (int at = 0; at < 4; ++at)
            across[static_cast<std::size_t>(at)] =
                grid[cell(inside(row.first + line - 1), inside(column.first + at - 1))];
        down[static_cast<std::size_t>(line)] = curve(across, column.share);
    }
    return curve(down, row.share);
}

struct Slopes {
    Grid across;
    Grid down;
};

/// Per cell.
Slopes slopesOf(const Grid& grid)
{
    Slopes slopes{};
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column) {
            const int left = std::max(column - 1, 0);
            const int right = std::min(column + 1, side - 1);
            const int top = std::max(row - 1, 0);
            const int bottom = std::min(row + 1, side - 1);
            slopes.across[cell(row, column)] =
                (grid[cell(row, right)] - grid[cell(row, left)]) / static_cast<float>(right - left);
            slopes.down[cell(row, column)] =
                (grid[cell(bottom, column)] - grid[cell(top, column)]) / static_cast<float>(bottom - top);
        }
    }
    return slopes;
}

/// The four numbers of a placement, contrast and brightness.
constexpr std::size_t unknowns = 6;
using Vector = std::array<double, unknowns>;
using Matrix = std::array<Vector, unknowns>;

/// Solves a symmetric system by elimination; nothing where it has no one solution.
std::optional<Vector> solve(Matrix matrix, Vector right)
{
    for (std::size_t pivot = 0; pivot < unknowns; ++pivot) {
        constexpr double least = 1e-9;
        if (std::abs(matrix[pivot][pivot]) < least)
            return std::nullopt;
        for (std::size_t row = pivot + 1; row < unknowns; ++row) {
            const double factor = matrix[row][pivot] / matrix[pivot][pivot];
            for (std::size_t column = pivot; column < unknowns; ++column)
                matrix[row][column] -= factor * matrix[pivot][column];
            right[row] -= factor * right[pivot];
        }
    }
    Vector solution{};
    for (std::size_t row = unknowns; row-- > 0;) {
        double sum = right[row];
        for (std::size_t column = row + 1; column < unknowns; ++column)
            sum -= matrix[row][column] * solution[column];
        solution[row] = sum / matrix[row][row];
    }
    return solution;
}

/// The sums of the least squares at a placement, for the way to the next one.
struct Equations {
    Matrix matrix{};
    Vector right{};

    void add(const Vector& slope, double missing)
    {
        for (std::size_t row = 0; row < unknowns; ++row) {
            for (std::size_t column = row; column < unknowns; ++column)
                matrix[row][column] += slope[row] * slope[column];
            right[row] += slope[row] * missing;
        }
    }
    std::optional<Vector> step()
    {
        for (std::size_t row = 0; row < unknowns; ++row) {
            // Where the picture says nothing about a number, it stays.
            constexpr double damping = 1e-4;
            matrix[row][row] += matrix[row][row] * damping + damping;
            for (std::size_t column = 0; column < row; ++column)
                matrix[row][column] = matrix[column][row];
        }
        return solve(matrix, right);
    }
};

bool isNear(const Placement& placement)
{
    constexpr float farthest = 0.13F;
    constexpr float mostScale = 0.22F;
    const auto isAxisNear = [](const Placement::Axis& axis) {
        return std::abs(axis.shift) <= farthest && std::abs(axis.scale - 1) <= mostScale;
    };
    return isAxisNear(placement.across) && isAxisNear(placement.down);
}

} // namespace

Grid brightnessOf(const Thumb& thumb)
{
    Grid grid{};
    std::ranges::transform(thumb.brightness, grid.begin(),
                           [&](std::int8_t value) { return thumb.mean + thumb.step * static_cast<float>(value); });
    return grid;
}

Grid smoothed(const Grid& grid)
{
    const auto along = [](const Grid& from, bool down) {
        Grid result{};
        for (int row = 0; row < side; ++row) {
            for (int column = 0; column < side; ++column) {
                const auto at = [&](int offset) {
                    const int line = std::clamp((down ? row : column) + offset, 0, side - 1);
                    return from[down ? cell(line, column) : cell(row, line)];
                };
                result[cell(row, column)] = (at(-1) + 2 * at(0) + at(1)) / 4;
            }
        }
        return result;
    };
    return along(along(grid, false), true);
}

std::optional<Placement> align(const Grid& whole, const Grid& picture, const Placement& begin)
{
    const Slopes slopes = slopesOf(whole);
    Placement placement = begin;
    double contrast = 1;
    double brightness = 0;
    constexpr int mostSteps = 14;
    for (int step = 0; step < mostSteps; ++step) {
        Equations equations;
        for (int row = 0; row < side; ++row) {
            const float down = placeOf(row);
            const float atRow = cellAt(placement.down, down);
            if (!isInside(atRow))
                continue;
            const Between rows = between(atRow);
            for (int column = 0; column < side; ++column) {
                const float across = placeOf(column);
                const float atColumn = cellAt(placement.across, across);
                if (!isInside(atColumn))
                    continue;
                const Between columns = between(atColumn);
                const double value = valueAt(whole, rows, columns);
                const double acrossSlope = contrast * length * valueAt(slopes.across, rows, columns);
                const double downSlope = contrast * length * valueAt(slopes.down, rows, columns);
                equations.add({acrossSlope, acrossSlope * across, downSlope, downSlope * down, value, 1},
                              picture[cell(row, column)] - contrast * value - brightness);
            }
        }
        const auto change = equations.step();
        if (!change)
            return std::nullopt;
        // A long step overshoots.
        constexpr double longest = 0.04;
        const double largest = std::max(
            {std::abs((*change)[0]), std::abs((*change)[1]), std::abs((*change)[2]), std::abs((*change)[3])});
        const auto factor = static_cast<float>(largest > longest ? longest / largest : 1);
        placement.across.shift += factor * static_cast<float>((*change)[0]);
        placement.across.scale += factor * static_cast<float>((*change)[1]);
        placement.down.shift += factor * static_cast<float>((*change)[2]);
        placement.down.scale += factor * static_cast<float>((*change)[3]);
        contrast += (*change)[4];
        brightness += (*change)[5];
        if (!isNear(placement) || contrast <= 0)
            return std::nullopt;
        constexpr double done = 2e-4;
        if (largest < done)
            break;
    }
    return placement;
}

Grid placed(const Grid& whole, const Placement& placement)
{
    Grid result{};
    for (int row = 0; row < side; ++row) {
        const float atRow = cellAt(placement.down, placeOf(row));
        for (int column = 0; column < side; ++column) {
            const float atColumn = cellAt(placement.across, placeOf(column));
            result[cell(row, column)] = isInside(atRow) && isInside(atColumn)
                                            ? curvedValueAt(whole, atRow, atColumn)
                                            : std::numeric_limits<float>::quiet_NaN();
        }
    }
    return result;
}

ColorGrid placed(const ColorGrid& whole, const Placement& placement)
{
    constexpr auto count = static_cast<int>(Thumb::colorSide);
    const auto weights = [](const Placement::Axis& axis, int index) {
        const float place = (static_cast<float>(index) + 0.5F) / count - 0.5F;
        const float at = std::clamp((axis.shift + axis.scale * place + 0.5F) * count - 0.5F, 0.0F, count - 1.001F);
        return Between{static_cast<int>(at), at - std::floor(at)};
    };
    ColorGrid result{};
    for (int row = 0; row < count; ++row) {
        const Between rows = weights(placement.down, row);
        for (int column = 0; column < count; ++column) {
            const Between columns = weights(placement.across, column);
            const auto along = [&](int line) {
                const std::size_t at = cell(line, columns.first, count);
                return std::lerp(whole[at], whole[at + 1], columns.share);
            };
            result[cell(row, column, count)] = std::lerp(along(rows.first), along(rows.first + 1), rows.share);
        }
    }
    return result;
}

} // namespace MenuExtension::SimilarPhotos
