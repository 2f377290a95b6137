#pragma once

#include "extension/menu/Scope.h"
#include "extension/menu/Targets.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace MenuExtension {

/// An action as the menu shows it.
struct MenuAction {
    std::string identifier;
    std::string title;
    /// In an icon theme.
    std::string icon;
    /// What it applies to: bits of AppliesTo.
    std::uint32_t appliesTo = 0;
    friend bool operator==(const MenuAction&, const MenuAction&) = default;
};

/// What the menu is made of, apart from what was clicked.
struct MenuSettings {
    /// Those that are on and can be done here, in the order of the menu.
    std::vector<MenuAction> actions;
    Scope scope;
    /// What the actions that move or copy offer.
    std::vector<Target> targets;
    /// What asks for another, and so has no path.
    Target otherFolder{
        .path = {}, .title = std::string(otherFolderTitle), .description = std::string(otherFolderDescription)};
    bool showIcons = true;
    bool inSubmenu = false;
};

/// An item as the file manager knows it.
struct SelectedItem {
    /// Absolute, as bytes.
    std::string_view path;
    bool isFolder = false;
    bool isPicture = false;
};

/// What was clicked.
struct Selection {
    /// The folder itself where its background was clicked.
    std::vector<SelectedItem> items;
    bool isBackground = false;
};

/// An item of the menu. What it refers to is the settings'.
struct MenuEntry {
    const MenuAction* action = nullptr;
    /// What is in its submenu, before that which asks for another folder; none where there is no submenu.
    std::span<const Target> targets;
};

/// What a file manager adds to its menu.
struct Menu {
    /// None where there is nothing to add. The settings must outlive them.
    std::vector<MenuEntry> entries;
    /// The last of each submenu of targets; the settings' too.
    const Target* otherFolder = nullptr;
    bool showIcons = false;
    bool inSubmenu = false;
};

/// The action that the file manager does in its own process: on Wayland nobody else may.
inline constexpr std::string_view actionOfFileManager = "copy-path-to-clipboard";

/// The most bytes that the paths of a selection with a menu have together: a connection to the bus does not survive a
/// message that is too large for it.
inline constexpr std::size_t mostPathBytes = std::size_t{32} << 20U;

/// The title of the submenu.
inline constexpr const char* submenuTitle = "Orvik Menu";

/// Whether every item lies in an active folder; never for an empty selection.
[[nodiscard]] bool isInScope(const Selection& selection, const Scope& scope);
/// Whether an action that applies to `appliesTo` applies to the selection.
[[nodiscard]] bool applies(std::uint32_t appliesTo, const Selection& selection);
/// Pure. Any thread.
[[nodiscard]] Menu makeMenu(const MenuSettings& settings, const Selection& selection);

} // namespace MenuExtension
