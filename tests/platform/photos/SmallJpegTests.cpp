#include "extension/actions/photos/SmallJpeg.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

using namespace MenuExtension::Photos;

class SmallJpegTest : public testing::Test {
protected:
    static void SetUpTestSuite() { prepareReading(); }

    /// A picture of 640 by 480, all of one value.
    static std::vector<unsigned char> jpeg(int bands, VipsInterpretation interpretation)
    {
        std::vector<std::uint8_t> pixels(std::size_t{640} * 480 * static_cast<std::size_t>(bands), 100);
        const Image plain(
            vips_image_new_from_memory_copy(pixels.data(), pixels.size(), 640, 480, bands, VIPS_FORMAT_UCHAR));
        VipsImage* made = nullptr;
        EXPECT_EQ(vips_copy(plain.get(), &made, "interpretation", interpretation, nullptr), 0);
        const Image image(made);
        void* bytes = nullptr;
        std::size_t size = 0;
        EXPECT_EQ(vips_jpegsave_buffer(image.get(), &bytes, &size, nullptr), 0) << vips_error_buffer();
        const auto* begin = static_cast<const unsigned char*>(bytes);
        std::vector<unsigned char> result(begin, begin + size);
        g_free(bytes);
        return result;
    }
    static std::vector<unsigned char> jpeg() { return jpeg(3, VIPS_INTERPRETATION_sRGB); }
};

TEST_F(SmallJpegTest, APictureIsAsSmallAsIsLargeEnough)
{
    for (const auto& [longest, width] :
         std::vector<std::pair<int, int>>{{1, 80}, {80, 80}, {81, 160}, {160, 160}, {161, 320}, {320, 320}}) {
        const Image small = readSmallJpeg(jpeg(), longest);
        ASSERT_TRUE(small) << longest;
        EXPECT_EQ(vips_image_get_width(small.get()), width) << longest;
        EXPECT_EQ(vips_image_get_height(small.get()), width * 3 / 4) << longest;
    }
    EXPECT_FALSE(readSmallJpeg(jpeg(), 321));
    EXPECT_FALSE(readSmallJpeg(jpeg(), 0));
}

TEST_F(SmallJpegTest, GreyHasThreeBandsToo)
{
    const Image small = readSmallJpeg(jpeg(1, VIPS_INTERPRETATION_B_W), 80);
    ASSERT_TRUE(small);
    EXPECT_EQ(vips_image_get_bands(small.get()), 3);
    const auto* pixel = static_cast<const std::uint8_t*>(vips_image_get_data(small.get()));
    EXPECT_NEAR(pixel[0], 100, 2);
    EXPECT_NEAR(pixel[2], 100, 2);
}

TEST_F(SmallJpegTest, WhatIsOddIsLeftToTheLibrary)
{
    EXPECT_FALSE(readSmallJpeg(jpeg(4, VIPS_INTERPRETATION_CMYK), 80));
    std::vector<unsigned char> bytes = jpeg();
    EXPECT_FALSE(readSmallJpeg({bytes.data(), bytes.size() / 2}, 80));
    EXPECT_FALSE(readSmallJpeg({bytes.data(), 10}, 80));
    EXPECT_FALSE(readSmallJpeg({}, 80));
    bytes[0] = 0;
    EXPECT_FALSE(readSmallJpeg(bytes, 80));
}

} // namespace
