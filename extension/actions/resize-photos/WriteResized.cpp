#include "WriteResized.h"

#include "extension/actions/photos/PhotoReading.h"
#include "extension/actions/photos/TiffDirectory.h"
#include "platform/LocalizedString.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <variant>

namespace MenuExtension::Resizing {

namespace {

using Photos::Image;

enum class Format { Jpeg, Png, WebP, Tiff, JpegInTiff, Heic, Avif };

struct LetGoOfBytes {
    void operator()(VipsBlob* bytes) const { vips_area_unref(VIPS_AREA(bytes)); }
};

std::string_view text(VipsImage* image, const char* name)
{
    const char* value = nullptr;
    if (vips_image_get_typeof(image, name) == 0 || vips_image_get_string(image, name, &value) != 0)
        return {};
    return value;
}

int writeTo(VipsImage* image, Format format, int quality, VipsTarget* target)
{
    switch (format) {
    case Format::Jpeg:
        return vips_jpegsave_target(image, target, "Q", quality, nullptr);
    case Format::Png:
        return vips_pngsave_target(image, target, "palette", vips_image_get_typeof(image, "palette-bit-depth") != 0,
                                   nullptr);
    case Format::WebP:
        return vips_webpsave_target(image, target, "Q", quality, nullptr);
    case Format::Tiff:
        return vips_tiffsave_target(image, target, "compression", VIPS_FOREIGN_TIFF_COMPRESSION_DEFLATE, "predictor",
                                    VIPS_FOREIGN_TIFF_PREDICTOR_HORIZONTAL, nullptr);
    case Format::JpegInTiff:
        return vips_tiffsave_target(image, target, "compression", VIPS_FOREIGN_TIFF_COMPRESSION_JPEG, "Q", quality,
                                    nullptr);
    // The same number means more there.
    case Format::Heic:
        return vips_heifsave_target(image, target, "Q", std::max(quality - 25, 1), "compression",
                                    VIPS_FOREIGN_HEIF_COMPRESSION_HEVC, nullptr);
    case Format::Avif:
        return vips_heifsave_target(image, target, "Q", std::max(quality - 25, 1), "compression",
                                    VIPS_FOREIGN_HEIF_COMPRESSION_AV1, nullptr);
    }
    return -1;
}

/// The picture as a file; nothing where it cannot be written.
std::optional<std::string> encoded(VipsImage* image, Format format, int quality)
{
    VipsTarget* target = vips_target_new_to_memory();
    VipsBlob* blob = nullptr;
    if (target && writeTo(image, format, quality, target) == 0)
        g_object_get(target, "blob", &blob, nullptr);
    VIPS_UNREF(target);
    const std::unique_ptr<VipsBlob, LetGoOfBytes> owned(blob);
    if (!blob)
        return std::nullopt;
    std::size_t size = 0;
    const void* const begin = vips_blob_get(blob, &size);
    return std::string(static_cast<const char*>(begin), size);
}

bool writeAll(int file, std::string_view rest)
{
    while (!rest.empty()) {
        const ssize_t count = ::write(file, rest.data(), rest.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        rest.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

/// Whether a TIFF file has data that the library neither reads nor writes.
bool hasMoreData(std::string_view file)
{
    // Of the picture: its camera, program, times, people, IPTC, Exif, place, and what Windows says.
    constexpr std::array<std::uint64_t, 17> tags{0x10d,  0x10f,  0x110,  0x131,  0x132,  0x13b,
                                                 0x13c,  0x8298, 0x83bb, 0x8649, 0x8769, 0x8825,
                                                 0x9c9b, 0x9c9c, 0x9c9d, 0x9c9e, 0x9c9f};
    const Photos::TiffDirectory first(file);
    return std::ranges::any_of(tags, [&](std::uint64_t tag) { return first.has(tag); });
}

/// Whether a photo would lose some of what it is as a thumbnail, which is for screens: it has more than eight bits a
/// band, or bands for inks.
bool isMoreThanForScreens(VipsImage* header)
{
    return vips_image_get_format(header) != VIPS_FORMAT_UCHAR ||
           vips_image_get_interpretation(header) == VIPS_INTERPRETATION_CMYK;
}

/// Whether a TIFF file is compressed as photos are, and can be so again.
bool isJpegInTiff(const Photos::OpenedPhoto& photo)
{
    constexpr std::uint64_t compression = 259;
    const std::uint64_t value = Photos::TiffDirectory(Photos::bytesOf(photo)).number(compression);
    const int bands = vips_image_get_bands(photo.header.get());
    return (value == 6 || value == 7) && !isMoreThanForScreens(photo.header.get()) && (bands == 1 || bands == 3);
}

/// The format that a photo was read from, where it can be written.
std::optional<Format> formatOf(const Photos::OpenedPhoto& photo)
{
    VipsImage* const header = photo.header.get();
    const std::string_view loader = text(header, "vips-loader");
    if (loader.starts_with("jpegload"))
        return Format::Jpeg;
    if (loader.starts_with("pngload"))
        return Format::Png;
    if (loader.starts_with("webpload"))
        return Format::WebP;
    if (loader.starts_with("tiffload"))
        return isJpegInTiff(photo) ? Format::JpegInTiff : Format::Tiff;
    if (!loader.starts_with("heifload"))
        return std::nullopt;
    return text(header, "heif-compression") == "av1" ? Format::Avif : Format::Heic;
}

/// What is said of a picture, by the library's names.
constexpr std::array said{VIPS_META_ICC_NAME, VIPS_META_EXIF_NAME, VIPS_META_XMP_NAME, VIPS_META_IPTC_NAME};

/// XMP in HEIC and AVIF, which the library reads under a name that it does not write.
void nameXmp(VipsImage* image)
{
    constexpr std::string_view prefix = "heif-mime-";
    gchar** const fields = vips_image_get_fields(image);
    for (gchar** field = fields; field && *field; ++field) {
        const void* bytes = nullptr;
        std::size_t length = 0;
        if (std::string_view(*field).starts_with(prefix) &&
            vips_image_get_blob(image, *field, &bytes, &length) == 0 &&
            std::string_view(static_cast<const char*>(bytes), length).find("rdf:RDF") != std::string_view::npos)
            vips_image_set_blob_copy(image, VIPS_META_XMP_NAME, bytes, length);
    }
    g_strfreev(fields);
}

/// Those of a PNG file are written as they are; the library cuts their names short.
void removeTexts(VipsImage* image)
{
    gchar** const fields = vips_image_get_fields(image);
    for (gchar** field = fields; field && *field; ++field) {
        if (std::string_view(*field).starts_with("png-comment-"))
            vips_image_remove(image, *field);
    }
    g_strfreev(fields);
    vips_image_remove(image, VIPS_META_XMP_NAME);
}

/// The library's reader of HEIF frees what was beside the picture with its own one, whatever else refers to it.
void ownMetadata(VipsImage* image)
{
    nameXmp(image);
    for (const char* name : said) {
        const void* bytes = nullptr;
        std::size_t length = 0;
        if (vips_image_get_typeof(image, name) != 0 && vips_image_get_blob(image, name, &bytes, &length) == 0)
            vips_image_set_blob_copy(image, name, bytes, length);
    }
}

/// How many bytes are said of a picture.
std::size_t dataOf(VipsImage* image)
{
    std::size_t sum = 0;
    for (const char* name : said) {
        const void* bytes = nullptr;
        std::size_t length = 0;
        if (vips_image_get_typeof(image, name) != 0 && vips_image_get_blob(image, name, &bytes, &length) == 0)
            sum += length;
    }
    return sum;
}

/// The stored picture in that size, in memory. As it is stored: it is turned when it is shown.
Image scaled(const Photos::OpenedPhoto& photo, std::uint32_t width, std::uint32_t height)
{
    VipsImage* made = nullptr;
    if (!isMoreThanForScreens(photo.header.get())) {
        vips_thumbnail_source(photo.source.get(), &made, static_cast<int>(width), "height", static_cast<int>(height),
                              "size", VIPS_SIZE_FORCE, "no_rotate", TRUE, "option_string", "fail_on=truncated",
                              nullptr);
    } else {
        // The pixels come in order, once; each try needs them anew.
        const Image read(vips_image_new_from_source(photo.source.get(), "", "access", VIPS_ACCESS_SEQUENTIAL,
                                                    "fail_on", VIPS_FAIL_ON_TRUNCATED, nullptr));
        if (!read)
            return nullptr;
        VipsImage* in = read.get();
        VipsImage* premultiplied = nullptr;
        VipsImage* resized = nullptr;
        VipsImage* flat = nullptr;
        const VipsBandFormat format = vips_image_get_format(in);
        const bool hasAlpha = vips_image_hasalpha(in) != 0;
        if (hasAlpha && vips_premultiply(in, &premultiplied, nullptr) == 0)
            in = premultiplied;
        if (vips_resize(in, &resized, static_cast<double>(width) / vips_image_get_width(in), "vscale",
                        static_cast<double>(height) / vips_image_get_height(in), nullptr) == 0 &&
            hasAlpha && premultiplied)
            vips_unpremultiply(resized, &flat, nullptr);
        if (VipsImage* const last = flat ? flat : resized)
            vips_cast(last, &made, format, nullptr);
        VIPS_UNREF(premultiplied);
        VIPS_UNREF(resized);
        VIPS_UNREF(flat);
    }
    const Image lazy(made);
    Image whole(lazy ? vips_image_copy_memory(lazy.get()) : nullptr);
    if (whole)
        ownMetadata(whole.get());
    return whole;
}

Refused damaged()
{
    vips_error_clear();
    return {NS::LocalizedString("Photos", "cannot be resized: it is damaged or ends too early")};
}

Refused notWritten()
{
    vips_error_clear();
    return {NS::LocalizedString("Photos", "cannot be resized: its format cannot be written here")};
}

struct Made {
    std::string file;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};

/// Of a PNG file, what the library neither reads nor writes, or not all of it.
std::string chunksToKeep(const Photos::OpenedPhoto& photo)
{
    const std::string_view file = Photos::bytesOf(photo);
    std::string chunks;
    // What its colours are, which a profile says too.
    if (vips_image_get_typeof(photo.header.get(), VIPS_META_ICC_NAME) == 0)
        chunks = Photos::chunksOfPng(file, {"gAMA", "cHRM", "sRGB", "cICP"});
    // XMP and IPTC among them.
    return chunks + Photos::chunksOfPng(file, {"tEXt", "zTXt", "iTXt"});
}

/// Worse and smaller until it is small enough, and not much more so than it has to be.
std::variant<Refused, Made> make(const Photos::OpenedPhoto& photo, Format format, const Goal& goal,
                                 const Size& stored)
{
    constexpr int tries = 8;
    constexpr int worstQuality = 60;
    // What a worse quality alone may save.
    constexpr double ofQuality = 0.6;
    constexpr double nearEnough = 0.8;
    // A little less is asked for, so that the next try is mostly the last.
    constexpr double care = 0.95;
    constexpr std::size_t endOfPngHeader = 33;
    const bool isLossy = format != Format::Png && format != Format::Tiff;
    const Size largest = sizeFor(goal, stored);
    const std::string chunks = format == Format::Png ? chunksToKeep(photo) : std::string();
    double scale = 1;
    // What takes long to write begins where it most likely ends.
    if (goal.kind == Goal::Kind::Bytes && (format == Format::Heic || format == Format::Avif))
        scale = std::min(1.0, std::sqrt(static_cast<double>(goal.value) / static_cast<double>(stored.bytes)) *
                                  stored.width / largest.width);
    double fitting = 0;
    double tooLarge = 1;
    int quality = goal.quality;
    Image picture;
    std::optional<Made> best;
    for (int count = 0; count < tries; ++count) {
        const auto length = [scale](std::uint32_t most) {
            return std::max<std::uint32_t>(1, static_cast<std::uint32_t>(most * scale));
        };
        const Size size{length(largest.width), length(largest.height), 0};
        if (!picture)
            picture = scaled(photo, size.width, size.height);
        if (!picture)
            return damaged();
        if (format == Format::Png)
            removeTexts(picture.get());
        auto file = encoded(picture.get(), format, quality);
        if (!file)
            return notWritten();
        file->insert(std::min(endOfPngHeader, file->size()), chunks);
        const auto bytes = static_cast<double>(file->size());
        const auto most = static_cast<double>(goal.value);
        // What is said of it stays as large as it is.
        const double data =
            std::min(static_cast<double>(dataOf(picture.get()) + chunks.size()), std::min(bytes, most) * 0.99);
        const double share = (most - data) / (bytes - data);
        const bool isSmallEnough = goal.kind != Goal::Kind::Bytes || share >= 1;
        if (isSmallEnough)
            best = Made{*std::move(file), size.width, size.height};
        if (isSmallEnough && (scale == 1 || share * nearEnough <= 1))
            break;
        const bool mayDoWorse = scale == 1 && isLossy && quality > worstQuality && share > ofQuality;
        if (scale == 1)
            quality = std::min(quality, std::max(worstQuality, quality - 10));
        if (mayDoWorse)
            continue;
        (isSmallEnough ? fitting : tooLarge) = scale;
        scale *= std::sqrt(share) * care;
        if (scale <= fitting || scale >= tooLarge)
            scale = (fitting + tooLarge) / 2;
        picture.reset();
    }
    if (best)
        return *std::move(best);
    return Refused{NS::LocalizedString("Photos", "cannot be made that small")};
}

Pixels shown(int file, std::uint32_t longest)
{
    const auto opened = Photos::openPhoto(file);
    const auto* photo = std::get_if<Photos::OpenedPhoto>(&opened);
    if (!photo)
        return {};
    const auto read = Photos::readSmall(*photo, static_cast<int>(longest));
    const auto* image = std::get_if<Image>(&read);
    if (!image)
        return {};
    const auto width = static_cast<std::uint32_t>(vips_image_get_width(image->get()));
    const auto height = static_cast<std::uint32_t>(vips_image_get_height(image->get()));
    return {
        width, height,
        std::string(static_cast<const char*>(vips_image_get_data(image->get())), std::size_t{width} * height * 3)};
}

Pixels shown(std::string_view picture, std::uint32_t longest)
{
    const int file = ::memfd_create("shown", MFD_CLOEXEC);
    Pixels pixels;
    if (file >= 0 && writeAll(file, picture))
        pixels = shown(file, longest);
    if (file >= 0)
        ::close(file);
    return pixels;
}

} // namespace

Result resize(const Job& job, int photo, int target)
{
    struct stat status = {};
    ::fstat(photo, &status);
    const auto opened = Photos::openPhoto(photo);
    if (const auto* unreadable = std::get_if<Photos::Unreadable>(&opened))
        return Refused{unreadable->why};
    const auto& read = std::get<Photos::OpenedPhoto>(opened);
    VipsImage* const header = read.header.get();
    const auto format = formatOf(read);
    if (!format)
        return notWritten();
    if (read.holdsSeveral)
        return Refused{NS::LocalizedString(
            "Photos", "cannot be resized: it holds several pictures, and only one would be left")};

    const Size stored{static_cast<std::uint32_t>(vips_image_get_width(header)),
                      static_cast<std::uint32_t>(vips_image_get_height(header)),
                      static_cast<std::uint64_t>(status.st_size)};
    Resized result;
    // As it is shown.
    const bool isTurned = vips_image_get_orientation_swap(header) != 0;
    const auto asShown = [isTurned](std::uint32_t width, std::uint32_t height, std::uint64_t bytes) {
        return isTurned ? Size{height, width, bytes} : Size{width, height, bytes};
    };
    result.before = asShown(stored.width, stored.height, stored.bytes);
    result.after = result.before;
    if (job.shownPixels > 0)
        result.shownBefore = shown(photo, job.shownPixels);
    const Size wanted = sizeFor(job.goal, stored);
    const bool isSmallAlready = job.goal.kind == Goal::Kind::Bytes
                                    ? stored.bytes <= job.goal.value
                                    : wanted.width >= stored.width && wanted.height >= stored.height;
    if (isSmallAlready) {
        result.shownAfter = result.shownBefore;
        return result;
    }
    auto made = make(read, *format, job.goal, stored);
    if (auto* refusal = std::get_if<Refused>(&made))
        return std::move(*refusal);
    const Made& done = std::get<Made>(made);
    if ((*format == Format::Tiff || *format == Format::JpegInTiff) && hasMoreData(Photos::bytesOf(read)))
        result.data = Data::Lost;
    result.after = asShown(done.width, done.height, done.file.size());
    if (job.shownPixels > 0)
        result.shownAfter = shown(done.file, job.shownPixels);
    else if (!writeAll(target, done.file))
        return Refused{NS::LocalizedString("Photos", "cannot be saved: there is no room for it")};
    return result;
}

} // namespace MenuExtension::Resizing
