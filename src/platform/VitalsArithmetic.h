// SPDX-License-Identifier: MIT
// The arithmetic of the probes, apart from the reading, so that both systems' sums are tested on either.
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

/// used = wired + active + compressor, capped at `total`; absent counts (a failed read) are nothing used.
MemoryStats memoryFromPages(std::uint64_t total, std::uint64_t pageSize, const std::optional<PageCounts>& pages);

/// The share of time not idle between two samples, 0 to 1, and the sample to keep for the next call. `nice` is busy.
std::pair<double, std::optional<CPUTicks>> usageSince(const std::optional<CPUTicks>& previous,
                                                      const std::optional<CPUTicks>& current);

/// The fields of one internal battery, each absent if the system does not tell it or tells it as another type.
struct BatteryFields {
    std::optional<std::int64_t> currentCapacity;
    std::optional<std::int64_t> maxCapacity;
    std::optional<std::string> powerSourceState;  ///< "AC Power" when plugged in
    std::optional<bool> isCharging;
};

/// No battery gives the default PowerInfo.
PowerInfo powerFromBattery(const std::optional<BatteryFields>& battery);

/// "macOS 14.5"; the patch level only from 1 up.
std::string versionText(std::string_view system, std::int64_t major, std::int64_t minor, std::int64_t patch);

}  // namespace zelk
