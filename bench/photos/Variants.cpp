#include "Variants.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace Variants {

namespace {

constexpr int usualQuality = 88;

[[noreturn]] void fail()
{
    std::fprintf(stderr, "a picture could not be made: %s\n", vips_error_buffer());
    std::exit(EXIT_FAILURE);
}

template<class Step>
Image made(Step step)
{
    VipsImage* result = nullptr;
    if (step(&result) != 0)
        fail();
    return Image(result);
}

double between(std::mt19937& random, double least, double most)
{
    return std::uniform_real_distribution<double>(least, most)(random);
}

std::string writeJpeg(VipsImage* image, const std::string& path, int quality)
{
    write(image, path + ".jpg", quality);
    return path + ".jpg";
}

Image scaled(VipsImage* image, double factor)
{
    return made([&](VipsImage** out) { return vips_resize(image, out, factor, nullptr); });
}

std::string resized(VipsImage* image, const std::string& path, std::mt19937& random)
{
    return writeJpeg(scaled(image, between(random, 0.2, 0.75)).get(), path, usualQuality);
}

std::string recompressed(VipsImage* image, const std::string& path, std::mt19937& random)
{
    return writeJpeg(image, path, static_cast<int>(between(random, 20, 65)));
}

std::string convertedToPng(VipsImage* image, const std::string& path, std::mt19937&)
{
    write(image, path + ".png", 0);
    return path + ".png";
}

std::string convertedToWebp(VipsImage* image, const std::string& path, std::mt19937& random)
{
    write(image, path + ".webp", static_cast<int>(between(random, 50, 90)));
    return path + ".webp";
}

std::string resizedAndRecompressed(VipsImage* image, const std::string& path, std::mt19937& random)
{
    return writeJpeg(scaled(image, between(random, 0.25, 0.5)).get(), path,
                     static_cast<int>(between(random, 30, 60)));
}

std::string rotated(VipsImage* image, const std::string& path, std::mt19937& random)
{
    const auto angle = static_cast<VipsAngle>(1 + static_cast<int>(between(random, 0, 2.999)));
    return writeJpeg(made([&](VipsImage** out) { return vips_rot(image, out, angle, nullptr); }).get(), path,
                     usualQuality);
}

/// As cameras do it: the pixels stay, and a number says how they are to be turned.
std::string rotatedByNumber(VipsImage* image, const std::string& path, std::mt19937& random)
{
    constexpr std::array numbers{3, 6, 8};
    const Image copy = made([&](VipsImage** out) { return vips_copy(image, out, nullptr); });
    vips_image_set_int(copy.get(), VIPS_META_ORIENTATION,
                       numbers.at(static_cast<std::size_t>(between(random, 0, 2.999))));
    return writeJpeg(copy.get(), path, usualQuality);
}

std::string mirrored(VipsImage* image, const std::string& path, std::mt19937& random)
{
    const auto direction = between(random, 0, 1) < 0.5 ? VIPS_DIRECTION_HORIZONTAL : VIPS_DIRECTION_VERTICAL;
    return writeJpeg(made([&](VipsImage** out) { return vips_flip(image, out, direction, nullptr); }).get(), path,
                     usualQuality);
}

std::string brightened(VipsImage* image, const std::string& path, std::mt19937& random)
{
    const double factor = between(random, 1.1, 1.35);
    const double offset = between(random, 0, 15);
    const Image brighter =
        made([&](VipsImage** out) { return vips_linear1(image, out, factor, offset, "uchar", TRUE, nullptr); });
    return writeJpeg(brighter.get(), path, usualQuality);
}

std::string gammaBrightened(VipsImage* image, const std::string& path, std::mt19937& random)
{
    const Image brighter = made(
        [&](VipsImage** out) { return vips_gamma(image, out, "exponent", between(random, 1.15, 1.5), nullptr); });
    return writeJpeg(brighter.get(), path, usualQuality);
}

/// A part of the width and of the height is cut away, at places that come by chance.
std::string cropped(VipsImage* image, const std::string& path, std::mt19937& random)
{
    const int width = vips_image_get_width(image);
    const int height = vips_image_get_height(image);
    constexpr double kept = 0.95;
    const int newWidth = static_cast<int>(width * kept);
    const int newHeight = static_cast<int>(height * kept);
    const int left = static_cast<int>(between(random, 0, width - newWidth));
    const int top = static_cast<int>(between(random, 0, height - newHeight));
    const Image part =
        made([&](VipsImage** out) { return vips_crop(image, out, left, top, newWidth, newHeight, nullptr); });
    return writeJpeg(part.get(), path, usualQuality);
}

std::string croppedAtEachSide(VipsImage* image, const std::string& path, std::mt19937&)
{
    const int width = vips_image_get_width(image);
    const int height = vips_image_get_height(image);
    constexpr double away = 0.05;
    const int left = static_cast<int>(width * away);
    const int top = static_cast<int>(height * away);
    const Image part = made([&](VipsImage** out) {
        return vips_crop(image, out, left, top, width - 2 * left, height - 2 * top, nullptr);
    });
    return writeJpeg(part.get(), path, usualQuality);
}

std::string bordered(VipsImage* image, const std::string& path, std::mt19937& random)
{
    const int width = vips_image_get_width(image);
    const int height = vips_image_get_height(image);
    const int border = static_cast<int>(width * between(random, 0.01, 0.07));
    constexpr std::array<std::array<double, 3>, 4> colors{
        {{255, 255, 255}, {0, 0, 0}, {128, 128, 128}, {180, 40, 30}}};
    const auto& color = colors.at(static_cast<std::size_t>(between(random, 0, 3.999)));
    VipsArrayDouble* const background = vips_array_double_new(color.data(), static_cast<int>(color.size()));
    const Image framed = made([&](VipsImage** out) {
        return vips_embed(image, out, border, border, width + 2 * border, height + 2 * border, "extend",
                          VIPS_EXTEND_BACKGROUND, "background", background, nullptr);
    });
    vips_area_unref(&background->area);
    return writeJpeg(framed.get(), path, usualQuality);
}

} // namespace

Image imageOf(const std::vector<std::uint8_t>& pixels, int width, int height)
{
    Image image(vips_image_new_from_memory_copy(pixels.data(), pixels.size(), width, height, 3, VIPS_FORMAT_UCHAR));
    if (!image)
        fail();
    return made([&](VipsImage** out) {
        return vips_copy(image.get(), out, "interpretation", VIPS_INTERPRETATION_sRGB, nullptr);
    });
}

void write(VipsImage* image, const std::string& path, int quality)
{
    const bool isPlain = path.ends_with(".png");
    const int failed = isPlain ? vips_image_write_to_file(image, path.c_str(), "compression", 1, nullptr)
                               : vips_image_write_to_file(image, path.c_str(), "Q", quality, nullptr);
    if (failed != 0)
        fail();
}

const std::vector<Kind>& kinds()
{
    static const std::vector<Kind> all{
        {"resized", false, resized},
        {"recompressed", false, recompressed},
        {"resized, recompressed", false, resizedAndRecompressed},
        {"converted to PNG", false, convertedToPng},
        {"converted to WebP", false, convertedToWebp},
        {"rotated", false, rotated},
        {"rotated by Exif", false, rotatedByNumber},
        {"mirrored", false, mirrored},
        {"brightened", false, brightened},
        {"brightened by gamma", false, gammaBrightened},
        {"cropped by 5 %", true, cropped},
        {"cropped 5 % each side", true, croppedAtEachSide},
        {"with a border", true, bordered},
    };
    return all;
}

} // namespace Variants
