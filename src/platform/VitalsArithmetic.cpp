// SPDX-License-Identifier: MIT
#include "platform/VitalsArithmetic.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace zelk {

namespace {

/// No real machine overflows these, and continuing would display invented figures.
[[noreturn]] void impossibleMemory() {
    std::fputs("zelk: the system's memory figures overflow 64 bits\n", stderr);
    std::abort();
}

std::uint64_t sum(std::uint64_t a, std::uint64_t b) {
    std::uint64_t result = 0;
    if (__builtin_add_overflow(a, b, &result)) impossibleMemory();
    return result;
}

std::uint64_t product(std::uint64_t a, std::uint64_t b) {
    std::uint64_t result = 0;
    if (__builtin_mul_overflow(a, b, &result)) impossibleMemory();
    return result;
}

double busy(const CPUTicks& ticks) {
    return ticks.user + ticks.system + ticks.nice;
}

/// Rounds to the nearest integer, clamped to 64 bits to avoid undefined behaviour.
std::int64_t rounded(double value) {
    constexpr double limit = 9.2e18;
    return std::llround(std::clamp(value, -limit, limit));
}

}  // namespace

MemoryStats memoryFromPages(std::uint64_t total, std::uint64_t pageSize, const std::optional<PageCounts>& pages) {
    MemoryStats stats;
    stats.total = total;
    if (pages) {
        stats.wired = product(pages->wired, pageSize);
        stats.compressed = product(pages->compressor, pageSize);
        const std::uint64_t inUse = sum(sum(pages->wired, pages->active), pages->compressor);
        stats.used = std::min(product(inUse, pageSize), total);
    }
    stats.free = total - stats.used;
    return stats;
}

std::pair<double, std::optional<CPUTicks>> usageSince(const std::optional<CPUTicks>& previous,
                                                      const std::optional<CPUTicks>& current) {
    if (!previous || !current) return {0, current};
    const double delta = (busy(*current) + current->idle) - (busy(*previous) + previous->idle);
    if (!(delta > 0)) return {0, current};
    return {std::clamp((busy(*current) - busy(*previous)) / delta, 0.0, 1.0), current};
}

PowerInfo powerFromBattery(const std::optional<BatteryFields>& battery) {
    if (!battery) return {};
    const std::int64_t capacity = battery->currentCapacity.value_or(0);
    const std::int64_t full = battery->maxCapacity.value_or(100);

    PowerInfo power;
    power.hasBattery = true;
    power.percent = capacity;
    if (full >= 1) power.percent = rounded(static_cast<double>(capacity) / static_cast<double>(full) * 100);
    power.charging = battery->isCharging.value_or(false);
    power.onAC = battery->powerSourceState == "AC Power";
    return power;
}

std::string versionText(std::string_view system, std::int64_t major, std::int64_t minor, std::int64_t patch) {
    std::string text = std::string(system) + " " + std::to_string(major) + "." + std::to_string(minor);
    if (patch >= 1) text += "." + std::to_string(patch);
    return text;
}

}  // namespace zelk
