#include "extension/actions/photos/PhotoReading.h"

#include "extension/actions/photos/SmallJpeg.h"
#include "extension/actions/photos/TiffDirectory.h"
#include "platform/LocalizedString.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace MenuExtension::Photos {

namespace {

constexpr const char* jpegReader = "VipsForeignLoadJpeg";
constexpr const char* pngReader = "VipsForeignLoadPng";
constexpr const char* tiffReader = "VipsForeignLoadTiff";
constexpr const char* jpeg2000Reader = "VipsForeignLoadJp2k";
/// The classes of the library that read the formats which photos come in.
constexpr std::array readers{
    jpegReader,
    pngReader,
    "VipsForeignLoadWebp",
    tiffReader,
    "VipsForeignLoadHeif",
    "VipsForeignLoadNsgif",
    jpeg2000Reader,
    "VipsForeignLoadJxl",
    "VipsForeignLoadPpm",
};

/// The library names a reader that is blocked too.
bool isForPhotos(std::string_view reader)
{
    return std::ranges::any_of(readers, [reader](const char* name) { return reader.starts_with(name); });
}

Unreadable otherKind()
{
    return {NS::LocalizedString("Photos", "is no picture of a kind that can be read here")};
}

Unreadable damaged()
{
    return {NS::LocalizedString("Photos", "cannot be read: it is damaged or ends too early")};
}

/// What a step makes of an image; nothing where it fails.
template<class Step>
Image after(const Image& image, Step step)
{
    VipsImage* result = nullptr;
    return image && step(image.get(), &result) == 0 ? Image(result) : nullptr;
}

/// A JPEG picture the quick way; nothing where that is none.
Image readQuickly(const OpenedPhoto& photo, int longest)
{
    const std::string_view bytes = bytesOf(photo);
    if (bytes.empty())
        return nullptr;
    const Image small = readSmallJpeg({reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()}, longest);
    if (!small)
        return nullptr;
    vips_image_set_int(small.get(), VIPS_META_ORIENTATION, vips_image_get_orientation(photo.header.get()));
    return after(small, [longest](VipsImage* in, VipsImage** out) {
        return vips_thumbnail_image(in, out, longest, "height", longest, "size", VIPS_SIZE_DOWN, nullptr);
    });
}

Image readThumbnail(const OpenedPhoto& photo, int longest)
{
    VipsImage* read = nullptr;
    vips_thumbnail_source(photo.source.get(), &read, longest, "height", longest, "size", VIPS_SIZE_DOWN,
                          "option_string", "fail_on=truncated", nullptr);
    return Image(read);
}

/// Whether a TIFF file of so many directories has another picture than the first, and not only smaller copies.
bool holdsAnother(std::string_view file, int directories)
{
    TiffDirectory directory(file);
    for (int number = 1; number < directories; ++number) {
        if (!directory.goOn() || !directory.isOfCopy())
            return true;
    }
    return false;
}

bool holdsSeveral(const OpenedPhoto& photo, std::string_view reader)
{
    const int pages = vips_image_get_n_pages(photo.header.get());
    // The library reads only the first picture of a PNG file.
    if (reader.starts_with(pngReader))
        return !chunksOfPng(bytesOf(photo), {"acTL"}).empty();
    if (reader.starts_with(tiffReader))
        return holdsAnother(bytesOf(photo), pages);
    // What it calls pages there are the sizes of one.
    return !reader.starts_with(jpeg2000Reader) && pages > 1;
}

} // namespace

void prepareReading()
{
    g_log_set_default_handler([](const char*, GLogLevelFlags, const char*, void*) {}, nullptr);
    if (vips_init("orvik-menu") != 0)
        return;
    // Workers are what runs side by side.
    vips_concurrency_set(1);
    vips_cache_set_max(0);
    vips_operation_block_set("VipsForeignLoad", TRUE);
    for (const char* reader : readers)
        vips_operation_block_set(reader, FALSE);
}

std::variant<OpenedPhoto, Unreadable> openPhoto(int file)
{
    OpenedPhoto photo;
    photo.source.reset(vips_source_new_from_descriptor(file));
    const char* const reader = photo.source ? vips_foreign_find_load_source(photo.source.get()) : nullptr;
    if (!reader || !isForPhotos(reader)) {
        vips_error_clear();
        return otherKind();
    }
    photo.isJpeg = std::string_view(reader).starts_with(jpegReader);
    photo.header.reset(vips_image_new_from_source(photo.source.get(), "", "access", VIPS_ACCESS_SEQUENTIAL, nullptr));
    if (!photo.header) {
        vips_error_clear();
        return damaged();
    }
    photo.width = vips_image_get_width(photo.header.get());
    photo.height = vips_image_get_page_height(photo.header.get());
    if (static_cast<double>(photo.width) * photo.height > mostPixels)
        return Unreadable{NS::stringWithFormat(NS::LocalizedString("Photos", "is too large: it has %1 × %2 pixels"),
                                               {std::to_string(photo.width), std::to_string(photo.height)})};
    if (vips_image_get_orientation_swap(photo.header.get()))
        std::swap(photo.width, photo.height);
    photo.holdsSeveral = holdsSeveral(photo, reader);
    return photo;
}

std::string_view bytesOf(const OpenedPhoto& photo)
{
    std::size_t length = 0;
    const void* const begin = vips_source_map(photo.source.get(), &length);
    return begin ? std::string_view(static_cast<const char*>(begin), length) : std::string_view();
}

std::string chunksOfPng(std::string_view file, std::initializer_list<std::string_view> kinds)
{
    constexpr std::size_t signature = 8;
    constexpr std::size_t around = 12;
    std::string chunks;
    for (file.remove_prefix(std::min(signature, file.size())); file.size() >= around;) {
        std::uint64_t size = 0;
        for (const char byte : file.substr(0, 4))
            size = size << 8U | static_cast<unsigned char>(byte);
        size += around;
        if (size > file.size())
            break;
        if (std::ranges::find(kinds, file.substr(4, 4)) != kinds.end())
            chunks += file.substr(0, size);
        file.remove_prefix(size);
    }
    return chunks;
}

std::variant<Image, Unreadable> readSmall(const OpenedPhoto& photo, int longest)
{
    Image image = photo.isJpeg ? readQuickly(photo, longest) : nullptr;
    if (!image)
        image = readThumbnail(photo, longest);
    image = after(image, [](VipsImage* in, VipsImage** out) {
        return vips_colourspace(in, out, VIPS_INTERPRETATION_sRGB, nullptr);
    });
    if (image && vips_image_hasalpha(image.get()) != 0) {
        image = after(image, [](VipsImage* in, VipsImage** out) {
            const std::array white{255.0, 255.0, 255.0};
            VipsArrayDouble* const background = vips_array_double_new(white.data(), static_cast<int>(white.size()));
            const int failed = vips_flatten(in, out, "background", background, nullptr);
            vips_area_unref(VIPS_AREA(background));
            return failed;
        });
    }
    image = after(image, [](VipsImage* in, VipsImage** out) { return vips_cast_uchar(in, out, nullptr); });
    image =
        after(image, [](VipsImage* in, VipsImage** out) { return vips_extract_band(in, out, 0, "n", 3, nullptr); });
    // Only now is the file read.
    if (image)
        image.reset(vips_image_copy_memory(image.get()));
    if (!image) {
        vips_error_clear();
        return damaged();
    }
    return image;
}

} // namespace MenuExtension::Photos
