#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace BusInterface {

/// Where a program that owns `name` on the bus has its object: the path that the name makes.
[[nodiscard]] inline std::string objectPath(std::string_view name)
{
    std::string path = '/' + std::string(name);
    std::ranges::replace(path, '.', '/');
    std::ranges::replace(path, '-', '_');
    return path;
}

} // namespace BusInterface
