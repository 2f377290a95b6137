#include "extension/actions/photos/ImageData.h"
#include "extension/actions/view-or-edit-exif-data/Edits.h"
#include "extension/actions/view-or-edit-exif-data/PersonalData.h"

#include "support/Files.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace MenuExtension::Exif;

TEST(PhotoTime, IsReadInTheWaysThatFilesHave)
{
    const auto time = photoTime("2024:02:29 13:05:59");
    ASSERT_TRUE(time);
    EXPECT_EQ(textOf(*time), "2024:02:29 13:05:59");
    EXPECT_EQ(photoTime("2024-02-29T13:05:59"), time);
    EXPECT_EQ(photoTime("2024:02:29 13:05:59.25"), time);
    EXPECT_EQ(photoTime("2024:02:29 13:05:59+02:00"), time);
    EXPECT_EQ(photoTime("2024:02:29 13:05:59Z"), time);
    EXPECT_EQ(textOf(*photoTime("2024:02:29")), "2024:02:29 00:00:00");
    EXPECT_EQ(textOf(*photoTime("2024:02:29 13:05")), "2024:02:29 13:05:00");
    EXPECT_EQ(textOf(*time + std::chrono::seconds(-1)), "2024:02:29 13:05:58");
}

TEST(PhotoTime, WhatIsNoTimeIsNone)
{
    for (const char* text : {"", "0000:00:00 00:00:00", "2023:02:29", "2024:13:01", "2024:01:01 24:00:00",
                             "2024:01:01 00:60:00", "2024:01:01x", "24:01:01", "2024:01:01 00:00:00x", "2024:1:1"})
        EXPECT_FALSE(photoTime(text)) << text;
}

TEST(PhotoTime, WhatAPersonTypesIsNothingButATime)
{
    for (const char* text : {"2024-02-29 13:05:59", "2024:02:29T13:05:59"})
        EXPECT_EQ(typedTime(text), photoTime("2024:02:29 13:05:59")) << text;
    EXPECT_EQ(typedTime("2024-02-29"), photoTime("2024:02:29"));
    EXPECT_EQ(typedTime("2024-02-29 13:05"), photoTime("2024:02:29 13:05:00"));
    for (const char* text :
         {"", "yesterday", "2024-02-29 11:30:00 pm", "2024-02-29 23:59:59 garbage", "2024-02-29 13:05:59+02:00",
          "2024-02-29 13:05:59Z", "2024-02-29 13:05:59.25", "2024-02-29 13:05 x", "2024-02-29 13:05:59 "})
        EXPECT_FALSE(typedTime(text)) << text;
}

TEST(Place, IsReadFromTwoNumbersOnEarth)
{
    ASSERT_TRUE(placeFrom("48.5, -2.25"));
    EXPECT_EQ(textOf(*placeFrom(" +48.5,-2.25 ")), "48.500000, -2.250000");
    for (const char* text : {"", "48.5", "91, 0", "0, 181", "nan, 0", "1,2,3", "1 2", "x, 0", "1e999, 0"})
        EXPECT_FALSE(placeFrom(text)) << text;
}

TEST(Tags, AreReadAsExifToolPrintsThem)
{
    std::vector<std::string> sources;
    Tags last;
    const auto take = [&](const std::string& source, Tags tags) {
        sources.push_back(source);
        last = std::move(tags);
    };
    ASSERT_TRUE(readTags(R"([{"SourceFile": "/a", "EXIF:IFD0:Make": "X"},
        {"SourceFile": "/b", "File:FileType": "JPEG", "XMP:XMP-dc:Creator": ["A", "B"], "EXIF:ExifIFD:FNumber": 2.80,
         "XMP:XMP-dc:Title": 1.50, "PNG:PNG-pHYs:X": true}])",
                         take));
    EXPECT_EQ(sources, (std::vector<std::string>{"/a", "/b"}));
    EXPECT_EQ(*last.find("XMP-dc:Creator"), "A; B");
    EXPECT_EQ(*last.find("XMP-dc:Title"), "1.50");
    EXPECT_EQ(*last.find("ExifIFD:FNumber"), "2.80");
    EXPECT_EQ(last.begin()->family, "File");
    EXPECT_EQ(last.begin()->group, "File");
    EXPECT_TRUE(last.find("XMP:Title"));
    EXPECT_TRUE(last.find("*:FNumber"));
    EXPECT_FALSE(last.find("GPS:*"));
}

