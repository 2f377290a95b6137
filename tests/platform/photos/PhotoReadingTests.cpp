#include "extension/actions/photos/PhotoReading.h"
#include "platform/chooser/TemporaryFolder.h"

#include <array>
#include <cstdint>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace MenuExtension::Photos;
using namespace std::string_literals;

class PhotoReadingTest : public testing::Test {
protected:
    static void SetUpTestSuite() { prepareReading(); }

    /// Red at the left, blue at the right.
    static Image twoColors(int width, int height)
    {
        std::vector<std::uint8_t> pixels;
        for (int row = 0; row < height; ++row) {
            for (int column = 0; column < width; ++column) {
                const bool isLeft = column < width / 2;
                for (const int band : {isLeft ? 255 : 0, 0, isLeft ? 0 : 255})
                    pixels.push_back(static_cast<std::uint8_t>(band));
            }
        }
        const Image plain(
            vips_image_new_from_memory_copy(pixels.data(), pixels.size(), width, height, 3, VIPS_FORMAT_UCHAR));
        VipsImage* image = nullptr;
        EXPECT_EQ(vips_copy(plain.get(), &image, "interpretation", VIPS_INTERPRETATION_sRGB, nullptr), 0);
        return Image(image);
    }
    std::string write(VipsImage* image, const std::string& name) const
    {
        EXPECT_EQ(vips_image_write_to_file(image, m_folder.path(name).c_str(), nullptr), 0) << vips_error_buffer();
        return m_folder.path(name);
    }
    std::string writeBytes(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(m_folder.path(name), std::ios::binary) << bytes;
        return m_folder.path(name);
    }

    struct Read {
        int width = 0;
        int height = 0;
        Image small;
        std::string why;

        [[nodiscard]] std::array<int, 3> at(int column, int row) const
        {
            const auto* pixel = static_cast<const std::uint8_t*>(vips_image_get_data(small.get())) +
                                (row * vips_image_get_width(small.get()) + column) * 3;
            return {pixel[0], pixel[1], pixel[2]};
        }
    };
    static Read read(const std::string& path, int longest)
    {
        Read result;
        const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        auto opened = openPhoto(file);
        if (auto* unreadable = std::get_if<Unreadable>(&opened)) {
            result.why = unreadable->why;
        } else {
            const auto& photo = std::get<OpenedPhoto>(opened);
            result.width = photo.width;
            result.height = photo.height;
            auto small = readSmall(photo, longest);
            if (auto* unreadableNow = std::get_if<Unreadable>(&small))
                result.why = unreadableNow->why;
            else
                result.small = std::move(std::get<Image>(small));
        }
        ::close(file);
        return result;
    }

    TemporaryFolder m_folder;
};

TEST_F(PhotoReadingTest, TheFormatsOfPhotosAreReadWhateverTheyAreCalled)
{
    const auto image = twoColors(80, 60);
    for (const std::string ending : {"jpg", "png", "webp", "tif", "gif", "ppm"}) {
        write(image.get(), "picture." + ending);
        ASSERT_EQ(::rename(m_folder.path("picture." + ending).c_str(), m_folder.path("picture").c_str()), 0);
        const Read picture = read(m_folder.path("picture"), 40);
        ASSERT_TRUE(picture.small) << ending << ' ' << picture.why;
        EXPECT_EQ(picture.width, 80);
        EXPECT_EQ(picture.height, 60);
        EXPECT_EQ(vips_image_get_width(picture.small.get()), 40);
        EXPECT_EQ(vips_image_get_height(picture.small.get()), 30);
        EXPECT_GT(picture.at(4, 15)[0], 200) << ending;
        EXPECT_GT(picture.at(36, 15)[2], 200) << ending;
    }
}

TEST_F(PhotoReadingTest, APictureIsTurnedAsItsFileSays)
{
    const auto image = twoColors(80, 60);
    constexpr int quarterTurn = 6;
    vips_image_set_int(image.get(), VIPS_META_ORIENTATION, quarterTurn);
    for (const std::string ending : {"jpg", "tif"}) {
        const Read picture = read(write(image.get(), "turned." + ending), 40);
        ASSERT_TRUE(picture.small) << picture.why;
        EXPECT_EQ(picture.width, 60);
        EXPECT_EQ(picture.height, 80);
        EXPECT_EQ(vips_image_get_height(picture.small.get()), 40);
        EXPECT_GT(picture.at(15, 4)[0], 200) << "what was at the left is at the top";
    }
}

