#include "extension/filemanagers/Places.h"

#include <cstdlib>
#include <gtest/gtest.h>

using namespace MenuExtension;

namespace {

std::vector<std::string> programFoldersWith(const char* path)
{
    const char* variable = std::getenv("PATH");
    const std::string before = variable ? variable : "";
    ::setenv("PATH", path, 1);
    const Places places = usualPlaces();
    ::setenv("PATH", before.c_str(), 1);
    return places.programFolders;
}

} // namespace

TEST(UsualPlaces, AreTheFoldersOfPathThatEveryProgramUnderstandsInTheSameWay)
{
    using Folders = std::vector<std::string>;
    EXPECT_EQ(programFoldersWith("/usr/local/bin:/usr/bin"), (Folders{"/usr/local/bin", "/usr/bin"}));
    EXPECT_EQ(programFoldersWith(":/a folder::bin:.:/b:"), (Folders{"/a folder", "/b"}));
    EXPECT_EQ(programFoldersWith(""), Folders{});
    EXPECT_EQ(programFoldersWith(":"), Folders{});
}