TEST(Tags, WhatIsNoSuchTextIsNotTaken)
{
    const auto ignore = [](const std::string&, const Tags&) {};
    for (const std::string text :
         {"", "{", "[{]", "1", "\"x\"", "[1]", "[\"x\"]", "[{\"a\": \"\xff\"}]", "{\"a\": 1}"})
        EXPECT_FALSE(readTags(text, ignore)) << text;
    EXPECT_FALSE(readTags(std::string(1'000'000, '['), ignore));
    EXPECT_TRUE(readTags(R"([{"a": {"b": {"c": 1}}, "d": [[[1]]]}])", ignore));
}

TEST(PersonalData, TellsWhatGoes)
{
    using namespace PersonalData;
    EXPECT_EQ(kindOf({"EXIF", "GPS", "GPSLatitude", "1"}), Kind::Place);
    EXPECT_EQ(kindOf({"EXIF", "IFD0", "Artist", "A"}), Kind::People);
    EXPECT_EQ(kindOf({"MakerNotes", "Canon", "SerialNumber", "1"}), Kind::MakerNotes);
    EXPECT_EQ(kindOf({"EXIF", "ExifIFD", "SerialNumber", "1"}), Kind::Camera);
    EXPECT_EQ(kindOf({"XMP", "XMP-mwg-rs", "RegionName", "Ada"}), Kind::People);
    for (const char* name : {"Make", "Copyright", "ImageDescription"})
        EXPECT_FALSE(kindOf({"EXIF", "IFD0", name, "x"})) << name;
}

TEST(ImageData, KnowsTheKindsThatCanBeWritten)
{
    for (const std::string kind : {"jpg", "png", "gif", "tif", "heic", "avif"}) {
        const std::string file = Files::read(std::string(ORVIK_EXIF_PHOTOS) + "/photo." + kind);
        ByteSource source(file);
        EXPECT_TRUE(imageData(source)) << kind;
    }
    ByteSource webp(std::string_view("RIFF\0\0\0\0WEBP", 12));
    EXPECT_FALSE(imageData(webp));
}

TEST(ImageData, EveryByteOfThePictureCounts)
{
    for (const std::string kind : {"jpg", "png", "gif", "tif", "heic", "avif"}) {
        const std::string file = Files::read(std::string(ORVIK_EXIF_PHOTOS) + "/photo." + kind);
        ByteSource original(file);
        const auto parts = imageData(original);
        ASSERT_TRUE(parts) << kind;
        const auto longest = std::ranges::max_element(*parts, {}, &Extent::length);
        std::string changed = file;
        changed[longest->offset + longest->length / 2] =
            static_cast<char>(changed[longest->offset + longest->length / 2] ^ 1);
        ByteSource other(changed);
        EXPECT_EQ(haveSameImage(original, other), false) << kind;
        ByteSource same(file);
        EXPECT_EQ(haveSameImage(original, same), true) << kind;
    }
}

TEST(ImageData, WhatIsCutShortIsNotKnown)
{
    for (const std::string kind : {"jpg", "png", "gif", "tif", "heic", "avif"}) {
        const std::string file = Files::read(std::string(ORVIK_EXIF_PHOTOS) + "/photo." + kind);
        for (std::size_t size = 0; size < file.size() * 9 / 10; ++size) {
            ByteSource original(file);
            ByteSource source(std::string_view(file).substr(0, size));
            EXPECT_NE(haveSameImage(original, source), true) << kind << size;
        }
    }
}

TEST(ImageData, ReadsAFileAsItReadsMemory)
{
    std::string file = Files::read(std::string(ORVIK_EXIF_PHOTOS) + "/photo.jpg");
    // Coded bytes over several looks, with marks at their ends.
    const std::size_t end = file.rfind("\xff\xd9");
    std::string coded;
    for (int block = 0; block < 5; ++block)
        coded += std::string(ByteSource::mostAtOnce - 1, 'x') + std::string("\xff\x00", 2);
    file.insert(end, coded);
    std::string path = "/tmp/orvik-bytes-XXXXXX";
    const int descriptor = ::mkstemp(path.data());
    ::unlink(path.c_str());
    ASSERT_EQ(::write(descriptor, file.data(), file.size()), static_cast<ssize_t>(file.size()));
    ByteSource onDisk(descriptor);
    ByteSource inMemory(file);
    EXPECT_EQ(imageData(onDisk)->size(), imageData(inMemory)->size());
    EXPECT_EQ(haveSameImage(onDisk, inMemory), true);
    ::close(descriptor);
}