TEST_F(PhotoReadingTest, SmallPicturesAreNotMadeLarger)
{
    const Read picture = read(write(twoColors(8, 6).get(), "small.png"), 40);
    ASSERT_TRUE(picture.small);
    EXPECT_EQ(vips_image_get_width(picture.small.get()), 8);
}

TEST_F(PhotoReadingTest, WhatIsTransparentIsShownOnWhite)
{
    VipsImage* clear = nullptr;
    ASSERT_EQ(vips_black(&clear, 8, 8, "bands", 4, nullptr), 0);
    const Image black(clear);
    ASSERT_EQ(vips_copy(black.get(), &clear, "interpretation", VIPS_INTERPRETATION_sRGB, nullptr), 0);
    const Image transparent(clear);
    const Read picture = read(write(transparent.get(), "clear.png"), 8);
    ASSERT_TRUE(picture.small) << picture.why;
    EXPECT_EQ(picture.at(3, 3), (std::array{255, 255, 255}));
}

TEST_F(PhotoReadingTest, GreyAndFineOnesBecomeThreeBandsOfBytes)
{
    VipsImage* made = nullptr;
    ASSERT_EQ(vips_black(&made, 16, 16, nullptr), 0);
    const Image grey(made);
    ASSERT_EQ(vips_colourspace(grey.get(), &made, VIPS_INTERPRETATION_GREY16, nullptr), 0);
    const Image fine(made);
    const Read picture = read(write(fine.get(), "fine.png"), 16);
    ASSERT_TRUE(picture.small) << picture.why;
    EXPECT_EQ(vips_image_get_bands(picture.small.get()), 3);
    EXPECT_EQ(vips_image_get_format(picture.small.get()), VIPS_FORMAT_UCHAR);
}

TEST_F(PhotoReadingTest, WhatIsNoPictureIsSaidToBeNone)
{
    for (const std::string& bytes : {""s, "no picture"s, std::string(5000, '\0'), "%PDF-1.7\n%"s,
                                     "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"s}) {
        const Read picture = read(writeBytes("picture.jpg", bytes), 40);
        EXPECT_FALSE(picture.small);
        EXPECT_EQ(picture.why, "is no picture of a kind that can be read here") << bytes.substr(0, 20);
    }
}

TEST_F(PhotoReadingTest, ATruncatedPictureIsSaidToBeDamaged)
{
    for (const std::string ending : {".jpg", ".png", ".webp"}) {
        const std::string path = write(twoColors(640, 480).get(), "whole" + ending);
        std::ifstream file(path, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        const Read picture = read(writeBytes("part" + ending, bytes.substr(0, bytes.size() / 2)), 40);
        EXPECT_FALSE(picture.small) << ending;
        EXPECT_EQ(picture.why, "cannot be read: it is damaged or ends too early") << ending;
    }
}

TEST_F(PhotoReadingTest, APictureThatIsTooLargeIsNotBegun)
{
    // The beginning of a PNG of 60,000 by 60,000.
    const std::string header = "\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\xea\x60\0\0\xea\x60\x08\x02\0\0\0"s;
    const unsigned long sum = [&] {
        unsigned long crc = 0xffffffffUL;
        for (std::size_t at = 12; at < header.size(); ++at) {
            crc ^= static_cast<unsigned char>(header[at]);
            for (int bit = 0; bit < 8; ++bit)
                crc = (crc & 1U) != 0 ? crc >> 1U ^ 0xedb88320UL : crc >> 1U;
        }
        return crc ^ 0xffffffffUL;
    }();
    std::string bytes = header;
    for (const int shift : {24, 16, 8, 0})
        bytes += static_cast<char>(sum >> static_cast<unsigned>(shift) & 0xffU);
    bytes += "\0\0\0\0IDAT\x35\xaf\x06\x1e"s;
    const Read picture = read(writeBytes("large.png", bytes), 40);
    EXPECT_FALSE(picture.small);
    EXPECT_EQ(picture.why, "is too large: it has 60000 × 60000 pixels");
}

} // namespace
