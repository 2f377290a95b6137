#include "extension/actions/support/Picture.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using MenuExtension::beginsAsPicture;
using namespace std::string_literals;

TEST(Picture, TheFormatsOfPicturesAreKnownByTheirBeginning)
{
    for (const std::string& bytes :
         {"\x89PNG\r\n\x1a\n...."s, "\xff\xd8\xff\xe0...."s, "GIF89a...."s, "RIFF\1\0\0\0WEBPVP8 "s,
          "II*\0\10\0\0\0"s, "MM\0*\0\0\0\10"s, "\0\0\0\x18"s + "ftypheic...."s, "\0\0\0\x1c"s + "ftypavif...."s,
          "P6\n1 1\n255\n"s, "BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1"s,
          "<?xml version=\"1.0\"?>\n<svg xmlns=\"\"/>"s, "<svg/>"s, "\xEF\xBB\xBF<svg/>"s, "\0\0\1\0\1\0"s,
          "8BPS\0\1"s, "\xff\x0a\xfa\x1f"s})
        EXPECT_TRUE(beginsAsPicture(bytes)) << bytes;
}

TEST(Picture, OtherFilesAreNone)
{
    for (const std::string& bytes :
         {""s, "B"s, "P"s, "P6"s, "PNG"s, "Plain text"s, "BMW is no picture of a car"s, "<html><svg/></html>"s,
          "see <svg> for more"s, "%PDF-1.7\n"s, "PK\3\4"s, "\0\0\0\x18"s + "ftypmp42...."s,
          "\x7f"
          "ELF"s,
          "#!/bin/sh\n"s})
        EXPECT_FALSE(beginsAsPicture(bytes)) << bytes;
}

} // namespace
