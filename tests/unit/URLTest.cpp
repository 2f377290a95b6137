#include "platform/URL.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

TEST(FileURL, KeepsItsPathAsGiven)
{
    for (const char* path :
         {"/", "/home/pat/Docs", "/home/pat/a b%20c", "/home/pat/caf\xe9", "/home/pat/Cafe\u0301"}) {
        const NS::URL url = NS::URL::fileURLWithPath(path);
        EXPECT_TRUE(url.isFileURL());
        EXPECT_EQ(url.path(), path);
    }
}

TEST(FileURL, ItsLastComponentIsTheNameInItsFolder)
{
    const auto last = [](const char* path) { return NS::URL::fileURLWithPath(path).lastPathComponent(); };

    EXPECT_EQ(last("/Users/a/Projects"), "Projects");
    EXPECT_EQ(last("/Projects"), "Projects");
    EXPECT_EQ(last("/Users/a/My Projects.d"), "My Projects.d");
    EXPECT_EQ(last("/Users/a/Projects/"), "Projects");
    EXPECT_EQ(last("/Users/a/Projects//"), "Projects");
    EXPECT_EQ(last("Projects"), "Projects");
    EXPECT_EQ(last("/"), "/");
    EXPECT_EQ(last("//"), "/");
    EXPECT_EQ(last(""), "");
}

TEST(FileURL, AsTextHasEveryByteEncodedThatAnAddressDoesNotTakeAsItIs)
{
    const auto text = [](const char* path) { return NS::URL::fileURLWithPath(path).absoluteString(); };

    EXPECT_EQ(text("/"), "file:///");
    EXPECT_EQ(text("/home/pat/A-z_0.9~"), "file:///home/pat/A-z_0.9~");
    EXPECT_EQ(text("/a b%c?d#e[f]"), "file:///a%20b%25c%3Fd%23e%5Bf%5D");
    EXPECT_EQ(text("/caf\u00e9"), "file:///caf%C3%A9");
    EXPECT_EQ(text("/caf\xe9\n"), "file:///caf%E9%0A");
    // A path that is not absolute counts from the root, and no name in it is taken for a host.
    EXPECT_EQ(text("home/pat"), "file:///home/pat");
    EXPECT_EQ(text(""), "file:///");
}

TEST(URL, OfATextKeepsTheTextAndHasNoPath)
{
    for (const char* text : {"http://orvik.example/", "https://orvik.example/a?b=c&d#e", "mailto:pat@orvik.example",
                             "macappstore://orvik.example/app/id1", "x-a+b.c1:d", "http://[::1]:80/%C3%a9"}) {
        const auto url = NS::URL::URLWithString(text);
        ASSERT_TRUE(url) << text;
        EXPECT_EQ(url->absoluteString(), text);
        EXPECT_FALSE(url->isFileURL());
        EXPECT_EQ(url->path(), "");
        EXPECT_EQ(url->lastPathComponent(), "");
    }
}

TEST(URL, OfATextThatIsNoAddressIsNothing)
{
    for (const char* text : {"",
                             ":",
                             "orvik",
                             "http",
                             "http:",
                             "://orvik.example",
                             "1http://a",
                             "ht tp://a",
                             "h\u00e9://a",
                             "http://a b",
                             "http://a\n",
                             "http://\u00e9",
                             "http://a%",
                             "http://a%2",
                             "http://a%2g",
                             "http://a%g2",
                             "http://a\"b",
                             "http://a<b>",
                             "http://a\\b",
                             "http://a^b",
                             "http://a`b",
                             "http://a{b}",
                             "http://a|b"})
        EXPECT_FALSE(NS::URL::URLWithString(text)) << text;
}

TEST(URL, OfATextLooksNoFurtherThanTheText)
{
    const std::string_view longer = "http://a%2fb";

    EXPECT_FALSE(NS::URL::URLWithString(longer.substr(0, longer.find('f'))));
    EXPECT_TRUE(NS::URL::URLWithString(longer.substr(0, longer.find('b'))));
}

TEST(URL, OneOfAFileIsNotTheOneOfTheSameText)
{
    const std::string text = "http://orvik.example/";

    EXPECT_NE(NS::URL::fileURLWithPath(text), NS::URL::URLWithString(text));
    EXPECT_EQ(NS::URL::fileURLWithPath("/a"), NS::URL::fileURLWithPath("/a"));
    EXPECT_NE(NS::URL::fileURLWithPath("/a"), NS::URL::fileURLWithPath("/A"));
}

TEST(URL, AFilesPathHasNoSlashAtItsEnd)
{
    EXPECT_EQ(NS::URL::fileURLWithPath("/a/b//").path(), "/a/b");
    EXPECT_EQ(NS::URL::fileURLWithPath("/a/b/"), NS::URL::fileURLWithPath("/a/b"));
    EXPECT_EQ(NS::URL::fileURLWithPath("/").path(), "/");
    EXPECT_EQ(NS::URL::fileURLWithPath("//").path(), "/");
}

} // namespace
