#pragma once

#include <array>
#include <cstdint>
#include <vector>

/// Pictures that look somewhat like photos: a sky, ridges behind each other, ground with a texture, and things that
/// stand in it.
namespace Scenes {

struct Thing {
    double x;
    double y;
    double size;
    double tall;
    std::array<double, 3> color;
    bool isRound;
};

struct Scene {
    std::uint32_t composition;
    std::uint32_t detail;
    std::vector<Thing> things;
};

/// What stands where and in which colours comes from `composition`; how it is shaped from `detail` too.
[[nodiscard]] Scene makeScene(std::uint32_t composition, std::uint32_t detail);
/// The same place a moment later: what stands there has moved a little.
[[nodiscard]] Scene later(const Scene& scene, std::uint32_t moment);

/// Where the camera looks: a part of the scene's width and height further.
struct Camera {
    double x = 0;
    double y = 0;
    double zoom = 1;
    double exposure = 1;
};

/// Red, green and blue, row by row. `grain` is the seed of the camera's noise.
[[nodiscard]] std::vector<std::uint8_t> render(const Scene& scene, const Camera& camera, int width, int height,
                                               std::uint32_t grain);

} // namespace Scenes
