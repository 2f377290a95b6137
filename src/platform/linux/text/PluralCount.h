#pragma once

#include <cstdint>

namespace LinuxDesktop {

/// A count as translations take it to choose among a language's plurals, which go by the last digits of large ones.
[[nodiscard]] constexpr int pluralCount(std::uint64_t count)
{
    constexpr std::uint64_t million = 1'000'000;
    return static_cast<int>(count < million ? count : million + count % million);
}

} // namespace LinuxDesktop
