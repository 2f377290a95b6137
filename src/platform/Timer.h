#pragma once

namespace NS {

/// A timer that runs, made by Platform::scheduledTimerWithTimeInterval. It runs on when its maker lets go of it.
/// Main thread.
class Timer {
public:
    virtual ~Timer() = default;

    /// Stops it for good.
    virtual void invalidate() = 0;
};

} // namespace NS
