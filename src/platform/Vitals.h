// SPDX-License-Identifier: MIT
// The state of the machine. All reads are synchronous and uncached; a failed read gives zeros or nothing, never an
// error.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace zelk {

struct DeviceInfo {
    std::string computerName;  ///< "This Mac" ("This computer" on Linux) if the system names none
    std::string chip;          ///< may be empty
    std::int64_t cores = 0;    ///< active processors
    std::uint64_t memoryBytes = 0;
    std::string osVersion;
    std::string modelIdentifier;  ///< may be empty

    bool operator==(const DeviceInfo&) const = default;
};

/// In bytes. Pages that can be reclaimed at once without loss count as free.
struct MemoryStats {
    std::uint64_t total = 0;
    std::uint64_t used = 0;
    std::uint64_t free = 0;
    std::uint64_t wired = 0;
    std::uint64_t compressed = 0;

    bool operator==(const MemoryStats&) const = default;
};

/// Cumulative since boot. The unit is the system's and cancels out.
struct CPUTicks {
    double user = 0;
    double system = 0;
    double idle = 0;
    double nice = 0;

    bool operator==(const CPUTicks&) const = default;
};

struct PowerInfo {
    bool hasBattery = false;
    std::int64_t percent = 0;
    bool charging = false;
    bool onAC = true;

    bool operator==(const PowerInfo&) const = default;
};

/// Bytes.
struct VolumeInfo {
    std::int64_t total = 0;
    std::int64_t available = 0;
    std::int64_t importantAvailable = 0;  ///< including what the system would purge for important data

    bool operator==(const VolumeInfo&) const = default;
};

/// Safe from any thread.
class Vitals {
public:
    virtual ~Vitals() = default;
    virtual DeviceInfo device() = 0;
    virtual MemoryStats memory() = 0;
    virtual std::optional<CPUTicks> ticks() = 0;
    virtual PowerInfo power() = 0;
    /// `path` may be any file or folder on the volume.
    virtual std::optional<VolumeInfo> volume(const std::string& path) = 0;
    /// Seconds since boot, without those that the machine slept.
    virtual double uptime() = 0;
};

}  // namespace zelk
