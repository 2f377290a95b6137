#pragma once

#include "platform/Image.h"
#include "platform/URL.h"

#include <concepts>
#include <locale>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

/// An argument as it reads in a line of the call log: text in quotes, truth as a word, an enumerator as its
/// number, addresses and images by their path and name.
template<class T>
std::string described(const std::vector<T>& values);

template<class T>
std::string described(const T& value)
{
    if constexpr (std::convertible_to<T, std::string_view>) {
        return '"' + std::string(std::string_view(value)) + '"';
    } else if constexpr (std::same_as<T, bool>) {
        return value ? "true" : "false";
    } else if constexpr (std::is_enum_v<T>) {
        return described(static_cast<std::underlying_type_t<T>>(value));
    } else {
        std::ostringstream text;
        text.imbue(std::locale::classic());
        text << value;
        return text.str();
    }
}

inline std::string described(const NS::URL& url)
{
    return described(url.isFileURL() ? url.path() : url.absoluteString());
}

inline std::string described(const std::optional<NS::Image>& image)
{
    return image ? described(image->name()) : "none";
}

template<class T>
std::string described(const std::vector<T>& values)
{
    std::string text;
    for (const T& value : values)
        text += (text.empty() ? "" : ", ") + described(value);
    return '[' + text + ']';
}
