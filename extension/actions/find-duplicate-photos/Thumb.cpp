#include "Thumb.h"

#include "Border.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>
#include <vector>

namespace MenuExtension::SimilarPhotos {

namespace {

/// Each cell's mean of the values in its part of a picture, counted by area.
template<std::size_t Side>
std::array<float, Side * Side> cellsOf(const std::vector<float>& values, int width, const Part& part)
{
    const auto cellWidth = static_cast<float>(part.right - part.left) / Side;
    const auto cellHeight = static_cast<float>(part.bottom - part.top) / Side;
    // How much of the pixel at a place lies between two others.
    const auto share = [](int pixel, float begin, float end) {
        return std::min(end, static_cast<float>(pixel + 1)) - std::max(begin, static_cast<float>(pixel));
    };
    std::array<float, Side * Side> cells{};
    for (std::size_t row = 0; row < Side; ++row) {
        const float top = static_cast<float>(part.top) + static_cast<float>(row) * cellHeight;
        const float bottom = top + cellHeight;
        const int lastRow = std::min(static_cast<int>(std::ceil(bottom)), part.bottom);
        for (std::size_t column = 0; column < Side; ++column) {
            const float left = static_cast<float>(part.left) + static_cast<float>(column) * cellWidth;
            const float right = left + cellWidth;
            const int lastColumn = std::min(static_cast<int>(std::ceil(right)), part.right);
            float sum = 0;
            float area = 0;
            for (int y = static_cast<int>(top); y < lastRow; ++y) {
                const float high = share(y, top, bottom);
                for (int x = static_cast<int>(left); x < lastColumn; ++x) {
                    const float weight = high * share(x, left, right);
                    sum += weight * values[std::size_t(y) * std::size_t(width) + std::size_t(x)];
                    area += weight;
                }
            }
            cells[row * Side + column] = area > 0 ? sum / area : 0;
        }
    }
    return cells;
}

std::int8_t toByte(float value)
{
    return static_cast<std::int8_t>(std::clamp(std::lround(value), -127L, 127L));
}

} // namespace

Thumb thumbOf(const Pixels& pixels)
{
    const std::size_t count = std::size_t(pixels.width) * std::size_t(pixels.height);
    std::vector<float> brightness(count);
    std::vector<float> blue(count);
    std::vector<float> red(count);
    std::vector<float> full(count);
    for (std::size_t at = 0; at < count; ++at) {
        const auto r = static_cast<float>(pixels.bytes[at * 3]);
        const auto g = static_cast<float>(pixels.bytes[at * 3 + 1]);
        const auto b = static_cast<float>(pixels.bytes[at * 3 + 2]);
        const float y = 0.299F * r + 0.587F * g + 0.114F * b;
        brightness[at] = y;
        blue[at] = (b - y) * 0.564F;
        red[at] = (r - y) * 0.713F;
        constexpr float end = 246;
        full[at] = std::max({r, g, b}) >= end ? 1.0F : 0.0F;
    }
    const Part part = withoutBorder(pixels);

    Thumb thumb;
    thumb.aspect = static_cast<float>(part.right - part.left) / static_cast<float>(part.bottom - part.top);
    const auto cells = cellsOf<Thumb::side>(brightness, pixels.width, part);
    for (const float cell : cells)
        thumb.mean += cell / static_cast<float>(cells.size());
    float largest = 1;
    for (const float cell : cells)
        largest = std::max(largest, std::abs(cell - thumb.mean));
    thumb.step = largest / 127;
    std::ranges::transform(cells, thumb.brightness.begin(),
                           [&](float cell) { return toByte((cell - thumb.mean) / thumb.step); });
    std::ranges::transform(cellsOf<Thumb::colorSide>(blue, pixels.width, part), thumb.blue.begin(), toByte);
    std::ranges::transform(cellsOf<Thumb::colorSide>(red, pixels.width, part), thumb.red.begin(), toByte);
    const auto shares = cellsOf<Thumb::side>(full, pixels.width, part);
    constexpr float noticed = 0.04F;
    for (std::size_t cell = 0; cell < shares.size(); ++cell)
        thumb.full[cell / 8] |= static_cast<std::uint8_t>((shares[cell] > noticed ? 1U : 0U) << cell % 8);
    return thumb;
}

std::string bytesOf(const Thumb& thumb)
{
    static_assert(std::is_trivially_copyable_v<Thumb>);
    std::string bytes(thumbBytes, '\0');
    std::memcpy(bytes.data(), &thumb, thumbBytes);
    return bytes;
}

std::optional<Thumb> thumbFrom(std::string_view bytes)
{
    Thumb thumb;
    if (bytes.size() != thumbBytes)
        return std::nullopt;
    std::memcpy(&thumb, bytes.data(), thumbBytes);
    constexpr float narrowest = 1e-7F;
    const auto isWithin = [](float value, float least, float most) { return value >= least && value <= most; };
    if (!isWithin(thumb.mean, 0, 255) || !isWithin(thumb.step, 1.0F / 255, 255) ||
        !isWithin(thumb.aspect, narrowest, 1 / narrowest))
        return std::nullopt;
    return thumb;
}

} // namespace MenuExtension::SimilarPhotos
