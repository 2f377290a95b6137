#include "extension/bridges/dolphin/Clicked.h"

#include "extension/bridges/dolphin/Background.h"
#include "extension/bridges/dolphin/ItemPath.h"

#include <KFileItem>
#include <KFileItemListProperties>
#include <QMimeType>

#include <cstddef>
#include <utility>

namespace DolphinBridge {

MenuExtension::Selection Clicked::selection() const
{
    MenuExtension::Selection selection{.items = {}, .isBackground = isBackground};
    selection.items.reserve(items.size());
    for (const Item& item : items)
        selection.items.push_back({.path = item.path, .isFolder = item.isFolder, .isPicture = item.isPicture});
    return selection;
}

std::optional<Clicked> whatWasClicked(const KFileItemListProperties& items, const QWidget* window)
{
    std::optional<Clicked> clicked(std::in_place);
    const KFileItemList list = items.items();
    std::size_t bytes = 0;
    for (const KFileItem& item : list) {
        std::optional<std::string> path = pathOf(item.mostLocalUrl());
        if (!path || (bytes += path->size()) > MenuExtension::mostPathBytes)
            return std::nullopt;
        // The type that the host has found already: looking for it could wait for the disk.
        clicked->items.push_back({.path = std::move(*path),
                                  .isFolder = item.isDir(),
                                  .isPicture = item.currentMimeType().name().startsWith(QLatin1String("image/"))});
    }
    clicked->isBackground = list.size() == 1 && isBackground(list.first(), window);
    return clicked;
}

} // namespace DolphinBridge
