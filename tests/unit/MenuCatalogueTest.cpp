#include "settings/MenuCatalogue.h"

#include <gtest/gtest.h>

#include <string_view>
#include <utility>
#include <vector>

namespace {

TEST(MenuCatalogue, ListsTheseActionsWithTheseImagesInThisOrder)
{
    const std::vector<std::pair<std::string_view, std::string_view>> expected{
        {"Open Terminal", "1"},
        {"Open System Preferences", "system-preferences-icon"},
        {"Set as Wallpaper", "4"},
        {"Create New Text File", "5"},
        {"Copy path to Clipboard", "6"},
        {"Send via Mail", "7"},
        {"Move to a folder", "9"},
        {"Copy to a folder", "10"},
        {"Open New Finder Window", "11"},
        {"Hide / Unhide item", "12"},
        {"Find Duplicate Files", "13"},
        {"Find Duplicate Photos", "14"},
        {"View or Edit Exif Data", "15"},
        {"Resize Photos", "16"},
        {"Configure Orvik Menu Settings", "NSActionTemplate"},
        {"Add Folders", "NSAddTemplate"},
    };
    std::vector<std::pair<std::string_view, std::string_view>> listed;
    listed.reserve(menuCatalogue.size());
    for (const CatalogueRow& action : menuCatalogue)
        listed.emplace_back(action.title, action.image);

    EXPECT_EQ(listed, expected);
}

} // namespace
