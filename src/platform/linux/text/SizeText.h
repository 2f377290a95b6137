#pragma once

#include <QString>

#include <cstdint>

namespace LinuxDesktop {

/// A number of bytes as people read it, as in "1 byte" and "1.5 MB", by the locale. Any thread.
[[nodiscard]] QString sizeText(std::uint64_t bytes);

} // namespace LinuxDesktop
