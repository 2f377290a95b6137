#include "extension/menu/Menu.h"

#include "settings/AppliesTo.h"

#include <algorithm>

namespace MenuExtension {

namespace {

/// Every kind of selection that this one is.
std::uint32_t kindsOf(const Selection& selection)
{
    if (selection.isBackground)
        return selection.items.size() == 1 ? AppliesTo::Background : 0;
    const bool one = selection.items.size() == 1;
    std::uint32_t kinds = 0;
    if (std::ranges::all_of(selection.items, &SelectedItem::isFolder))
        kinds |= one ? AppliesTo::OneFolder : AppliesTo::SeveralFolders;
    else if (one)
        kinds |= AppliesTo::OneFile;
    if (std::ranges::all_of(selection.items, &SelectedItem::isPicture))
        kinds |= one ? AppliesTo::OnePicture : AppliesTo::SeveralPictures;
    return one ? kinds : kinds | AppliesTo::SeveralItems;
}

bool takesTarget(const MenuAction& action)
{
    return (action.appliesTo & AppliesTo::Target) != 0;
}

} // namespace

bool isInScope(const Selection& selection, const Scope& scope)
{
    if (selection.items.empty())
        return false;
    return std::ranges::all_of(selection.items, [&](const SelectedItem& item) {
        return selection.isBackground ? scope.containsBackground(item.path) : scope.containsItem(item.path);
    });
}

bool applies(std::uint32_t appliesTo, const Selection& selection)
{
    return !selection.items.empty() && (appliesTo & kindsOf(selection)) != 0;
}

Menu makeMenu(const MenuSettings& settings, const Selection& selection)
{
    Menu menu{.entries = {},
              .otherFolder = &settings.otherFolder,
              .showIcons = settings.showIcons,
              .inSubmenu = settings.inSubmenu};
    if (settings.actions.empty() || !isInScope(selection, settings.scope))
        return menu;
    const std::uint32_t kinds = kindsOf(selection);
    for (const MenuAction& action : settings.actions) {
        if ((action.appliesTo & kinds) != 0)
            menu.entries.push_back({&action, takesTarget(action) ? settings.targets : std::span<const Target>()});
    }
    return menu;
}

} // namespace MenuExtension
