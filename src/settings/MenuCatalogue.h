#pragma once

#include "platform/Image.h"

#include <array>
#include <string_view>

/// An action of the context menu.
struct MenuAction {
    /// What other programs call it. Never changed.
    std::string_view identifier;
    /// Its identity in the stored record.
    std::string_view title;
    /// The name of its image.
    std::string_view image;
};

/// Every action, in the order that the older stored record counts by. The images "2", "3" and "8" belong to none.
inline constexpr std::array menuCatalogue{
    MenuAction{"open-terminal", "Open Terminal", "1"},
    MenuAction{"open-system-preferences", "Open System Preferences", "system-preferences-icon"},
    MenuAction{"set-as-wallpaper", "Set as Wallpaper", "4"},
    MenuAction{"create-new-text-file", "Create New Text File", "5"},
    MenuAction{"copy-path-to-clipboard", "Copy path to Clipboard", "6"},
    MenuAction{"send-via-mail", "Send via Mail", "7"},
    MenuAction{"move-to-a-folder", "Move to a folder", "9"},
    MenuAction{"copy-to-a-folder", "Copy to a folder", "10"},
    MenuAction{"open-new-finder-window", "Open New Finder Window", "11"},
    MenuAction{"hide-unhide-item", "Hide / Unhide item", "12"},
    MenuAction{"find-duplicate-files", "Find Duplicate Files", "13"},
    MenuAction{"find-duplicate-photos", "Find Duplicate Photos", "14"},
    MenuAction{"view-or-edit-exif-data", "View or Edit Exif Data", "15"},
    MenuAction{"resize-photos", "Resize Photos", "16"},
    MenuAction{"configure-orvik-menu-settings", "Configure Orvik Menu Settings", NS::ImageNameActionTemplate},
    MenuAction{"add-folders", "Add Folders", NS::ImageNameAddTemplate},
};
