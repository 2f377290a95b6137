#pragma once

#include "platform/Image.h"

#include <array>
#include <string_view>

/// An action of the context menu: its title, which is its identity, and the name of its image.
struct MenuAction {
    std::string_view title;
    std::string_view image;
};

/// Every action, in the order that the older stored record counts by. The images "2", "3" and "8" belong to none.
inline constexpr std::array menuCatalogue{
    MenuAction{"Open Terminal", "1"},
    MenuAction{"Open System Preferences", "system-preferences-icon"},
    MenuAction{"Set as Wallpaper", "4"},
    MenuAction{"Create New Text File", "5"},
    MenuAction{"Copy path to Clipboard", "6"},
    MenuAction{"Send via Mail", "7"},
    MenuAction{"Move to a folder", "9"},
    MenuAction{"Copy to a folder", "10"},
    MenuAction{"Open New Finder Window", "11"},
    MenuAction{"Hide / Unhide item", "12"},
    MenuAction{"Find Duplicate Files", "13"},
    MenuAction{"Find Duplicate Photos", "14"},
    MenuAction{"View or Edit Exif Data", "15"},
    MenuAction{"Resize Photos", "16"},
    MenuAction{"Configure Orvik Menu Settings", NS::ImageNameActionTemplate},
    MenuAction{"Add Folders", NS::ImageNameAddTemplate},
};
