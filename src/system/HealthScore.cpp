// SPDX-License-Identifier: MIT
#include "system/HealthScore.h"

#include <algorithm>

namespace zelk {

namespace {

// All points are in thousandths. Their sums are whole numbers, so that a score which lies on the edge of a band is
// exactly that edge; summed as 0.3 and 0.15 it could be a little off and belong to the band below.
using Points = int;

constexpr Points mostDisk = 500;
constexpr Points mostMemory = 300;
constexpr Points mostCpu = 100;
constexpr Points mostBattery = 100;

constexpr double elevatedLoad = 0.7;
constexpr double highLoad = 0.9;
constexpr std::int64_t lowBattery = 40;
constexpr std::int64_t emptyBattery = 15;

/// Unsigned, since a volume that reports less than nothing as available would overflow a signed difference.
std::uint64_t usedBytes(const VolumeInfo& volume) {
    if (volume.available >= volume.total) return 0;
    return static_cast<std::uint64_t>(volume.total) - static_cast<std::uint64_t>(volume.available);
}

Points diskPoints(double fraction) {
    if (fraction < 0.75) return mostDisk;
    if (fraction < 0.9) return 300;
    if (fraction < 0.97) return 150;
    return 25;
}

Points memoryPoints(double fraction) {
    switch (loadLevel(fraction)) {
        case LoadLevel::normal:
            return mostMemory;
        case LoadLevel::elevated:
            return 180;
        case LoadLevel::high:
            break;
    }
    return 90;
}

/// The processor and the battery earn the same for the same level.
Points levelPoints(LoadLevel level, Points most) {
    switch (level) {
        case LoadLevel::normal:
            return most;
        case LoadLevel::elevated:
            return 60;
        case LoadLevel::high:
            break;
    }
    return 30;
}

}  // namespace

double diskFraction(const VolumeInfo& volume) {
    if (volume.total < 1) return 0;
    return static_cast<double>(usedBytes(volume)) / static_cast<double>(volume.total);
}

double memoryFraction(const MemoryStats& memory) {
    if (memory.total < 1) return 0;
    return static_cast<double>(memory.used) / static_cast<double>(memory.total);
}

double healthScore(const HealthReadings& readings) {
    Points points = memoryPoints(memoryFraction(readings.memory));
    points += levelPoints(loadLevel(readings.cpuUsage), mostCpu);
    Points most = mostMemory + mostCpu;
    if (readings.volume && readings.volume->total >= 1) {
        points += diskPoints(diskFraction(*readings.volume));
        most += mostDisk;
    }
    if (readings.power.hasBattery) {
        points += levelPoints(batteryLevel(readings.power.percent), mostBattery);
        most += mostBattery;
    }
    return static_cast<double>(points) / most;
}

HealthGrade gradeOf(double score) {
    if (score >= 0.85) return HealthGrade::excellent;
    if (score >= 0.7) return HealthGrade::good;
    if (score >= 0.5) return HealthGrade::fair;
    if (score >= 0.3) return HealthGrade::attention;
    return HealthGrade::critical;
}

LoadLevel loadLevel(double fraction) {
    if (fraction < elevatedLoad) return LoadLevel::normal;
    if (fraction < highLoad) return LoadLevel::elevated;
    return LoadLevel::high;
}

LoadLevel batteryLevel(std::int64_t percent) {
    if (percent > lowBattery) return LoadLevel::normal;
    if (percent > emptyBattery) return LoadLevel::elevated;
    return LoadLevel::high;
}

UptimeParts uptimeParts(double seconds) {
    constexpr std::int64_t minute = 60;
    constexpr std::int64_t hour = 60 * minute;
    constexpr std::int64_t day = 24 * hour;
    constexpr double longest = 1e15;  // thirty million years: what a conversion to a whole number surely holds
    const auto whole = seconds > 0 ? static_cast<std::int64_t>(std::min(seconds, longest)) : 0;
    if (whole >= day) return {UptimeParts::Unit::days, whole / day, whole % day / hour, 0};
    if (whole >= hour) return {UptimeParts::Unit::hours, 0, whole / hour, whole % hour / minute};
    return {UptimeParts::Unit::minutes, 0, 0, whole / minute};
}

}  // namespace zelk
