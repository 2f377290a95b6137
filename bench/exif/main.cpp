// Reads what photos say, and writes a title into each, beside ExifTool alone: 1,000 photos, or as many as the
// argument says. Ours looks at each photo before and after it has written it, compares the pictures, and flushes each
// file to the disk; ExifTool does neither.
#include "bench/rivals/Rivals.h"
#include "extension/actions/view-or-edit-exif-data/Batch.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;
using namespace MenuExtension;

constexpr int rounds = 3;

std::vector<std::string> photosIn(const fs::path& folder)
{
    std::vector<std::string> paths;
    for (const auto& entry : fs::directory_iterator(folder))
        paths.push_back(entry.path());
    return paths;
}

/// What this program does when the bench starts it to be measured.
int work(const std::string& folder, bool isWriting)
{
    Request request;
    request.scope = Scope({{folder, true}});
    const auto paths = photosIn(folder);
    std::size_t done = 0;
    if (isWriting) {
        Exif::Edits edits;
        edits.texts[Exif::Field::Title] = "title";
        Exif::savePhotos(request, paths, edits, {},
                         [&](std::size_t, const Exif::Trouble& trouble) { done += trouble ? 0U : 1U; }, {});
    } else {
        Exif::readPhotos(request, paths,
                         [&](std::size_t, const Exif::Reading& reading) { done += reading.trouble ? 0U : 1U; }, {});
    }
    return done == paths.size() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 2 && (std::string(argv[1]) == "--read" || std::string(argv[1]) == "--write"))
        return work(argv[2], std::string(argv[1]) == "--write");
    const int count = argc > 1 ? std::atoi(argv[1]) : 1000;
    if (count < 1)
        return EXIT_FAILURE;
    const Rivals::Folder folder("/var/tmp");
    const fs::path photos = folder.path() / "photos";
    fs::create_directory(photos);
    const auto makeAll = [&] {
        for (int number = 0; number < count; ++number)
            fs::copy_file(fs::path(ORVIK_EXIF_PHOTOS) / "photo.jpg", photos / (std::to_string(number) + ".jpg"),
                          fs::copy_options::overwrite_existing);
    };
    makeAll();
    std::printf("%d photos\n", count);
    const std::string self = fs::read_symlink("/proc/self/exe");
    const auto all = [](const Rivals::Measured&) {};
    std::puts("Read:");
    Rivals::compare(
        {{"ours", {self, "--read", photos}},
         {"exiftool", {"exiftool", "-config", "", "-json", "-G0:1", "-r", photos}}},
        rounds, "/var/tmp", [] {}, all);
    std::puts("A title written:");
    Rivals::compare({{"ours", {self, "--write", photos}},
                     {"exiftool",
                      {"exiftool", "-config", "", "-overwrite_original", "-Title=title", "-ImageDescription=title",
                       "-r", photos}}},
                    rounds, "/var/tmp", makeAll, all);
}
