#pragma once

namespace NS {

/// A moment, in seconds since 1970-01-01T00:00:00Z. Fractions are kept.
struct Date {
    double timeIntervalSince1970 = 0.0;

    /// Seconds from `other` to this moment; negative when this one is earlier.
    [[nodiscard]] double timeIntervalSinceDate(Date other) const
    {
        return timeIntervalSince1970 - other.timeIntervalSince1970;
    }

    friend bool operator==(Date, Date) = default;
};

} // namespace NS
