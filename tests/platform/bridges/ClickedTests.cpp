#include "extension/bridges/gtk/Clicked.h"

#include <gtest/gtest.h>

using namespace MenuExtension;

namespace {

std::string localPathOf(const char* address)
{
    return localPath(Reference<GFile>(g_file_new_for_uri(address)).get());
}

} // namespace

TEST(Clicked, IsKnownByTheBytesOfItsPath)
{
    EXPECT_EQ(localPathOf("file:///a%20b/%FF%0Ac"), "/a b/\xff\nc");
    EXPECT_EQ(localPathOf("file:///"), "/");
}

TEST(Clicked, IsNoPathWhereItLiesElsewhere)
{
    for (const char* address :
         {"trash:///item", "sftp://host/item", "recent:///", "x-nautilus-search://1/", "nonsense"})
        EXPECT_EQ(localPathOf(address), "") << address;
    EXPECT_EQ(localPath(nullptr), "");
}

TEST(Clicked, IsAPathALineAsText)
{
    EXPECT_EQ(pathsAsText({{"/a b"}, false}), "/a b");
    EXPECT_EQ(pathsAsText({{"/a", "/b"}, false}), "/a\n/b");
}

TEST(Clicked, IsShownAsTheToolkitsDoWhereItsNameIsNoText)
{
    const std::string text = pathsAsText({{"/caf\xC3\xA9/\xff"}, false});
    EXPECT_TRUE(text.starts_with("/caf\xC3\xA9/"));
    EXPECT_TRUE(g_utf8_validate(text.c_str(), -1, nullptr));
}
