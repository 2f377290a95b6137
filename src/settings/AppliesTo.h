#pragma once

#include <cstdint>

/// What an action can be asked to work on, as bits.
namespace AppliesTo {

inline constexpr std::uint32_t Background = 1U << 0U;
inline constexpr std::uint32_t OneFolder = 1U << 1U;
inline constexpr std::uint32_t OneFile = 1U << 2U;
inline constexpr std::uint32_t OnePicture = 1U << 3U;
inline constexpr std::uint32_t SeveralFolders = 1U << 4U;
inline constexpr std::uint32_t SeveralPictures = 1U << 5U;
/// Two or more of any kind.
inline constexpr std::uint32_t SeveralItems = 1U << 6U;
/// And on a folder to bring them to, beside the others: menus offer it the custom folders.
inline constexpr std::uint32_t Target = 1U << 7U;

inline constexpr std::uint32_t OneItem = OneFolder | OneFile;
inline constexpr std::uint32_t Items = OneItem | SeveralItems;
inline constexpr std::uint32_t Folders = OneFolder | SeveralFolders;
inline constexpr std::uint32_t Pictures = OnePicture | SeveralPictures;
inline constexpr std::uint32_t Anything = Items | Background;

} // namespace AppliesTo
