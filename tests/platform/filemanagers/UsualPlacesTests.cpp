#include "extension/filemanagers/Places.h"

#include "support/ProgramPath.h"

#include <gtest/gtest.h>

using namespace MenuExtension;

namespace {

std::vector<std::string> programFoldersWith(const char* path)
{
    const ProgramPath programs{path};
    return usualPlaces().programFolders;
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
