#include "extension/actions/resize-photos/ResizePhoto.h"
#include "support/Files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>
#include <vips/vips.h>

namespace fs = std::filesystem;
using namespace MenuExtension;
using namespace MenuExtension::Resizing;
using Kind = Resizing::Outcome::Kind;
using LinuxDesktop::FileDescriptor;

namespace {

/// Whether file systems have no attributes.
bool hasNoAttributes = false;

struct LetGo {
    void operator()(void* object) const { g_object_unref(object); }
};
using Image = std::unique_ptr<VipsImage, LetGo>;

class ResizePhotoTest : public testing::Test {
protected:
    using Path = fs::path;

    ResizePhotoTest()
    {
        std::string pattern = "/tmp/orvik-resize-XXXXXX";
        m_root = ::mkdtemp(pattern.data());
        for (const char* name : {"listed", "other", "home"})
            fs::create_directories(m_root / name);
        m_request.scope = Scope({{listed(), true}});
        ::setenv("XDG_DATA_HOME", (m_root / "home").c_str(), 1);
    }
    ~ResizePhotoTest() override
    {
        std::error_code ignored;
        fs::remove_all(m_root, ignored);
    }
    static void SetUpTestSuite() { ASSERT_EQ(VIPS_INIT("test"), 0); }

    [[nodiscard]] Path listed() const { return m_root / "listed"; }
    [[nodiscard]] Path other() const { return m_root / "other"; }
    [[nodiscard]] const Request& request() const { return m_request; }

    /// A photo of noise, with what a camera says and a colour profile.
    [[nodiscard]] Path photo(const std::string& name, int width = 400, int height = 300, int orientation = 6) const
    {
        VipsImage* noise = nullptr;
        VipsImage* bytes = nullptr;
        VipsImage* colors = nullptr;
        vips_gaussnoise(&noise, width, height, "mean", 128.0, "sigma", 30.0, "seed", 3, nullptr);
        vips_cast_uchar(noise, &bytes, nullptr);
        std::array<VipsImage*, 3> bands{bytes, bytes, bytes};
        vips_bandjoin(bands.data(), &colors, 3, nullptr);
        VipsImage* photo = nullptr;
        vips_copy(colors, &photo, "interpretation", VIPS_INTERPRETATION_sRGB, nullptr);
        vips_image_set_string(photo, "exif-ifd0-Artist", "Ada (Ada, ASCII, 4 components, 4 bytes)");
        vips_image_set_int(photo, VIPS_META_ORIENTATION, orientation);
        void* profile = nullptr;
        std::size_t length = 0;
        if (VipsBlob* blob = nullptr; vips_profile_load("srgb", &blob, nullptr) == 0) {
            profile = const_cast<void*>(vips_blob_get(blob, &length));
            vips_image_set_blob_copy(photo, VIPS_META_ICC_NAME, profile, length);
            vips_area_unref(VIPS_AREA(blob));
        }
        EXPECT_EQ(vips_image_write_to_file(photo, (listed() / name).c_str(), nullptr), 0) << vips_error_buffer();
        for (VipsImage* each : {noise, bytes, colors, photo})
            g_object_unref(each);
        return listed() / name;
    }

    [[nodiscard]] static Image open(const Path& path)
    {
        return Image(vips_image_new_from_file(path.c_str(), nullptr));
    }

    [[nodiscard]] Resizing::Outcome
    resize(const Path& path, const Goal& goal, const Target& target = {},
           std::unique_ptr<Transfers::SystemCalls> calls = std::make_unique<Transfers::SystemCalls>()) const
    {
        const auto photo = openWithFolder(m_request, path);
        if (!photo)
            return {.kind = Kind::CannotBeOpened, .error = errno};
        PhotoResizer resizer(ORVIK_RESIZE_WORKER, std::move(calls));
        return resizer.resize(*photo, goal, target, {});
    }

    [[nodiscard]] static std::vector<std::string> namesIn(const Path& folder)
    {
        std::vector<std::string> found;
        for (const auto& entry : fs::directory_iterator(folder))
            found.push_back(entry.path().filename());
        std::ranges::sort(found);
        return found;
    }
    [[nodiscard]] Path root() const { return m_root; }

    /// What ExifTool says with these arguments and a file, in order.
    [[nodiscard]] static std::string exifTool(const std::string& arguments, const Path& path)
    {
        const std::string command = "exiftool -config '' " + arguments + " '" + path.string() + "' | sort";
        FILE* const said = ::popen(command.c_str(), "r");
        std::string text;
        std::array<char, 4096> part{};
        for (std::size_t count = 0; (count = std::fread(part.data(), 1, part.size(), said)) > 0;)
            text.append(part.data(), count);
        EXPECT_EQ(::pclose(said), 0) << command;
        return text;
    }

