#pragma once

#include "platform/Image.h"
#include "settings/AppliesTo.h"

#include <array>
#include <string_view>

/// An action of the context menu.
struct CatalogueRow {
    /// What other programs call it. Never changed.
    std::string_view identifier;
    /// Its identity in the stored record.
    std::string_view title;
    /// The name of its image.
    std::string_view image;
    /// Bits of AppliesTo.
    std::uint32_t appliesTo;
};

/// Every action, in the order that the older stored record counts by. The images "2", "3" and "8" belong to none.
inline constexpr std::array menuCatalogue{
    CatalogueRow{"open-terminal", "Open Terminal", "1", AppliesTo::OneItem | AppliesTo::Background},
    CatalogueRow{"open-system-preferences", "Open System Preferences", "system-preferences-icon",
                 AppliesTo::Anything},
    CatalogueRow{"set-as-wallpaper", "Set as Wallpaper", "4", AppliesTo::OnePicture},
    CatalogueRow{"create-new-text-file", "Create New Text File", "5", AppliesTo::OneFolder | AppliesTo::Background},
    CatalogueRow{"copy-path-to-clipboard", "Copy path to Clipboard", "6", AppliesTo::Anything},
    CatalogueRow{"send-via-mail", "Send via Mail", "7", AppliesTo::OneItem},
    CatalogueRow{"move-to-a-folder", "Move to a folder", "9", AppliesTo::Items | AppliesTo::Target},
    CatalogueRow{"copy-to-a-folder", "Copy to a folder", "10", AppliesTo::Items | AppliesTo::Target},
    CatalogueRow{"open-new-finder-window", "Open New Finder Window", "11",
                 AppliesTo::OneItem | AppliesTo::Background},
    CatalogueRow{"hide-unhide-item", "Hide / Unhide item", "12", AppliesTo::Items},
    CatalogueRow{"find-duplicate-files", "Find Duplicate Files", "13",
                 AppliesTo::Folders | AppliesTo::Background | AppliesTo::SeveralItems},
    CatalogueRow{"find-duplicate-photos", "Find Duplicate Photos", "14",
                 AppliesTo::Folders | AppliesTo::Background | AppliesTo::SeveralItems},
    CatalogueRow{"view-or-edit-exif-data", "View or Edit Exif Data", "15", AppliesTo::Pictures},
    CatalogueRow{"resize-photos", "Resize Photos", "16", AppliesTo::Pictures},
    CatalogueRow{"configure-orvik-menu-settings", "Configure Orvik Menu Settings", NS::ImageNameActionTemplate,
                 AppliesTo::Anything},
    CatalogueRow{"add-folders", "Add Folders", NS::ImageNameAddTemplate, AppliesTo::Folders | AppliesTo::Background},
};
