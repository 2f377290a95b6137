#include "extension/filemanagers/FileManagers.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace MenuExtension;

namespace {

const FileManager& managerOf(std::string_view program)
{
    return *std::ranges::find(fileManagers, program, &FileManager::program);
}

} // namespace

TEST(FileManagers, AreNamedAsPeopleKnowThem)
{
    std::vector<std::string_view> names;
    for (const FileManager& manager : fileManagers)
        names.push_back(manager.name);
    EXPECT_EQ(names, (std::vector<std::string_view>{"Files", "Nemo", "Caja", "Thunar", "Dolphin"}));
}

TEST(FileManagers, HaveAPackageEach)
{
    EXPECT_EQ(packageFor(managerOf("nautilus")), "orvik-menu-nautilus");
    EXPECT_EQ(packageFor(managerOf("dolphin")), "orvik-menu-dolphin");
}

TEST(FileManagers, EndByTheirOwnOptionWhereTheyHaveOne)
{
    for (const std::string program : {"nautilus", "nemo", "caja", "thunar"})
        EXPECT_EQ(quitCommand(managerOf(program)), (std::vector<std::string>{program, "-q"}));
    EXPECT_EQ(quitCommand(managerOf("dolphin")), std::vector<std::string>{});
}
