#pragma once

#include "showcase/ShowcaseCatalogue.h"

#include <array>

/// The orders in which the applications are shown, by their numbers in the catalogue. Each showing has one of them.
inline constexpr std::array<std::array<int, showcaseCatalogue.size()>, 9> promotionOrders{{
    {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17},
    {6, 16, 13, 15, 2, 14, 4, 8, 11, 3, 10, 7, 9, 1, 5, 12, 17},
    {10, 7, 13, 15, 17, 4, 11, 14, 8, 5, 9, 3, 6, 12, 16, 1, 2},
    {17, 8, 14, 3, 9, 16, 6, 13, 5, 15, 1, 11, 12, 4, 10, 2, 7},
    {7, 10, 5, 14, 12, 17, 9, 13, 11, 3, 15, 2, 16, 6, 8, 4, 1},
    {3, 12, 5, 4, 10, 14, 16, 9, 13, 8, 17, 1, 6, 15, 11, 7, 2},
    {7, 14, 4, 9, 12, 1, 5, 11, 16, 2, 8, 13, 3, 17, 15, 10, 6},
    {5, 11, 9, 14, 17, 16, 4, 2, 1, 12, 10, 7, 13, 3, 6, 15, 8},
    {7, 1, 12, 11, 15, 2, 4, 17, 10, 6, 3, 5, 14, 8, 13, 9, 16},
}};
