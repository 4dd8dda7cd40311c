// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// A point in time: seconds since 1970-01-01 00:00:00 UTC. A double holds a present-day instant to a quarter of a
/// microsecond, on both systems alike (std::chrono's system clock differs in resolution between them).
using TimePoint = double;

/// The days from which ages are counted: always 86,400 seconds, never calendar days.
inline constexpr double secondsPerDay = 86400.0;

/// The clocks. Safe from any thread.
class Clock {
public:
    virtual ~Clock() = default;
    virtual TimePoint now() = 0;
    /// Seconds on a clock that never steps back; its zero means nothing.
    virtual double monotonic() = 0;
};

}  // namespace zelk
