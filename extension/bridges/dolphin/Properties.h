#pragma once

#include "extension/menu/Menu.h"

#include <QDBusMessage>

#include <cstddef>
#include <optional>

namespace DolphinBridge {

/// What a companion says at most. Whatever says more is none.
namespace Limits {
inline constexpr std::size_t actions = 1'000;
/// Of one identifier, title or icon name: a host lays every title out.
inline constexpr std::size_t word = 1'000;
} // namespace Limits

/// What the companion's answer to GetAll makes of the menu; nothing where the answer is not as its interface is
/// described, or beyond the limits. Believes nothing, throws nothing but for want of memory.
[[nodiscard]] std::optional<MenuExtension::MenuSettings> readProperties(const QDBusMessage& answer);

} // namespace DolphinBridge