    /// Writes into a photo what cameras and people say of one.
    static void describe(const Path& path)
    {
        const bool hasIptc =
            path.extension() != ".heic" && path.extension() != ".avif" && path.extension() != ".webp";
        static_cast<void>(exifTool(
            std::string("-q -m -overwrite_original -Make=Cam -Model=X1 -DateTimeOriginal='2020:01:02 03:04:05' "
                        "-LensModel=50mm -GPSLatitude=48.5 -GPSLatitudeRef=N -Orientation#=6 -XPTitle=Über "
                        "-XMP-dc:Title=Titel "
                        "-XMP-dc:Subject=eins -XMP-dc:Subject=zwei ") +
                (hasIptc ? "-IPTC:Caption-Abstract=capt -IPTC:Keywords=drei " : "") +
                (path.extension() == ".png" ? "-PNG:CreationTime='2020:01:02 03:04:05' " : ""),
            path));
    }
    /// That, all of it.
    [[nodiscard]] static std::string description(const Path& path)
    {
        return exifTool("-a -G1 -s -n -Make -Model -DateTimeOriginal -LensModel -GPSLatitude -XPTitle -Artist "
                        "-Orientation -PNG:CreationTime -XMP:all -IPTC:all",
                        path);
    }

private:
    Path m_root;
    Request m_request;
};

/// A chunk of a PNG file.
std::string chunk(const std::string& kind, const std::string& data)
{
    const auto inBytes = [](std::uint32_t number) {
        std::string bytes;
        for (const unsigned shift : {24U, 16U, 8U, 0U})
            bytes += static_cast<char>(number >> shift & 0xffU);
        return bytes;
    };
    std::uint32_t sum = ~0U;
    for (const char byte : kind + data) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1U) != 0 ? sum >> 1U ^ 0xedb88320U : sum >> 1U;
    }
    return inBytes(static_cast<std::uint32_t>(data.size())) + kind + data + inBytes(~sum);
}

constexpr Goal small{Goal::Kind::Length, 100};

/// A file system that is reached over the network: it renames only plainly, and has no file without a name.
class PlainCalls : public Transfers::SystemCalls {
public:
    explicit PlainCalls(bool hasLinks, std::string refused = {}) : m_hasLinks(hasLinks), m_refused(std::move(refused))
    {}

    FileDescriptor open(int folder, const char* name, int flags, mode_t mode) override
    {
        if ((flags & O_TMPFILE) != O_TMPFILE)
            return SystemCalls::open(folder, name, flags, mode);
        errno = EOPNOTSUPP;
        return {};
    }
    int rename(int from, const char* name, int to, const char* newName, unsigned flags) override
    {
        errno = EINVAL;
        return flags != 0 || isRefused(newName) ? -1 : SystemCalls::rename(from, name, to, newName, flags);
    }
    int link(int from, const char* name, int to, const char* newName) override
    {
        errno = EPERM;
        return !m_hasLinks || isRefused(newName) ? -1 : SystemCalls::link(from, name, to, newName);
    }

private:
    [[nodiscard]] bool isRefused(const char* name) const
    {
        if (m_refused != name)
            return false;
        errno = EIO;
        return true;
    }

    bool m_hasLinks;
    std::string m_refused;
};

} // namespace

// In the place of the system's own.
int fsetxattr(int file, const char* name, const void* value, std::size_t size, int flags) noexcept
{
    if (!hasNoAttributes)
        return static_cast<int>(::syscall(SYS_fsetxattr, file, name, value, size, flags));
    errno = EOPNOTSUPP;
    return -1;
}

TEST_F(ResizePhotoTest, EveryFormatStaysWithItsMetadataProfileAndOrientation)
{
    for (const std::string kind : {"jpg", "png", "webp", "tif", "heic", "avif"}) {
        const Path path = photo("a." + kind);
        const std::string before = Files::read(path);
        const auto outcome = resize(path, small);
        ASSERT_EQ(outcome.kind, Kind::Done) << kind << outcome.words;
        EXPECT_EQ(Files::read(path), before) << "the original is untouched";
        const Path made = listed() / outcome.name;
        const Image image = open(made);
        ASSERT_TRUE(image) << made;
        EXPECT_EQ(std::max(vips_image_get_width(image.get()), vips_image_get_height(image.get())), 100) << kind;
        EXPECT_EQ(outcome.after.bytes, fs::file_size(made));
        const Image original = open(path);
        for (const char* field : {VIPS_META_ORIENTATION, VIPS_META_ICC_NAME, "exif-ifd0-Artist", "vips-loader"})
            EXPECT_EQ(vips_image_get_typeof(image.get(), field), vips_image_get_typeof(original.get(), field))
                << kind << field;
        EXPECT_EQ(vips_image_get_orientation(image.get()), vips_image_get_orientation(original.get())) << kind;
    }
}

