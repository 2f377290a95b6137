// Resizes photos of 12 megapixels for a screen, beside the programs that do that: 200 of them, or as many as the
// argument says. Every program runs in turn, and the medians are compared.
#include "bench/rivals/Rivals.h"
#include "extension/actions/resize-photos/ResizePhoto.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vips/vips.h>

namespace {

namespace fs = std::filesystem;
using namespace MenuExtension;

constexpr int width = 4000;
constexpr int height = 3000;
constexpr int rounds = 3;

/// What this program does when the bench starts it to be measured.
int resizeAll(const fs::path& photos, const std::string& target)
{
    Request request;
    request.scope = Scope({{photos.native(), true}});
    std::vector<std::string> paths;
    for (const auto& entry : fs::directory_iterator(photos))
        paths.push_back(entry.path());
    std::size_t done = 0;
    Resizing::resizePhotos(
        request, paths, {Resizing::Goal::Kind::Length, 1920}, {Resizing::Target::Kind::Folder, target},
        [&](std::size_t, const Resizing::Outcome& outcome) {
            done += outcome.kind == Resizing::Outcome::Kind::Done ? 1U : 0U;
        },
        {}, ORVIK_RESIZE_WORKER);
    return done == paths.size() ? EXIT_SUCCESS : EXIT_FAILURE;
}

void makePhoto(const fs::path& path, int seed)
{
    VipsImage* rough = nullptr;
    VipsImage* smooth = nullptr;
    VipsImage* large = nullptr;
    VipsImage* grain = nullptr;
    VipsImage* sum = nullptr;
    VipsImage* band = nullptr;
    vips_gaussnoise(&rough, width / 40, height / 40, "mean", 128.0, "sigma", 60.0, "seed", seed, nullptr);
    vips_gaussblur(rough, &smooth, 1.5, nullptr);
    vips_resize(smooth, &large, 40, nullptr);
    vips_gaussnoise(&grain, width, height, "mean", 0.0, "sigma", 6.0, "seed", seed, nullptr);
    vips_add(large, grain, &sum, nullptr);
    vips_cast_uchar(sum, &band, nullptr);
    VipsImage* turned = nullptr;
    vips_rot(band, &turned, VIPS_ANGLE_D180, nullptr);
    std::array<VipsImage*, 3> bands{band, turned, band};
    VipsImage* photo = nullptr;
    vips_bandjoin(bands.data(), &photo, bands.size(), nullptr);
    VipsImage* colored = nullptr;
    vips_copy(photo, &colored, "interpretation", VIPS_INTERPRETATION_sRGB, nullptr);
    if (!colored || vips_image_write_to_file(colored, path.c_str(), "Q", 90, nullptr) != 0) {
        std::fprintf(stderr, "%s\n", vips_error_buffer());
        std::exit(EXIT_FAILURE);
    }
    for (VipsImage* image : {rough, smooth, large, grain, sum, band, turned, photo, colored})
        g_object_unref(image);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 3 && std::string(argv[1]) == "--resize")
        return resizeAll(argv[2], argv[3]);
    const int count = argc > 1 ? std::atoi(argv[1]) : 200;
    if (count < 1 || VIPS_INIT("bench") != 0)
        return EXIT_FAILURE;
    const Rivals::Folder folder("/var/tmp");
    const fs::path photos = folder.path() / "photos";
    const fs::path small = folder.path() / "small";
    fs::create_directory(photos);
    // A few different ones are enough.
    constexpr int different = 8;
    for (int number = 0; number < count; ++number) {
        const fs::path path = photos / (std::to_string(number) + ".jpg");
        if (number < different)
            makePhoto(path, number);
        else
            fs::copy_file(photos / (std::to_string(number % different) + ".jpg"), path);
    }
    std::printf("%d photos of %d × %d pixels, %.1f MB each\n", count, width, height,
                static_cast<double>(fs::file_size(photos / "0.jpg")) / 1e6);
    const std::string self = fs::read_symlink("/proc/self/exe");
    std::vector<std::string> mogrify{"mogrify", "-path", small, "-resize", "1920x1920>", "-quality", "85"};
    std::vector<std::string> thumbnail{"vipsthumbnail", "--size", "1920x1920>", "-o", small / "%s.jpg[Q=85]"};
    for (const auto& entry : fs::directory_iterator(photos)) {
        mogrify.push_back(entry.path());
        thumbnail.push_back(entry.path());
    }
    std::puts("Resized for a screen:");
    Rivals::compare(
        {{"ours", {self, "--resize", photos, small}}, {"mogrify", mogrify}, {"vipsthumbnail", thumbnail}}, rounds,
        "/var/tmp",
        [&] {
            fs::remove_all(small);
            fs::create_directory(small);
        },
        [](const Rivals::Measured&) {});
}
