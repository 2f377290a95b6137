#pragma once

#include "extension/menu/Menu.h"

#include <optional>
#include <string>
#include <vector>

class KFileItemListProperties;
class QWidget;

namespace DolphinBridge {

/// What was clicked, kept for as long as its menu may be used.
struct Clicked {
    struct Item {
        std::string path;
        bool isFolder = false;
        bool isPicture = false;
    };

    std::vector<Item> items;
    bool isBackground = false;

    /// Refers to this.
    [[nodiscard]] MenuExtension::Selection selection() const;
};

/// Nothing where there is an item whose path is not known byte for byte, or more than a call on the bus takes.
[[nodiscard]] std::optional<Clicked> whatWasClicked(const KFileItemListProperties& items, const QWidget* window);

} // namespace DolphinBridge
