// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// A point in time: seconds since 1970-01-01 00:00:00 UTC. A double resolves present-day instants to a quarter of a
/// microsecond, equally on both systems (the resolution of std::chrono's system clock differs between them).
using TimePoint = double;

/// The day by which ages are counted: always 86,400 seconds, never a calendar day.
inline constexpr double secondsPerDay = 86400.0;

/// The clocks. Safe from any thread.
class Clock {
public:
    virtual ~Clock() = default;
    virtual TimePoint now() = 0;
    /// Seconds of a monotonic clock with an arbitrary origin.
    virtual double monotonic() = 0;
};

}  // namespace zelk
