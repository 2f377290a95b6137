#pragma once

#include <utility>

namespace DolphinBridge {

/// Runs `work`, of which no exception comes out: the host is not built for any. All that can be thrown is that memory
/// is short, and then there is no menu.
template<class Work>
void guarded(Work&& work) noexcept
{
    try {
        std::forward<Work>(work)();
    } catch (...) {
    }
}

} // namespace DolphinBridge
