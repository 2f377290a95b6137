#include "extension/actions/photos/SmallJpeg.h"

#include <algorithm>
#include <csetjmp>
// This one needs it before itself.
#include <cstdio>
#include <jpeglib.h>
#include <vector>

namespace MenuExtension::Photos {

namespace {

struct Errors : jpeg_error_mgr {
    std::jmp_buf place;
};

struct Pixels {
    std::vector<unsigned char> bytes;
    int width = 0;
    int height = 0;
};

constexpr int bands = 3;
constexpr unsigned smallestPart = 8;

[[noreturn]] void giveUp(j_common_ptr jpeg)
{
    std::longjmp(static_cast<Errors*>(jpeg->err)->place, 1);
}

/// A warning is a negative level: what is damaged is left to who tells about it.
void takeMessage(j_common_ptr jpeg, int level)
{
    if (level < 0)
        giveUp(jpeg);
}

/// False where it cannot be decoded so. Nothing in here has a destructor: a jump leads out of the library.
bool decode(std::span<const unsigned char> bytes, unsigned longest, Pixels& pixels)
{
    Errors errors{};
    jpeg_decompress_struct jpeg{};
    jpeg.err = jpeg_std_error(&errors);
    errors.error_exit = giveUp;
    errors.emit_message = takeMessage;
    if (setjmp(errors.place) != 0) {
        jpeg_destroy_decompress(&jpeg);
        return false;
    }
    jpeg_create_decompress(&jpeg);
    jpeg_mem_src(&jpeg, bytes.data(), bytes.size());
    jpeg_read_header(&jpeg, TRUE);
    const unsigned longer = std::max(jpeg.image_width, jpeg.image_height);
    jpeg.scale_num = 1;
    jpeg.scale_denom = smallestPart;
    while (jpeg.scale_denom > 1 && longer / jpeg.scale_denom < longest)
        jpeg.scale_denom /= 2;
    if (jpeg.scale_denom == 1) {
        jpeg_destroy_decompress(&jpeg);
        return false;
    }
    jpeg.out_color_space = JCS_RGB;
    jpeg.do_fancy_upsampling = FALSE;
    jpeg_start_decompress(&jpeg);
    pixels.width = static_cast<int>(jpeg.output_width);
    pixels.height = static_cast<int>(jpeg.output_height);
    const std::size_t rowBytes = std::size_t{jpeg.output_width} * bands;
    pixels.bytes.resize(rowBytes * jpeg.output_height);
    while (jpeg.output_scanline < jpeg.output_height) {
        JSAMPROW row = &pixels.bytes[rowBytes * jpeg.output_scanline];
        jpeg_read_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_decompress(&jpeg);
    jpeg_destroy_decompress(&jpeg);
    return true;
}

} // namespace

Image readSmallJpeg(std::span<const unsigned char> bytes, int longest)
{
    Pixels pixels;
    if (longest < 1 || !decode(bytes, static_cast<unsigned>(longest), pixels))
        return nullptr;
    const Image image(vips_image_new_from_memory_copy(pixels.bytes.data(), pixels.bytes.size(), pixels.width,
                                                      pixels.height, bands, VIPS_FORMAT_UCHAR));
    VipsImage* result = nullptr;
    if (image)
        vips_copy(image.get(), &result, "interpretation", VIPS_INTERPRETATION_sRGB, nullptr);
    return Image(result);
}

} // namespace MenuExtension::Photos
