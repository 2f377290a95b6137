#include "extension/companion/DirectoryAddress.h"

#include <gtest/gtest.h>

using namespace MenuExtension;

TEST(DirectoryAddress, IsAnAbsolutePathOnThisMachine)
{
    for (const char* text : {"file:///", "file:///home/a%20b/", "file:/home", "file://localhost/home", "file:///%ff"})
        EXPECT_TRUE(isFileAddress(text)) << text;
}

TEST(DirectoryAddress, IsNothingElse)
{
    for (const char* text : {"", "/home", "file:", "file:home", "file://", "file://elsewhere/home", "file:////home",
                             "http:///home", "file:///a b", "file:///%2", "file:///%zz", "file:///a%00b",
                             "file:///a?b", "file:///a#b", "file://localhost.example/a", "file:///\xff"})
        EXPECT_FALSE(isFileAddress(text)) << text;
}

TEST(DirectoryAddress, EncodesAFoldersPath)
{
    EXPECT_EQ(addressesOf({{"/a b/\xc3\xa4%?#", true}, {"/", false}}),
              (std::vector<std::string>{"file:///a%20b/%C3%A4%25%3F%23", "file:///"}));
    for (const std::string& address : addressesOf({{"/a b/\xc3\xa4%?#", true}, {"/", false}}))
        EXPECT_TRUE(isFileAddress(address));
}
