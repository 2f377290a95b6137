#pragma once

namespace MenuExtension {

/// Does it. What it throws ends here: the host's own code knows no exceptions.
template<class Action>
void quietly(Action action) noexcept
{
    try {
        action();
    } catch (...) {
        // There is no memory left. The menu lacks something, and the host goes on.
        return;
    }
}

} // namespace MenuExtension