TEST_F(ResizePhotoTest, WhatIsSaidOfAPhotoStaysInEveryFormat)
{
    for (const std::string kind : {"jpg", "png", "webp", "tif", "heic", "avif"}) {
        const Path path = photo("a." + kind);
        describe(path);
        const auto outcome = resize(path, small);
        ASSERT_EQ(outcome.kind, Kind::Done) << kind << outcome.words;
        const Path made = listed() / outcome.name;
        EXPECT_EQ(description(made), description(path)) << kind;
        EXPECT_NE(description(made).find("[XMP-dc]        Subject"), std::string::npos) << kind;
        EXPECT_EQ(outcome.after.bytes, fs::file_size(made)) << kind;
        ASSERT_TRUE(open(made)) << kind;
        EXPECT_EQ(vips_image_get_orientation(open(made).get()), vips_image_get_orientation(open(path).get())) << kind;
        EXPECT_EQ(exifTool("-s3 -Error", made), "") << kind;
    }
    EXPECT_EQ(namesIn(listed()).size(), 12U) << "and nothing else is left";
}

TEST_F(ResizePhotoTest, WhatIsSaidOfATiffCountsAmongItsBytes)
{
    const Path path = photo("a.tif", 800, 600);
    describe(path);
    static_cast<void>(exifTool("-q -overwrite_original -UserComment='" + std::string(20'000, 'x') + "'", path));
    for (const std::uint64_t most : {300'000U, 100'000U, 60'000U}) {
        const auto outcome = resize(path, {Goal::Kind::Bytes, most});
        ASSERT_EQ(outcome.kind, Kind::Done) << outcome.words;
        EXPECT_LE(fs::file_size(listed() / outcome.name), most);
        EXPECT_EQ(description(listed() / outcome.name), description(path));
    }
}

TEST_F(ResizePhotoTest, WhatIsForPrintingStaysInItsInks)
{
    VipsImage* inks = nullptr;
    ASSERT_EQ(vips_icc_transform(open(photo("screen.jpg", 400, 300, 1)).get(), &inks, "cmyk", nullptr), 0);
    const Path path = listed() / "print.jpg";
    EXPECT_EQ(vips_image_write_to_file(inks, path.c_str(), nullptr), 0);
    g_object_unref(inks);
    const auto profileOf = [](const Image& image) {
        const void* bytes = nullptr;
        std::size_t length = 0;
        vips_image_get_blob(image.get(), VIPS_META_ICC_NAME, &bytes, &length);
        return std::string(static_cast<const char*>(bytes), length);
    };
    // The second takes several tries.
    const std::uint64_t profile = profileOf(open(path)).size();
    const Goal few{Goal::Kind::Bytes, profile + (fs::file_size(path) - profile) / 5};
    for (const Goal& goal : {small, few}) {
        const auto outcome = resize(path, goal);
        ASSERT_EQ(outcome.kind, Kind::Done) << outcome.words;
        const Image original = open(path);
        const Image made = open(listed() / outcome.name);
        ASSERT_TRUE(made);
        EXPECT_LT(vips_image_get_width(made.get()), 400);
        EXPECT_EQ(vips_image_get_interpretation(made.get()), VIPS_INTERPRETATION_CMYK);
        EXPECT_EQ(vips_image_get_bands(made.get()), 4);
        EXPECT_TRUE(profileOf(made) == profileOf(original));
        double before = 0;
        double after = 0;
        vips_avg(original.get(), &before, nullptr);
        vips_avg(made.get(), &after, nullptr);
        EXPECT_NEAR(before, after, 3.0) << "and its inks are not turned into their opposite";
    }
}

TEST_F(ResizePhotoTest, SizesAreToldAsThePhotoIsShown)
{
    const auto turned = resize(photo("turned.jpg", 400, 300, 6), {Goal::Kind::Percent, 50});
    EXPECT_EQ(turned.before.width, 300U);
    EXPECT_EQ(turned.after.width, 150U);
    EXPECT_EQ(turned.name, "turned-150x200.jpg");
    const auto upright = resize(photo("upright.jpg", 400, 300, 1), {Goal::Kind::Percent, 50});
    EXPECT_EQ(upright.name, "upright-200x150.jpg");
}

TEST_F(ResizePhotoTest, ASizeInBytesIsReached)
{
    const Path path = photo("a.jpg", 1200, 900);
    for (const std::uint64_t most : {100'000U, 30'000U, 12'000U}) {
        const auto outcome = resize(path, {Goal::Kind::Bytes, most});
        ASSERT_EQ(outcome.kind, Kind::Done) << outcome.words;
        EXPECT_LE(fs::file_size(listed() / outcome.name), most);
        EXPECT_GT(fs::file_size(listed() / outcome.name), most / 4) << "and not by far";
    }
    // What is said of it stays, and has that size already.
    EXPECT_EQ(resize(path, {Goal::Kind::Bytes, 3000}).kind, Kind::Refused);
}

TEST_F(ResizePhotoTest, ASizeInBytesTakesNoMoreOfThePhotoThanItHasTo)
{
    for (const std::string kind : {"jpg", "webp", "png"}) {
        const Path path = photo("a." + kind, 2600, 400, 1);
        const std::uint64_t whole = fs::file_size(path);
        for (const std::uint64_t most : {whole * 9 / 10, whole / 2, whole / 8}) {
            const auto outcome = resize(path, {Goal::Kind::Bytes, most});
            ASSERT_EQ(outcome.kind, Kind::Done) << outcome.words;
            EXPECT_LE(outcome.after.bytes, most) << kind;
            const bool isWhole = outcome.after.width == 2600;
            EXPECT_TRUE(isWhole || outcome.after.bytes > most / 4 * 3)
                << kind << ' ' << outcome.after.bytes << " of " << most << ' ' << outcome.after.width;
            // What is written worse needs no fewer pixels.
            EXPECT_EQ(isWhole, kind != "png" && most == whole * 9 / 10) << kind << most;
        }
    }
    // They take long to write.
    for (const char* name : {"a.heic", "a.avif"}) {
        const Path path = photo(name, 600, 400, 1);
        const std::uint64_t most = fs::file_size(path) / 2;
        const auto outcome = resize(path, {Goal::Kind::Bytes, most});
        ASSERT_EQ(outcome.kind, Kind::Done) << outcome.words;
        EXPECT_LE(outcome.after.bytes, most) << name;
        EXPECT_GT(outcome.after.bytes, most / 4 * 3) << name;
    }
    const Goal forScreens{.kind = Goal::Kind::Bytes, .value = 100'000'000, .longest = 2048};
    EXPECT_EQ(sizeFor(forScreens, {4000, 3000, 0}), (Size{2048, 1536, 0}));
}

TEST_F(ResizePhotoTest, WhatIsSmallAlreadyIsLeftAlone)
{
    const Path path = photo("a.jpg");
    EXPECT_EQ(resize(path, {Goal::Kind::Length, 4000}).kind, Kind::SmallAlready);
    EXPECT_EQ(resize(path, {Goal::Kind::Percent, 100}).kind, Kind::SmallAlready);
    EXPECT_EQ(resize(path, {Goal::Kind::Bytes, 100'000'000}).kind, Kind::SmallAlready);
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{"a.jpg"});
}

TEST_F(ResizePhotoTest, NothingIsEverOverwritten)
{
    const Path path = photo("a.jpg", 400, 300, 1);
    Files::write(listed() / "a-100x75.jpg", "mine");
    EXPECT_EQ(resize(path, small).name, "a-100x75 (2).jpg");
    EXPECT_EQ(resize(path, small).name, "a-100x75 (3).jpg");
    EXPECT_EQ(Files::read(listed() / "a-100x75.jpg"), "mine");
    Files::write(other() / "a.jpg", "mine too");
    const auto elsewhere = resize(path, small, {Target::Kind::Folder, other(), "{name}"});
    EXPECT_EQ(elsewhere.name, "a (2).jpg");
    EXPECT_EQ(Files::read(other() / "a.jpg"), "mine too");
}

TEST_F(ResizePhotoTest, InItsPlaceTheOriginalGoesToTheTrash)
{
    const Path path = photo("a.jpg");
    const std::string before = Files::read(path);
    const auto outcome = resize(path, small, {.kind = Target::Kind::InPlace});
    if (outcome.kind == Kind::CannotBeTrashed) {
        EXPECT_EQ(Files::read(path), before) << "without a trash it stays: " << outcome.words;
        return;
    }
    ASSERT_EQ(outcome.kind, Kind::Done) << outcome.words;
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{"a.jpg"});
    EXPECT_LT(fs::file_size(path), before.size());
    bool isInTrash = false;
    for (const auto& entry : fs::recursive_directory_iterator(root()))
        isInTrash =
            isInTrash || (entry.path() != path && entry.is_regular_file() && Files::read(entry.path()) == before);
    EXPECT_TRUE(isInTrash);
}

TEST_F(ResizePhotoTest, AFileSystemThatRenamesOnlyPlainlyHasNamesToo)
{
    for (const bool hasLinks : {true, false}) {
        const Path path = photo("a.jpg", 400, 300, 1);
        const auto before = fs::file_size(path);
        const auto inPlace =
            resize(path, small, {.kind = Target::Kind::InPlace}, std::make_unique<PlainCalls>(hasLinks));
        ASSERT_EQ(inPlace.kind, Kind::Done) << inPlace.words << std::strerror(inPlace.error);
        EXPECT_EQ(namesIn(listed()), std::vector<std::string>{"a.jpg"});
        EXPECT_LT(fs::file_size(path), before);

        Files::write(listed() / "a-50x38.jpg", "mine");
        const auto beside = resize(path, {Goal::Kind::Length, 50}, {}, std::make_unique<PlainCalls>(hasLinks));
        EXPECT_EQ(beside.kind, Kind::Done) << std::strerror(beside.error);
        EXPECT_EQ(namesIn(listed()), (std::vector<std::string>{"a-50x38 (2).jpg", "a-50x38.jpg", "a.jpg"}));
        EXPECT_EQ(Files::read(listed() / "a-50x38.jpg"), "mine");
        for (const std::string& name : namesIn(listed()))
            fs::remove(listed() / name);
    }
}

TEST_F(ResizePhotoTest, WhatCannotTakeThePlaceOfATrashedPhotoLiesBesideIt)
{
    const auto outcome = resize(photo("a.jpg", 400, 300, 1), small, {.kind = Target::Kind::InPlace},
                                std::make_unique<PlainCalls>(true, "a.jpg"));
    EXPECT_EQ(outcome.kind, Kind::OnlyInTrash) << outcome.words;
    EXPECT_EQ(outcome.error, EIO);
    EXPECT_EQ(outcome.name, "a-100x75.jpg");
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{"a-100x75.jpg"});
    EXPECT_EQ(vips_image_get_width(open(listed() / "a-100x75.jpg").get()), 100);
}

TEST_F(ResizePhotoTest, WithoutExifToolNoTiffIsMadeThatSaysLess)
{
    const Path path = photo("a.tif");
    const Path plain = photo("plain.tif");
    static_cast<void>(exifTool("-q -overwrite_original -all=", plain));
    describe(path);
    const std::string before = Files::read(path);
    const std::string programs = std::getenv("PATH");
    ::setenv("PATH", "/nowhere", 1);
    const auto inPlace = resize(path, small, {.kind = Target::Kind::InPlace});
    const auto beside = resize(path, small);
    const auto ofPlain = resize(plain, small, {.kind = Target::Kind::InPlace});
    ::setenv("PATH", programs.c_str(), 1);
    for (const auto& outcome : {inPlace, beside}) {
        EXPECT_EQ(outcome.kind, Kind::Refused);
        EXPECT_NE(outcome.words.find("ExifTool"), std::string::npos) << outcome.words;
    }
    EXPECT_EQ(Files::read(path), before);
    EXPECT_NE(ofPlain.kind, Kind::Refused) << "a scan says nothing that would be lost: " << ofPlain.words;
}

TEST_F(ResizePhotoTest, APictureThatMovesIsNoPhoto)
{
    const Path path = photo("a.png");
    constexpr std::size_t endOfHeader = 33;
    const std::string frames("\x00\x00\x00\x08"
                             "acTL"
                             "\x00\x00\x00\x02\x00\x00\x00\x00\xf3\x8d\x93\x70",
                             20);
    Files::write(path, Files::read(path).insert(endOfHeader, frames));
    const auto outcome = resize(path, small);
    EXPECT_EQ(outcome.kind, Kind::Refused);
    EXPECT_NE(outcome.words.find("several pictures"), std::string::npos) << outcome.words;
}

TEST_F(ResizePhotoTest, WhatLiesBehindTheEndOfAPhotoIsNotLostInItsPlace)
{
    const std::string second = Files::read(photo("second.jpg"));
    const std::string film("\0\0\0\x18"
                           "ftypmp42\0\0\0\0mp42isom",
                           24);
    // A camera's own notes are longer than what is read at once.
    for (const std::string& more : {second, film, std::string(300'000, 'x') + film}) {
        const Path path = photo("a.jpg");
        const std::string before = Files::read(path) + more;
        Files::write(path, before);
        const auto inPlace = resize(path, small, {.kind = Target::Kind::InPlace});
        EXPECT_EQ(inPlace.kind, Kind::Refused);
        EXPECT_NE(inPlace.words.find("second picture"), std::string::npos) << inPlace.words;
        EXPECT_TRUE(Files::read(path) == before);
        EXPECT_EQ(resize(path, small).kind, Kind::Done) << "beside it nothing is lost";
    }
    const Path padded = photo("padded.jpg");
    Files::write(padded, Files::read(padded) + std::string(5000, '\0'));
    EXPECT_NE(resize(padded, small, {.kind = Target::Kind::InPlace}).kind, Kind::Refused);
}

TEST_F(ResizePhotoTest, WhatTheColoursOfAPngMeanStays)
{
    constexpr std::size_t endOfHeader = 33;
    const std::string gamma = chunk("gAMA", std::string("\0\x01\x86\xa0", 4));
    const std::string primaries = chunk("cHRM", std::string("\0\0\x7a\x26\0\0\x80\x84\0\0\xfa\0\0\0\x80\xe8"
                                                            "\0\0\x52\x08\0\x01\x15\x58\0\0\x3a\x98\0\0\x17\x70",
                                                            32));
    const std::string intent = chunk("sRGB", std::string(1, '\0'));
    const std::string codes = chunk("cICP", std::string("\x09\x10\0\x01", 4));
    const std::string all = gamma + primaries + intent + codes;
    const Path profiled = photo("profiled.png");
    const Image image = open(profiled);
    vips_image_remove(image.get(), VIPS_META_ICC_NAME);
    for (const bool hasPalette : {false, true}) {
        const Path path = listed() / (hasPalette ? "palette.png" : "plain.png");
        ASSERT_EQ(vips_pngsave(image.get(), path.c_str(), "palette", hasPalette, nullptr), 0);
        Files::write(path, Files::read(path).insert(endOfHeader, all));
        const auto outcome = resize(path, small);
        ASSERT_EQ(outcome.kind, Kind::Done) << outcome.words;
        const std::string made = Files::read(listed() / outcome.name);
        EXPECT_EQ(made.substr(endOfHeader, all.size()), all) << hasPalette;
        EXPECT_EQ(made.find("PLTE") != std::string::npos, hasPalette);
        EXPECT_EQ(exifTool("-s3 -Warning -Error", listed() / outcome.name), "");
    }
    // A profile says it all.
    Files::write(profiled, Files::read(profiled).insert(endOfHeader, gamma));
    const std::string made = Files::read(listed() / resize(profiled, small).name);
    EXPECT_NE(made.find("iCCP"), std::string::npos);
    EXPECT_EQ(made.find("gAMA"), std::string::npos);
}

TEST_F(ResizePhotoTest, ATiffThatIsCompressedAsAPhotoStaysSo)
{
    const auto compressionOf = [](const Path& path) { return exifTool("-s3 -Compression", path); };
    const Image colors = open(photo("colors.png", 1600, 1200));
    VipsImage* made = nullptr;
    ASSERT_EQ(vips_colourspace(colors.get(), &made, VIPS_INTERPRETATION_B_W, nullptr), 0);
    const Image grey(made);
    vips_image_remove(grey.get(), VIPS_META_ICC_NAME);
    for (VipsImage* const image : {colors.get(), grey.get()}) {
        const Path path = listed() / "a.tif";
        ASSERT_EQ(
            vips_tiffsave(image, path.c_str(), "compression", VIPS_FOREIGN_TIFF_COMPRESSION_JPEG, "Q", 80, nullptr),
            0);
        describe(path);
        ASSERT_EQ(compressionOf(path), "JPEG\n");
        for (const Goal& goal : {Goal{Goal::Kind::Percent, 50}, Goal{Goal::Kind::Bytes, 100'000}}) {
            const auto outcome = resize(path, goal);
            ASSERT_EQ(outcome.kind, Kind::Done) << outcome.words;
            EXPECT_LT(outcome.after.bytes, outcome.before.bytes / 2);
            EXPECT_LE(goal.kind == Goal::Kind::Bytes ? outcome.after.bytes : 0, 100'000U);
            const Path half = listed() / outcome.name;
            EXPECT_EQ(compressionOf(half), "JPEG\n");
            EXPECT_EQ(description(half), description(path));
            double before = 0;
            double after = 0;
            vips_avg(image, &before, nullptr);
            EXPECT_EQ(vips_avg(open(half).get(), &after, nullptr), 0) << vips_error_buffer();
            EXPECT_NEAR(before, after, 1.0);
        }
    }
    EXPECT_EQ(compressionOf(listed() / resize(photo("plain.tif"), small).name), "Adobe Deflate\n");
}

TEST_F(ResizePhotoTest, HalfOfAPaletteIsSmallerThanTheWhole)
{
    VipsImage* clouds = nullptr;
    VipsImage* steps = nullptr;
    VipsImage* whole = nullptr;
    VipsImage* few = nullptr;
    VipsImage* bytes = nullptr;
    vips_perlin(&clouds, 1600, 1200, "uchar", TRUE, "seed", 3, nullptr);
    vips_linear1(clouds, &steps, 1.0 / 32, 0, nullptr);
    vips_floor(steps, &whole, nullptr);
    vips_linear1(whole, &few, 32, 0, nullptr);
    vips_cast_uchar(few, &bytes, nullptr);
    std::array<VipsImage*, 3> bands{bytes, bytes, bytes};
    VipsImage* colors = nullptr;
    vips_bandjoin(bands.data(), &colors, 3, nullptr);
    const Path path = listed() / "a.png";
    EXPECT_EQ(vips_pngsave(colors, path.c_str(), "palette", TRUE, nullptr), 0) << vips_error_buffer();
    for (VipsImage* each : {clouds, steps, whole, few, bytes, colors})
        g_object_unref(each);
    const auto outcome = resize(path, {Goal::Kind::Percent, 50});
    ASSERT_EQ(outcome.kind, Kind::Done) << outcome.words;
    EXPECT_LT(outcome.after.bytes, outcome.before.bytes);
    EXPECT_NE(vips_image_get_typeof(open(listed() / outcome.name).get(), "palette-bit-depth"), 0U);
}

TEST_F(ResizePhotoTest, PermissionsStay)
{
    const Path path = photo("a.jpg");
    fs::permissions(path, fs::perms(0640));
    const auto outcome = resize(path, small);
    EXPECT_EQ(fs::status(listed() / outcome.name).permissions(), fs::perms(0640));
}

TEST_F(ResizePhotoTest, WhatAFileSystemHasNoPlaceForIsLeftBehind)
{
    const Path path = photo("a.jpg");
    ASSERT_EQ(::setxattr(path.c_str(), "user.xdg.origin.url", "https://example.org/", 20, 0), 0);
    const auto kept = resize(path, small, {Target::Kind::Folder, other(), "{name}"});
    ASSERT_EQ(kept.kind, Kind::Done);
    EXPECT_EQ(::getxattr((other() / kept.name).c_str(), "user.xdg.origin.url", nullptr, 0), 20);
    hasNoAttributes = true;
    const auto made = resize(path, small, {Target::Kind::Folder, other(), "{name}"});
    hasNoAttributes = false;
    EXPECT_EQ(made.kind, Kind::Done) << std::strerror(made.error);
    EXPECT_EQ(namesIn(other()), (std::vector<std::string>{"a (2).jpg", "a.jpg"}));
}

TEST_F(ResizePhotoTest, HostileFilesAreToldOfAndLeaveNothing)
{
    const std::string whole = Files::read(photo("a.jpg"));
    Files::write(listed() / "truncated.jpg", whole.substr(0, whole.size() / 2));
    Files::write(listed() / "text.jpg", "no picture");
    Files::write(listed() / "empty.jpg", "");
    // A TIFF that says 60,000 by 60,000 and holds nothing.
    const std::string huge("II*\0\x08\0\0\0\x04\0"
                           "\0\x01\x04\0\x01\0\0\0\x60\xea\0\0"
                           "\x01\x01\x04\0\x01\0\0\0\x60\xea\0\0"
                           "\x11\x01\x04\0\x01\0\0\0\x08\0\0\0"
                           "\x17\x01\x04\0\x01\0\0\0\x10\0\0\0"
                           "\0\0\0\0",
                           62);
    Files::write(listed() / "huge.tif", huge);
    ASSERT_EQ(::mkfifo((listed() / "pipe.jpg").c_str(), 0600), 0);
    fs::create_directory(listed() / "folder.jpg");
    const auto names = namesIn(listed());
    for (const char* name : {"truncated.jpg", "text.jpg", "empty.jpg", "huge.tif"}) {
        const auto outcome = resize(listed() / name, small);
        EXPECT_EQ(outcome.kind, Kind::Refused) << name;
        EXPECT_FALSE(outcome.words.empty());
    }
    for (const char* name : {"pipe.jpg", "folder.jpg", "gone.jpg"})
        EXPECT_EQ(resize(listed() / name, small).kind, Kind::CannotBeOpened) << name;
    EXPECT_EQ(namesIn(listed()), names);
}

TEST_F(ResizePhotoTest, AWrongEndOfTheNameDoesNotMislead)
{
    fs::rename(photo("a.png"), listed() / "a.jpg");
    const auto outcome = resize(listed() / "a.jpg", small);
    ASSERT_EQ(outcome.kind, Kind::Done) << outcome.words;
    EXPECT_TRUE(Files::read(listed() / outcome.name).starts_with("\x89PNG"));
}

TEST_F(ResizePhotoTest, HostileNamesAreNothingButNames)
{
    for (const std::string name : {"a\nb.jpg", "-rf.jpg", "\xff\xfe.jpg", "[strip].jpg", "a%s.jpg", "{name}.jpg"}) {
        const Path path = photo("plain.jpg");
        fs::rename(path, listed() / name);
        const auto outcome = resize(listed() / name, small);
        ASSERT_EQ(outcome.kind, Kind::Done) << name << outcome.words;
        EXPECT_TRUE(fs::exists(listed() / outcome.name));
    }
}

TEST_F(ResizePhotoTest, AFullDiskAndAFolderThatIsNotThereAreToldOf)
{
    const Path path = photo("a.jpg", 1200, 900);
    EXPECT_EQ(resize(path, small, {Target::Kind::Folder, root() / "nowhere", "{name}"}).kind, Kind::CannotBeSaved);
    const pid_t child = ::fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit most{1000, 1000};
        ::setrlimit(RLIMIT_FSIZE, &most);
        ::_exit(static_cast<int>(resize(path, small).kind));
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_NE(static_cast<Kind>(WEXITSTATUS(status)), Kind::Done);
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{"a.jpg"});
}

TEST_F(ResizePhotoTest, APreviewShowsBothAndWritesNothing)
{
    const auto opened = openWithFolder(request(), photo("a.jpg", 400, 300, 6));
    ASSERT_TRUE(opened);
    PhotoResizer resizer(ORVIK_RESIZE_WORKER);
    const auto result = resizer.preview(*opened, small, 50, {});
    ASSERT_TRUE(result);
    const auto* shown = std::get_if<Resized>(&*result);
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->before.height, 400U);
    EXPECT_EQ(shown->after.height, 100U);
    EXPECT_EQ(shown->shownBefore.height, 50U);
    EXPECT_EQ(shown->shownAfter.height, 50U);
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{"a.jpg"});
}

TEST_F(ResizePhotoTest, AllTogetherHaveNoMoreThanIsWanted)
{
    EXPECT_EQ(fairShare({100, 100, 100}, 90), 30U);
    EXPECT_EQ(fairShare({10, 100, 100}, 90), 40U) << "what one does not need is the others'";
    EXPECT_EQ(fairShare({10, 20, 30}, 90), 90U) << "where all are small enough none has to change";
    EXPECT_EQ(fairShare({}, 90), 90U);
    EXPECT_EQ(fairShare({5, 5, 5}, 1), 1U);

    std::vector<std::string> paths;
    for (const char* name : {"a.jpg", "b.jpg"})
        paths.push_back(photo(name, 1200, 900));
    paths.push_back(photo("small.jpg", 40, 30));
    constexpr std::uint64_t most = 100'000;
    std::uint64_t sum = fs::file_size(paths.back());
    const Goal goal = sharedGoal(request(), paths, {Goal::Kind::Bytes, most});
    for (std::size_t number = 0; number < 2; ++number) {
        const auto outcome = resize(paths[number], goal);
        ASSERT_EQ(outcome.kind, Kind::Done) << outcome.words;
        sum += outcome.after.bytes;
    }
    EXPECT_EQ(resize(paths.back(), goal).kind, Kind::SmallAlready);
    EXPECT_LE(sum, most);
}

/// A process that is killed while it resizes, at a moment that nobody chooses.
TEST_F(ResizePhotoTest, WhoeverIsKilledLeavesWholeFilesOnly)
{
    const Path path = photo("a.jpg", 1200, 900, 1);
    const std::string before = Files::read(path);
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_EQ(resize(path, {Goal::Kind::Percent, 50}).kind, Kind::Done);
    const auto whole = std::chrono::steady_clock::now() - begin;
    std::mt19937 random(std::random_device{}());
    std::uniform_real_distribution<double> share(0.0, 3.0);
    for (int round = 0; round < 20; ++round) {
        const pid_t child = ::fork();
        if (child == 0) {
            for (;;)
                static_cast<void>(resize(path, {Goal::Kind::Percent, 50}));
        }
        std::this_thread::sleep_for(whole * share(random));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        EXPECT_EQ(Files::read(path), before);
        for (const std::string& name : namesIn(listed())) {
            if (name == "a.jpg")
                continue;
            const Image image = open(listed() / name);
            ASSERT_TRUE(image) << name;
            EXPECT_EQ(vips_image_get_width(image.get()), 600);
            double mean = 0;
            EXPECT_EQ(vips_avg(image.get(), &mean, nullptr), 0) << name << " can be read to its end";
            fs::remove(listed() / name);
        }
    }
}

TEST_F(ResizePhotoTest, AWorkerThatIsNotThereIsToldOf)
{
    const auto opened = openWithFolder(request(), photo("a.jpg"));
    PhotoResizer resizer("/nowhere/worker");
    EXPECT_EQ(resizer.resize(*opened, small, {}, {}).kind, Kind::WorkerIsMissing);
}

TEST_F(ResizePhotoTest, AWishToStopEndsItAndLeavesNothing)
{
    const auto opened = openWithFolder(request(), photo("a.jpg"));
    std::stop_source stop;
    stop.request_stop();
    PhotoResizer resizer(ORVIK_RESIZE_WORKER);
    EXPECT_EQ(resizer.resize(*opened, small, {}, stop.get_token()).kind, Kind::Cancelled);
    EXPECT_EQ(namesIn(listed()), std::vector<std::string>{"a.jpg"});
}
