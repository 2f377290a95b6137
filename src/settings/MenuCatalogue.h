#pragma once

#include "platform/Image.h"
#include "platform/LocalizedString.h"
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
    CatalogueRow{"open-terminal", NS::LocalizableString("MenuCatalogue", "Open Terminal"), "1",
                 AppliesTo::OneItem | AppliesTo::Background},
    CatalogueRow{"open-system-preferences", NS::LocalizableString("MenuCatalogue", "Open System Preferences"),
                 "system-preferences-icon", AppliesTo::Anything},
    CatalogueRow{"set-as-wallpaper", NS::LocalizableString("MenuCatalogue", "Set as Wallpaper"), "4",
                 AppliesTo::OnePicture},
    CatalogueRow{"create-new-text-file", NS::LocalizableString("MenuCatalogue", "Create New Text File"), "5",
                 AppliesTo::OneFolder | AppliesTo::Background},
    CatalogueRow{"copy-path-to-clipboard", NS::LocalizableString("MenuCatalogue", "Copy path to Clipboard"), "6",
                 AppliesTo::Anything},
    CatalogueRow{"send-via-mail", NS::LocalizableString("MenuCatalogue", "Send via Mail"), "7", AppliesTo::OneItem},
    CatalogueRow{"move-to-a-folder", NS::LocalizableString("MenuCatalogue", "Move to a folder"), "9",
                 AppliesTo::Items | AppliesTo::Target},
    CatalogueRow{"copy-to-a-folder", NS::LocalizableString("MenuCatalogue", "Copy to a folder"), "10",
                 AppliesTo::Items | AppliesTo::Target},
    CatalogueRow{"open-new-finder-window", NS::LocalizableString("MenuCatalogue", "Open New Finder Window"), "11",
                 AppliesTo::OneItem | AppliesTo::Background},
    CatalogueRow{"hide-unhide-item", NS::LocalizableString("MenuCatalogue", "Hide / Unhide item"), "12",
                 AppliesTo::Items},
    CatalogueRow{"find-duplicate-files", NS::LocalizableString("MenuCatalogue", "Find Duplicate Files"), "13",
                 AppliesTo::Folders | AppliesTo::Background | AppliesTo::SeveralItems},
    CatalogueRow{"find-duplicate-photos", NS::LocalizableString("MenuCatalogue", "Find Duplicate Photos"), "14",
                 AppliesTo::Folders | AppliesTo::Background | AppliesTo::SeveralItems},
    CatalogueRow{"view-or-edit-exif-data", NS::LocalizableString("MenuCatalogue", "View or Edit Exif Data"), "15",
                 AppliesTo::Pictures},
    CatalogueRow{"resize-photos", NS::LocalizableString("MenuCatalogue", "Resize Photos"), "16", AppliesTo::Pictures},
    CatalogueRow{"configure-orvik-menu-settings",
                 NS::LocalizableString("MenuCatalogue", "Configure Orvik Menu Settings"), NS::ImageNameActionTemplate,
                 AppliesTo::Anything},
    CatalogueRow{"add-folders", NS::LocalizableString("MenuCatalogue", "Add Folders"), NS::ImageNameAddTemplate,
                 AppliesTo::Folders | AppliesTo::Background},
};
