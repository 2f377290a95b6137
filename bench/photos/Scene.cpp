#include "Scene.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace Scenes {

namespace {

using Color = std::array<double, 3>;

double hashed(std::uint32_t seed, int x, int y)
{
    std::uint32_t h = seed * 0x9e3779b9U ^ static_cast<std::uint32_t>(x) * 0x85ebca6bU ^
                      static_cast<std::uint32_t>(y) * 0xc2b2ae35U;
    h ^= h >> 16U;
    h *= 0x7feb352dU;
    h ^= h >> 15U;
    h *= 0x846ca68bU;
    h ^= h >> 16U;
    return static_cast<double>(h) / 4294967296.0;
}

double noise(std::uint32_t seed, double x, double y)
{
    const double floorX = std::floor(x);
    const double floorY = std::floor(y);
    const int column = static_cast<int>(floorX);
    const int row = static_cast<int>(floorY);
    const auto ease = [](double t) { return t * t * (3 - 2 * t); };
    const double u = ease(x - floorX);
    const double v = ease(y - floorY);
    const double above = std::lerp(hashed(seed, column, row), hashed(seed, column + 1, row), u);
    const double below = std::lerp(hashed(seed, column, row + 1), hashed(seed, column + 1, row + 1), u);
    return std::lerp(above, below, v);
}

double fractal(std::uint32_t seed, double x, double y, int octaves)
{
    double sum = 0;
    double weight = 0.5;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += weight * noise(seed + static_cast<std::uint32_t>(octave), x, y);
        x *= 2.03;
        y *= 2.03;
        weight *= 0.5;
    }
    return sum;
}

Color mix(const Color& one, const Color& other, double share)
{
    return {std::lerp(one[0], other[0], share), std::lerp(one[1], other[1], share),
            std::lerp(one[2], other[2], share)};
}

struct Palette {
    Color high;
    Color low;
    Color ridge;
    Color ground;
    double horizon;
    double sunX;
    double sunY;
    double rough;
    int ridges;
};

Palette paletteOf(std::uint32_t composition)
{
    std::mt19937 random(composition);
    std::uniform_real_distribution<double> any(0, 1);
    const auto color = [&](double least, double most) {
        return Color{std::lerp(least, most, any(random)), std::lerp(least, most, any(random)),
                     std::lerp(least, most, any(random))};
    };
    Palette palette;
    palette.high = color(20, 200);
    palette.low = color(120, 250);
    palette.ridge = color(20, 150);
    palette.ground = color(20, 190);
    palette.horizon = std::lerp(0.25, 0.7, any(random));
    palette.sunX = any(random);
    palette.sunY = any(random) * palette.horizon;
    palette.rough = std::lerp(0.05, 0.3, any(random));
    palette.ridges = 1 + static_cast<int>(any(random) * 3.99);
    return palette;
}

Color colorAt(const Scene& scene, const Palette& palette, double x, double y)
{
    const std::uint32_t seed = scene.composition * 31 + scene.detail * 7919;
    const double down = std::clamp(y / palette.horizon, 0.0, 1.0);
    Color color = mix(palette.high, palette.low, down);
    const double cloud = std::max(0.0, fractal(seed + 11, x * 3, y * 6, 4) - 0.45) * 3;
    color = mix(color, {245, 245, 245}, std::min(0.8, cloud));
    const double sun =
        std::exp(-60 * ((x - palette.sunX) * (x - palette.sunX) + (y - palette.sunY) * (y - palette.sunY)));
    color = mix(color, {255, 250, 220}, sun);

    for (int ridge = 0; ridge < palette.ridges; ++ridge) {
        const double depth = (ridge + 1.0) / palette.ridges;
        const double line =
            palette.horizon - palette.rough * (1.2 - depth) +
            palette.rough * 1.4 *
                (fractal(seed + 100 + static_cast<std::uint32_t>(ridge) * 17, x * (2 + 2 * depth), 0.5, 5) - 0.45);
        if (y > line) {
            const double texture = fractal(seed + 200, x * 24, y * 24, 3) - 0.45;
            color = mix(palette.low, palette.ridge, 0.35 + 0.6 * depth);
            for (double& band : color)
                band += texture * 60 * depth;
        }
    }
    if (y > palette.horizon + palette.rough * 0.3) {
        const double near = (y - palette.horizon) / (1 - palette.horizon);
        const double texture = fractal(seed + 300, x * 40 / (0.3 + near), y * 60 / (0.3 + near), 4) - 0.45;
        const double patch = fractal(seed + 400, x * 4, y * 5, 3) - 0.45;
        color = mix(palette.ridge, palette.ground, 0.4 + 0.6 * near);
        for (double& band : color)
            band += texture * 90 + patch * 110;
    }
    for (const Thing& thing : scene.things) {
        const double dx = (x - thing.x) / thing.size;
        const double dy = (y - thing.y) / (thing.size * thing.tall);
        const bool isInside = thing.isRound ? dx * dx + dy * dy < 1 : std::abs(dx) < 1 && std::abs(dy) < 1;
        if (isInside) {
            const double light = 1 - 0.35 * (dx + dy);
            color = {thing.color[0] * light, thing.color[1] * light, thing.color[2] * light};
        }
    }
    return color;
}

std::uint8_t toByte(double value)
{
    return static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0));
}

} // namespace

Scene makeScene(std::uint32_t composition, std::uint32_t detail)
{
    Scene scene{composition, detail, {}};
    std::mt19937 random(composition * 131 + detail * 17 + 5);
    std::uniform_real_distribution<double> any(0, 1);
    const int count = 2 + static_cast<int>(any(random) * 7);
    for (int number = 0; number < count; ++number) {
        const double size = 0.02 + 0.09 * any(random) * any(random);
        scene.things.push_back({any(random),
                                0.25 + 0.7 * any(random),
                                size,
                                0.5 + 2 * any(random),
                                {255 * any(random), 255 * any(random), 255 * any(random)},
                                any(random) < 0.5});
    }
    return scene;
}

Scene later(const Scene& scene, std::uint32_t moment)
{
    Scene moved = scene;
    std::mt19937 random(scene.composition + scene.detail * 3 + moment * 977);
    std::uniform_real_distribution<double> any(-1, 1);
    for (Thing& thing : moved.things) {
        thing.x += 0.06 * any(random);
        thing.y += 0.02 * any(random);
    }
    return moved;
}

std::vector<std::uint8_t> render(const Scene& scene, const Camera& camera, int width, int height, std::uint32_t grain)
{
    const Palette palette = paletteOf(scene.composition);
    std::vector<std::uint8_t> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3);
    std::uint8_t* next = pixels.data();
    for (int row = 0; row < height; ++row) {
        for (int column = 0; column < width; ++column) {
            const double x = ((column + 0.5) / width - 0.5) / camera.zoom + 0.5 + camera.x;
            const double y = ((row + 0.5) / height - 0.5) / camera.zoom + 0.5 + camera.y;
            const Color color = colorAt(scene, palette, x, y);
            const double noise = 8 * (hashed(grain, column, row) - 0.5);
            for (const double band : color)
                *next++ = toByte(band * camera.exposure + noise);
        }
    }
    return pixels;
}

} // namespace Scenes
