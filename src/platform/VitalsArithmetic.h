// SPDX-License-Identifier: MIT
// The calculations of the probes, separate from the reading, so that those of both systems are tested on either.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Vitals.h"

namespace zelk {

struct PageCounts {
    std::uint64_t wired = 0;
    std::uint64_t active = 0;
    std::uint64_t compressor = 0;
};

/// used = wired + active + compressor, capped at `total`. Absent counts (a failed read) mean that nothing is used.
MemoryStats memoryFromPages(std::uint64_t total, std::uint64_t pageSize, const std::optional<PageCounts>& pages);

/// The share of busy time (user, system and nice) between two samples, 0 to 1, and the sample to keep for the next
/// call.
std::pair<double, std::optional<CPUTicks>> usageSince(const std::optional<CPUTicks>& previous,
                                                      const std::optional<CPUTicks>& current);

/// The fields of one internal battery, each absent if the system does not report it or reports another type.
struct BatteryFields {
    std::optional<std::int64_t> currentCapacity;
    std::optional<std::int64_t> maxCapacity;
    std::optional<std::string> powerSourceState;  ///< "AC Power" if plugged in
    std::optional<bool> isCharging;
};

/// Returns the default PowerInfo without a battery.
PowerInfo powerFromBattery(const std::optional<BatteryFields>& battery);

/// A version such as "macOS 14.5"; a patch level of 0 is omitted.
std::string versionText(std::string_view system, std::int64_t major, std::int64_t minor, std::int64_t patch);

}  // namespace zelk
