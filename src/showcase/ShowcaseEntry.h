#pragma once

#include "platform/Image.h"

#include <map>
#include <string>
#include <string_view>
#include <variant>

/// An application as the showcase shows it: what is known of it, by key.
using ShowcaseEntry = std::map<std::string, std::variant<std::string, NS::Image>, std::less<>>;

namespace ShowcaseKey {

inline constexpr std::string_view Title = "Title";
inline constexpr std::string_view description = "description";
/// The one value that is an image; the others are texts.
inline constexpr std::string_view icon = "icon";
inline constexpr std::string_view apppath = "apppath";
inline constexpr std::string_view category = "category";

} // namespace ShowcaseKey

/// The entry's value under `key`, which lives as long as the entry; null when there is none of that kind.
template<class T>
[[nodiscard]] const T* valueForKey(const ShowcaseEntry& entry, std::string_view key)
{
    const auto found = entry.find(key);
    return found == entry.end() ? nullptr : std::get_if<T>(&found->second);
}
