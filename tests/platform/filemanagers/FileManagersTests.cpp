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
    std::array<std::string_view, fileManagers.size()> names;
    std::ranges::transform(fileManagers, names.begin(), &FileManager::name);
    EXPECT_EQ(names, (std::array<std::string_view, 5>{"Files", "Nemo", "Caja", "Thunar", "Dolphin"}));
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
