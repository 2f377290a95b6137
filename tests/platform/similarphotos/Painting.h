#pragma once

#include "extension/actions/find-duplicate-photos/Thumb.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

/// A picture that is made by a number, and what is done to it.
class Painting {
public:
    /// Soft spots of all colours on a slope; the same number is the same picture.
    static Painting of(std::uint32_t number, int width = 320, int height = 240, double shift = 0)
    {
        std::mt19937 random(number);
        std::uniform_real_distribution<double> any(0, 1);
        struct Spot {
            double x, y, size;
            std::array<double, 3> color;
        };
        std::vector<Spot> spots;
        constexpr int count = 40;
        for (int spot = 0; spot < count; ++spot)
            spots.push_back({1.4 * any(random) - 0.2,
                             1.4 * any(random) - 0.2,
                             0.03 + 0.12 * any(random),
                             {140 * any(random) - 70, 140 * any(random) - 70, 140 * any(random) - 70}});
        Painting painting(width, height);
        for (int row = 0; row < height; ++row) {
            for (int column = 0; column < width; ++column) {
                const double x = (column + 0.5) / width + shift;
                const double y = (row + 0.5) / height;
                std::array<double, 3> color{90 + 40 * x, 110 + 30 * y, 120 - 30 * x};
                for (const Spot& spot : spots) {
                    const double far =
                        ((x - spot.x) * (x - spot.x) + (y - spot.y) * (y - spot.y)) / spot.size / spot.size;
                    if (far > 9)
                        continue;
                    const double strength = std::exp(-far);
                    for (std::size_t band = 0; band < color.size(); ++band)
                        color[band] += spot.color[band] * strength;
                }
                painting.set(column, row, color);
            }
        }
        return painting;
    }

    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }
    [[nodiscard]] const std::vector<std::uint8_t>& bytes() const { return m_bytes; }
    [[nodiscard]] MenuExtension::SimilarPhotos::Pixels pixels() const { return {m_width, m_height, m_bytes.data()}; }
    [[nodiscard]] MenuExtension::SimilarPhotos::Thumb thumb() const
    {
        return MenuExtension::SimilarPhotos::thumbOf(pixels());
    }

    /// Each new pixel is the mean of those that it covers.
    [[nodiscard]] Painting resized(int width, int height) const
    {
        Painting result(width, height);
        for (int row = 0; row < height; ++row) {
            for (int column = 0; column < width; ++column) {
                const int left = column * m_width / width;
                const int right = std::max(left + 1, (column + 1) * m_width / width);
                const int top = row * m_height / height;
                const int bottom = std::max(top + 1, (row + 1) * m_height / height);
                std::array<double, 3> sum{};
                for (int y = top; y < bottom; ++y) {
                    for (int x = left; x < right; ++x) {
                        for (std::size_t band = 0; band < sum.size(); ++band)
                            sum[band] += at(x, y)[band];
                    }
                }
                for (double& band : sum)
                    band /= (right - left) * (bottom - top);
                result.set(column, row, sum);
            }
        }
        return result;
    }
    /// A quarter turn to the right.
    [[nodiscard]] Painting turned() const
    {
        Painting result(m_height, m_width);
        for (int row = 0; row < m_width; ++row) {
            for (int column = 0; column < m_height; ++column)
                result.copy(column, row, at(row, m_height - 1 - column));
        }
        return result;
    }
    [[nodiscard]] Painting mirrored() const
    {
        Painting result(m_width, m_height);
        for (int row = 0; row < m_height; ++row) {
            for (int column = 0; column < m_width; ++column)
                result.copy(column, row, at(m_width - 1 - column, row));
        }
        return result;
    }
    [[nodiscard]] Painting brightened(double factor, double offset) const
    {
        Painting result = *this;
        for (std::uint8_t& byte : result.m_bytes)
            byte = toByte(byte * factor + offset);
        return result;
    }
    /// What was red is blue.
    [[nodiscard]] Painting withBandsSwapped() const
    {
        Painting result = *this;
        for (std::size_t at = 0; at < m_bytes.size(); at += 3)
            std::swap(result.m_bytes[at], result.m_bytes[at + 2]);
        return result;
    }
    /// As strong compression does.
    [[nodiscard]] Painting noisy(double strength) const
    {
        Painting result = *this;
        std::mt19937 random(7);
        std::normal_distribution<double> noise(0, strength);
        for (std::uint8_t& byte : result.m_bytes)
            byte = toByte(byte + noise(random));
        return result;
    }
    [[nodiscard]] Painting cut(int left, int top, int right, int bottom) const
    {
        Painting result(m_width - left - right, m_height - top - bottom);
        for (int row = 0; row < result.m_height; ++row) {
            for (int column = 0; column < result.m_width; ++column)
                result.copy(column, row, at(column + left, row + top));
        }
        return result;
    }
    [[nodiscard]] Painting framed(int border, const std::array<double, 3>& color) const
    {
        return plain(m_width + 2 * border, m_height + 2 * border, color).with(*this, border, border);
    }
    /// Another painting on it.
    [[nodiscard]] Painting with(const Painting& other, int left, int top) const
    {
        Painting result = *this;
        for (int row = 0; row < other.m_height; ++row) {
            for (int column = 0; column < other.m_width; ++column)
                result.copy(column + left, row + top, other.at(column, row));
        }
        return result;
    }
    [[nodiscard]] static Painting plain(int width, int height, const std::array<double, 3>& color)
    {
        Painting result(width, height);
        for (int row = 0; row < height; ++row) {
            for (int column = 0; column < width; ++column)
                result.set(column, row, color);
        }
        return result;
    }

private:
    Painting(int width, int height)
        : m_width(width), m_height(height),
          m_bytes(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3)
    {}

    static std::uint8_t toByte(double value) { return static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0)); }

    [[nodiscard]] const std::uint8_t* at(int column, int row) const
    {
        return m_bytes.data() + static_cast<std::size_t>(row * m_width + column) * 3;
    }
    void set(int column, int row, const std::array<double, 3>& color)
    {
        for (std::size_t band = 0; band < color.size(); ++band)
            m_bytes[static_cast<std::size_t>(row * m_width + column) * 3 + band] = toByte(color[band]);
    }
    void copy(int column, int row, const std::uint8_t* pixel)
    {
        std::copy_n(pixel, 3, m_bytes.begin() + static_cast<std::ptrdiff_t>(row * m_width + column) * 3);
    }

    int m_width;
    int m_height;
    std::vector<std::uint8_t> m_bytes;
};
