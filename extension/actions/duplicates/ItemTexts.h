#pragma once

#include "extension/actions/duplicates/Item.h"

#include <QString>

namespace MenuExtension::Duplicates {

/// An item's parts as text for people.
[[nodiscard]] QString nameText(const Item& item);
[[nodiscard]] QString folderText(const Item& item);
[[nodiscard]] QString dateText(const Item& item);

} // namespace MenuExtension::Duplicates
