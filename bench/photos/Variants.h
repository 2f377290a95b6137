#pragma once

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>
#include <vips/vips.h>

/// What people and programs make of a picture.
namespace Variants {

struct LetGo {
    void operator()(VipsImage* image) const { g_object_unref(image); }
};
using Image = std::unique_ptr<VipsImage, LetGo>;

/// Keeps no reference to `pixels`.
[[nodiscard]] Image imageOf(const std::vector<std::uint8_t>& pixels, int width, int height);

/// Writes by the ending of the name. Ends the program where that fails.
void write(VipsImage* image, const std::string& path, int quality);

struct Kind {
    const char* name;
    /// Whether the target for it is the lower one.
    bool cutsOrAdds;
    /// Makes the variant of a picture beside `path`, which has no ending yet. Gives the path that it wrote.
    std::string (*make)(VipsImage* original, const std::string& path, std::mt19937& random);
};
[[nodiscard]] const std::vector<Kind>& kinds();

} // namespace Variants
