// SPDX-License-Identifier: MIT
// How healthy the machine is at this moment, as pure functions of the last readings.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "platform/Vitals.h"

namespace zelk {

/// From best to worst. The numbers are stable.
enum class HealthGrade { excellent = 0, good = 1, fair = 2, attention = 3, critical = 4 };

inline constexpr std::array allHealthGrades{HealthGrade::excellent, HealthGrade::good, HealthGrade::fair,
                                            HealthGrade::attention, HealthGrade::critical};

/// What the score is made of.
struct HealthReadings {
    std::optional<VolumeInfo> volume;
    MemoryStats memory;
    double cpuUsage = 0;  ///< 0 to 1
    PowerInfo power;
};

/// The used share of the volume, from its plain available capacity: what could be purged counts as used. 0 if more is
/// available than there is, or if the volume has no size.
double diskFraction(const VolumeInfo& volume);

/// The used share of the memory; 0 if its size is unknown.
double memoryFraction(const MemoryStats& memory);

/// The points that free disk space, memory, processor and battery earn, as a share of what they could earn. A volume
/// that is absent or has no size drops out on both sides, as does a missing battery; memory of unknown size earns all
/// its points.
double healthScore(const HealthReadings& readings);

/// A score that is not a number is critical.
HealthGrade gradeOf(double score);

/// How near something is to its limit.
enum class LoadLevel { normal = 0, elevated = 1, high = 2 };

/// Of a share, 0 to 1: elevated from 0.7, high from 0.9. Not a number is high.
LoadLevel loadLevel(double fraction);

/// Of a battery's charge in percent: elevated from 40 down, high below 16.
LoadLevel batteryLevel(std::int64_t percent);

/// An uptime in the units in which it is told: days and hours, or below a day hours and minutes, or below an hour
/// minutes alone. What is not told is 0.
struct UptimeParts {
    enum class Unit { minutes, hours, days };

    Unit largest = Unit::minutes;
    std::int64_t days = 0;
    std::int64_t hours = 0;
    std::int64_t minutes = 0;

    bool operator==(const UptimeParts&) const = default;
};

/// Drops fractions of a second. Negative seconds and what is not a number count as 0.
UptimeParts uptimeParts(double seconds);

}  // namespace zelk
